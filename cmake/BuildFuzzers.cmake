# cmake -P BuildFuzzers.cmake, in the top folder: builds every fuzz target.
foreach(STEP "--preset;fuzz" "--build;--preset;fuzz;--target;fuzzers")
    execute_process(COMMAND ${CMAKE_COMMAND} ${STEP} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
