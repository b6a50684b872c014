# Installs the libraries, their headers and a CMake package:
#   find_package(seisplot) then target_link_libraries(app PRIVATE seisplot::seisplot)
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

get_property(layers GLOBAL PROPERTY SEISPLOT_LAYERS)
install(TARGETS ${layers} seisplot
    EXPORT seisplotTargets
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/seisplot
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/seisplot)

set(config_dir ${CMAKE_INSTALL_LIBDIR}/cmake/seisplot)
install(EXPORT seisplotTargets NAMESPACE seisplot:: DESTINATION ${config_dir})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/seisplotConfig.cmake.in
    ${PROJECT_BINARY_DIR}/seisplotConfig.cmake INSTALL_DESTINATION ${config_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/seisplotConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/seisplotConfig.cmake
    ${PROJECT_BINARY_DIR}/seisplotConfigVersion.cmake DESTINATION ${config_dir})
