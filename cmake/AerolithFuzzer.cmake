# aerolith_fuzzer(NAME SOURCES ... LINKS ... CORPUS folder)
#
# A libFuzzer target "fuzz_NAME" where the fuzz targets are built (preset fuzz). Every other build with tests gets
# two kinds of ctest instead: "fuzz.build" builds preset fuzz in build/fuzz, and "fuzz.NAME" runs the target for a
# moment, from the seeds in the corpus folder.
set(AEROLITH_FUZZ_DIR ${CMAKE_SOURCE_DIR}/build/fuzz)

function(aerolith_fuzzer NAME)
    cmake_parse_arguments(ARG "" "CORPUS" "SOURCES;LINKS" ${ARGN})
    if(AEROLITH_FUZZERS)
        add_executable(fuzz_${NAME} ${ARG_SOURCES})
        target_link_libraries(fuzz_${NAME} PRIVATE ${ARG_LINKS} aerolith_warnings)
        target_link_options(fuzz_${NAME} PRIVATE -fsanitize=fuzzer)
        add_dependencies(fuzzers fuzz_${NAME})
    elseif(BUILD_TESTING)
        file(GLOB SEEDS CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${ARG_CORPUS}/*)
        list(JOIN SEEDS "," SEEDS)
        add_test(NAME fuzz.${NAME}
            COMMAND ${AEROLITH_FUZZ_DIR}/bin/fuzz_${NAME} -seed=1 -runs=20000 -max_total_time=60
                -artifact_prefix=${AEROLITH_FUZZ_DIR}/${NAME}- -seed_inputs=${SEEDS})
        set_tests_properties(fuzz.${NAME} PROPERTIES
            LABELS fuzz TIMEOUT 180 FIXTURES_REQUIRED fuzz_build ENVIRONMENT LC_ALL=C.UTF-8)
    endif()
endfunction()

if(AEROLITH_FUZZERS)
    add_custom_target(fuzzers)
elseif(BUILD_TESTING)
    add_test(NAME fuzz.build
        COMMAND ${CMAKE_COMMAND} -P ${CMAKE_CURRENT_LIST_DIR}/BuildFuzzers.cmake
        WORKING_DIRECTORY ${CMAKE_SOURCE_DIR})
    set_tests_properties(fuzz.build PROPERTIES
        LABELS fuzz TIMEOUT 1200 FIXTURES_SETUP fuzz_build RESOURCE_LOCK fuzz_build)
endif()
