# Everything is compiled for libFuzzer: counted for coverage, and watched by the sanitizers.
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "VORNIX_FUZZ needs Clang: -DCMAKE_CXX_COMPILER=clang++")
endif()
add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
add_link_options(-fsanitize=address,undefined)
