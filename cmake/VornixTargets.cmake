# Warnings and sanitizers for every target of the project, in one place.
option(VORNIX_SANITIZE "Address and undefined behaviour sanitizers" OFF)
option(VORNIX_WERROR "Warnings are errors" OFF)
option(VORNIX_UNITY "Compile the files of a target several at a time, which takes half the time from scratch" OFF)

add_library(vornix_options INTERFACE)
target_compile_options(vornix_options INTERFACE -Wall -Wextra -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wconversion -Wno-sign-conversion)
# GCC 12 sees overlapping copies in plain concatenations of std::string.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(vornix_options INTERFACE -Wno-restrict)
endif()
if(VORNIX_WERROR)
    target_compile_options(vornix_options INTERFACE -Werror)
endif()
if(VORNIX_SANITIZE)
    target_compile_options(vornix_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(vornix_options INTERFACE -fsanitize=address,undefined)
endif()

# Files that are compiled together share what they include; more than eight in one leave a core without work at the end.
function(vornix_compile_together target)
    if(VORNIX_UNITY)
        set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
        # GCC takes them for headers, where a class over one of an unnamed namespace would be a mistake.
        if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
            target_compile_options(${target} PRIVATE -Wno-subobject-linkage)
        endif()
    endif()
endfunction()

# One floor of the core: its object files, built alone and put together in the library `vornix`.
function(vornix_add_floor name)
    add_library(vornix_${name} OBJECT ${ARGN})
    target_include_directories(vornix_${name} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>)
    target_link_libraries(vornix_${name} PRIVATE vornix_options)
endfunction()

# A test program of one folder: vornix_add_tests(model SOURCES a_test.cpp LIBRARIES vornix_model ...). ALONE are sources
# that cannot be compiled together with others, as they give their own things the names that those use; with APART none
# of a program can.
function(vornix_add_tests name)
    cmake_parse_arguments(arg "APART" "" "SOURCES;ALONE;LIBRARIES" ${ARGN})
    add_executable(${name}_tests ${arg_SOURCES} ${arg_ALONE})
    set_source_files_properties(${arg_ALONE} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    target_include_directories(${name}_tests PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_compile_definitions(${name}_tests PRIVATE VORNIX_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data")
    target_link_libraries(${name}_tests PRIVATE ${arg_LIBRARIES} GTest::gmock GTest::gtest_main vornix_options)
    if(NOT arg_APART)
        vornix_compile_together(${name}_tests)
    endif()
    gtest_discover_tests(${name}_tests TEST_PREFIX ${name}. DISCOVERY_MODE PRE_TEST PROPERTIES TIMEOUT 600)
endfunction()
