# Tests that drive real windows.

include(GoogleTest)

# velmora_add_desktop_test(<name> SOURCES ... LIBRARIES ... [SESSION ...] [DEPENDS ...]
#                          [PREFIX ...])
# A GoogleTest program whose test cases each run on a private desktop of their own: X server, window
# manager, session bus and home folder. They become CTest tests labelled "desktop". SESSION gives
# options of tests/desktop/session; DEPENDS names targets that must be built before; PREFIX is put
# before the names of the tests, for sources that are used more than once.
function(velmora_add_desktop_test name)
    cmake_parse_arguments(arg "" "PREFIX" "SOURCES;LIBRARIES;SESSION;DEPENDS" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} GTest::gtest GTest::gmock)
    velmora_target_options(${name})
    if(arg_DEPENDS)
        add_dependencies(${name} ${arg_DEPENDS})
    endif()
    # The launcher through which the tests are listed and run.
    set_target_properties(${name} PROPERTIES CROSSCOMPILING_EMULATOR
        "${PROJECT_SOURCE_DIR}/tests/desktop/session;${arg_SESSION};--")
    gtest_discover_tests(${name} TEST_PREFIX "${arg_PREFIX}" DISCOVERY_TIMEOUT 60
        PROPERTIES LABELS desktop TIMEOUT 120)
endfunction()
