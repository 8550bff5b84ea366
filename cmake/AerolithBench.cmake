# aerolith_bench(NAME SOURCES ... LINKS ...)
#
# One Google Benchmark program "bench_NAME", with a main of its own that prints the ratios it is about.
function(aerolith_bench NAME)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(bench_${NAME} ${ARG_SOURCES})
    target_link_libraries(bench_${NAME} PRIVATE ${ARG_LINKS} benchmark::benchmark aerolith_warnings)
endfunction()
