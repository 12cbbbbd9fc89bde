# Installation: libraries by component, headers, a package for find_package(Vornix COMPONENTS ...) and files for pkg-config.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Vornix)

# A component is a target and the folder of its public headers.
function(vornix_install_component name target)
    if(NOT TARGET ${target})
        return()
    endif()
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
    install(TARGETS ${target} EXPORT Vornix-${name} ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
    install(EXPORT Vornix-${name} NAMESPACE Vornix:: DESTINATION ${package_dir})
    foreach(folder ${ARGN})
        install(DIRECTORY ${folder}/vornix DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")
    endforeach()
endfunction()

vornix_install_component(vornix vornix ${PROJECT_SOURCE_DIR}/include ${vornix_generated_include})
vornix_install_component(raster vornix_raster ${PROJECT_SOURCE_DIR}/toolkits/raster/include)
vornix_install_component(headless vornix_headless ${PROJECT_SOURCE_DIR}/toolkits/headless/include)
vornix_install_component(c vornix_c ${PROJECT_SOURCE_DIR}/bindings/c/include)
vornix_install_component(icu vornix_icu ${PROJECT_SOURCE_DIR}/toolkits/icu/include)
vornix_install_component(qt vornix_qt ${PROJECT_SOURCE_DIR}/toolkits/qt/include)

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/VornixConfig.cmake.in ${PROJECT_BINARY_DIR}/VornixConfig.cmake
    INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VornixConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VornixConfig.cmake ${PROJECT_BINARY_DIR}/VornixConfigVersion.cmake
    DESTINATION ${package_dir})

# pkg-config: the core, and the container without a screen with all it needs. The files name their prefix by the way
# from their own place, so that what is installed can be moved, or installed to another prefix than the configured one.
file(RELATIVE_PATH VORNIX_PC_TO_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" VORNIX_PC_TO_PREFIX "${VORNIX_PC_TO_PREFIX}")
configure_file(${PROJECT_SOURCE_DIR}/cmake/vornix.pc.in ${PROJECT_BINARY_DIR}/vornix.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/vornix.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
if(TARGET vornix_headless)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/vornix-headless.pc.in ${PROJECT_BINARY_DIR}/vornix-headless.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/vornix-headless.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endif()
if(TARGET vornix_c)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/vornix-c.pc.in ${PROJECT_BINARY_DIR}/vornix-c.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/vornix-c.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endif()
if(TARGET vornix_qt)
    if(TARGET vornix_icu)
        set(VORNIX_QT_PC_REQUIRES " icu-i18n icu-uc")
        set(VORNIX_QT_PC_LIBS " -lvornix_icu")
    endif()
    configure_file(${PROJECT_SOURCE_DIR}/cmake/vornix-qt.pc.in ${PROJECT_BINARY_DIR}/vornix-qt.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/vornix-qt.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endif()
