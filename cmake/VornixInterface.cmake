# What is made from interface/vornix.iface, with the generator beside it.
find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)

set(vornix_iface ${PROJECT_SOURCE_DIR}/interface/vornix.iface)
set(vornix_generator ${PROJECT_SOURCE_DIR}/interface/generator)
# Headers that hosts include too.
set(vornix_generated_include ${PROJECT_BINARY_DIR}/generated/include)
# The core's own sources, by their path from src/.
set(vornix_generated_src ${PROJECT_BINARY_DIR}/generated/src)

# An output of an emitter (a module of the generator) is made anew when the interface or the generator changes, and
# written only when it comes out different: vornix_generate(member_table OUTPUT .../member_table.cpp). The output of an
# emitter that makes a folder: vornix_generate(NAME OUTPUT file... FOLDER folder), the files being those made in it.
function(vornix_generate emitter)
    cmake_parse_arguments(arg "" "FOLDER" "OUTPUT" ${ARGN})
    set(target ${arg_OUTPUT})
    if(arg_FOLDER)
        set(target ${arg_FOLDER})
    endif()
    file(GLOB modules CONFIGURE_DEPENDS ${vornix_generator}/*.py)
    file(RELATIVE_PATH name ${PROJECT_BINARY_DIR} ${target})
    add_custom_command(OUTPUT ${arg_OUTPUT}
        COMMAND Python3::Interpreter -B ${vornix_generator}/generate.py ${vornix_iface} --emit ${emitter} ${target}
        DEPENDS ${vornix_iface} ${modules}
        COMMENT "Making ${name} from the interface" VERBATIM)
endfunction()

foreach(header event_funnel event_functions)
    vornix_generate(${header} OUTPUT ${vornix_generated_include}/vornix/${header}.h)
    list(APPEND vornix_generated_headers ${vornix_generated_include}/vornix/${header}.h)
endforeach()
vornix_generate(c_constants OUTPUT ${vornix_generated_include}/vornix/vornix_constants.h)
list(APPEND vornix_generated_headers ${vornix_generated_include}/vornix/vornix_constants.h)
add_custom_target(vornix_interface_headers ALL DEPENDS ${vornix_generated_headers})

# The reference pages, one a family.
set(vornix_reference ${PROJECT_BINARY_DIR}/docs/reference)
vornix_generate(reference_pages FOLDER ${vornix_reference} OUTPUT ${vornix_reference}/index.md)
add_custom_target(vornix_reference_pages ALL DEPENDS ${vornix_reference}/index.md)
install(DIRECTORY ${vornix_reference} DESTINATION ${CMAKE_INSTALL_DOCDIR})
