# aerolith_test(NAME SOURCES ... LINKS ...)
#
# One GoogleTest program per folder of tests/, each of its cases a ctest of its own. Widgets are drawn offscreen.
function(aerolith_test NAME)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${NAME} ${ARG_SOURCES})
    target_link_libraries(${NAME} PRIVATE ${ARG_LINKS} GTest::gmock GTest::gtest_main aerolith_warnings)
    target_include_directories(${NAME} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    gtest_discover_tests(${NAME}
        DISCOVERY_MODE PRE_TEST
        NO_PRETTY_VALUES
        PROPERTIES TIMEOUT 120 LABELS unit
                   ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8")
endfunction()
