# What makers of bundles get: the protocol's header, those of the platform, and the CMake package that leads to them.
include(CMakePackageConfigHelpers)

set(kit ${CMAKE_INSTALL_LIBDIR}/cmake/qnprint)
install(FILES ${QN_PROTOCOL_HEADER} ${PROJECT_SOURCE_DIR}/PDEBaseClass/PDECheckInterface.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/qnprint)
install(EXPORT qnprint FILE qnprint-targets.cmake NAMESPACE qnprint:: DESTINATION ${kit})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/qnprint-config.cmake.in ${PROJECT_BINARY_DIR}/qnprint-config.cmake
    INSTALL_DESTINATION ${kit} PATH_VARS CMAKE_INSTALL_INCLUDEDIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/qnprint-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/qnprint-config.cmake ${PROJECT_BINARY_DIR}/qnprint-config-version.cmake
    ${CMAKE_CURRENT_LIST_DIR}/Bundles.cmake ${CMAKE_CURRENT_LIST_DIR}/JoinLines.cmake ${CMAKE_CURRENT_LIST_DIR}/Info.json.in
    DESTINATION ${kit})
