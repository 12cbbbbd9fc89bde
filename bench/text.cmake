# Text alone. Not part of compare_bench: run build/bench/text_bench.
add_executable(text_bench ${CMAKE_CURRENT_LIST_DIR}/text_bench.cpp)
target_link_libraries(text_bench PRIVATE vornix_raster_text vornix_options benchmark::benchmark_main)
