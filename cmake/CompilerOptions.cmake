# Compiler options that every target of this project shares.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# What ccache has to be told before it keeps what was compiled with a precompiled header: the
# headers' times do not count, their contents do.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        ${CCACHE_PROGRAM})
endif()

set(VELMORA_SANITIZER "" CACHE STRING "Sanitizer: empty, 'address' (with undefined behaviour) or 'thread'")
set_property(CACHE VELMORA_SANITIZER PROPERTY STRINGS "" address thread)
option(VELMORA_FUZZ_TARGETS "Build the libFuzzer targets (clang only)" OFF)
option(VELMORA_PRECOMPILED_HEADERS "Compile the headers of others once (clang only)" OFF)

# velmora_target_options(<target>): warnings as errors, hardening and the chosen sanitizer.
function(velmora_target_options target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor
        -Wold-style-cast -Woverloaded-virtual -Wcast-align -Wformat=2
        -Wimplicit-fallthrough -pthread
        # Native calls that are marked as old are the ones that do what is needed; and nobody has
        # seen yet what the headers there have to say.
        $<IF:$<PLATFORM_ID:Darwin>,-Wno-deprecated-declarations,-Werror>
        $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wlogical-op>)
    # g++ 12 sees overlaps where strings are put together and optimised (GCC bug 105651).
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        target_compile_options(${target} PRIVATE -Wno-restrict)
    endif()
    # Qt's keyword macros ("signals", "emit") collide with the headers of other libraries.
    target_compile_definitions(${target} PRIVATE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII
        QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400)
    if(VELMORA_SANITIZER)
        target_compile_definitions(${target} PRIVATE VELMORA_SANITIZED)
    endif()
    if(VELMORA_SANITIZER STREQUAL "address")
        target_compile_options(${target} PRIVATE -fsanitize=address,undefined
            -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=address,undefined)
    elseif(VELMORA_SANITIZER STREQUAL "thread")
        target_compile_options(${target} PRIVATE -fsanitize=thread -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=thread)
    else()
        target_compile_options(${target} PRIVATE -fstack-protector-strong
            $<$<CONFIG:Release>:-D_FORTIFY_SOURCE=2>)
        target_link_options(${target} PRIVATE
            $<$<NOT:$<PLATFORM_ID:Darwin>>:-Wl,-z,relro,-z,now>)
    endif()
    if(TARGET precompiled_headers AND NOT target STREQUAL "precompiled_headers")
        target_precompile_headers(${target} REUSE_FROM precompiled_headers)
        target_compile_options(${target} PRIVATE -fPIC)
    endif()
endfunction()

# One precompiled header serves all targets: clang minds only that their options agree. A file that
# forgot to include what it uses is found by the builds that have none.
function(velmora_add_precompiled_headers)
    add_library(precompiled_headers OBJECT "${PROJECT_SOURCE_DIR}/cmake/PrecompiledHeaders.cpp")
    target_include_directories(precompiled_headers SYSTEM PRIVATE
        $<TARGET_PROPERTY:Qt6::Core,INTERFACE_INCLUDE_DIRECTORIES>)
    # As GTest's own target has it, and without Qt's mark for programs that need not have Qt.
    target_compile_definitions(precompiled_headers PRIVATE
        GTEST_HAS_PTHREAD=1 QT_NO_VERSION_TAGGING)
    velmora_target_options(precompiled_headers)
    target_precompile_headers(precompiled_headers PRIVATE
        "${PROJECT_SOURCE_DIR}/cmake/PrecompiledHeaders.h")
endfunction()
