# Installs the libraries, their headers and a CMake package with one component per group of
# layers, so that a program asks only for what it uses:
#   find_package(seisplot COMPONENTS core)  the compute core, no Qt
#   find_package(seisplot)                  everything; link seisplot::seisplot
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(config_dir ${CMAKE_INSTALL_LIBDIR}/cmake/seisplot)
foreach(component IN LISTS SEISPLOT_COMPONENTS)
    get_property(targets GLOBAL PROPERTY SEISPLOT_LAYERS_${component})
    install(TARGETS ${targets}
        EXPORT seisplot-${component}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/seisplot
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/seisplot)
    install(EXPORT seisplot-${component} NAMESPACE seisplot::
        FILE seisplot-${component}-targets.cmake DESTINATION ${config_dir})
endforeach()

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/seisplotConfig.cmake.in
    ${PROJECT_BINARY_DIR}/seisplotConfig.cmake INSTALL_DESTINATION ${config_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/seisplotConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/seisplotConfig.cmake
    ${PROJECT_BINARY_DIR}/seisplotConfigVersion.cmake DESTINATION ${config_dir})
