# Tests that drive real windows.

include(GoogleTest)

# velmora_add_desktop_test(<name> SOURCES ... LIBRARIES ... [SESSION ...] [DEPENDS ...]
#                          [PREFIX ...] [LAUNCHER ...] [LABELS ...])
# A GoogleTest program whose test cases each run on a private desktop of their own: X server, window
# manager, session bus and home folder. They become CTest tests labelled "desktop". SESSION gives
# options of tests/desktop/session; DEPENDS names targets that must be built before; PREFIX is put
# before the names of the tests, for sources that are used more than once. LAUNCHER runs a test in
# place of tests/desktop/session, and LABELS stand in place of "desktop".
function(velmora_add_desktop_test name)
    cmake_parse_arguments(arg "" "PREFIX" "SOURCES;LIBRARIES;SESSION;DEPENDS;LAUNCHER;LABELS"
        ${ARGN})
    if(NOT arg_LAUNCHER)
        set(arg_LAUNCHER "${PROJECT_SOURCE_DIR}/tests/desktop/session")
    endif()
    if(NOT arg_LABELS)
        set(arg_LABELS desktop)
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} GTest::gtest GTest::gmock)
    velmora_target_options(${name})
    if(arg_DEPENDS)
        add_dependencies(${name} ${arg_DEPENDS})
    endif()
    # The launcher through which the tests are listed and run.
    set_target_properties(${name} PROPERTIES CROSSCOMPILING_EMULATOR
        "${arg_LAUNCHER};${arg_SESSION};--")
    gtest_discover_tests(${name} TEST_PREFIX "${arg_PREFIX}" DISCOVERY_TIMEOUT 60
        PROPERTIES LABELS "${arg_LABELS}" TIMEOUT 120 SKIP_RETURN_CODE 77)
endfunction()
