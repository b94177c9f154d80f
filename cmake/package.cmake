# What `cmake --install` puts in place, so that find_package(Tolvi COMPONENTS Core) works from there.
include(CMakePackageConfigHelpers)

set(tolvi_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Tolvi)

install(
  TARGETS tolvi_core
  EXPORT TolviCore
  FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tolvi
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT TolviCore NAMESPACE Tolvi:: FILE TolviCoreTargets.cmake DESTINATION ${tolvi_package_dir})
if(TOLVI_BUILD_CONNECT)
  install(
    TARGETS tolvi_connect
    EXPORT TolviConnect
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tolvi
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  install(EXPORT TolviConnect NAMESPACE Tolvi:: FILE TolviConnectTargets.cmake DESTINATION ${tolvi_package_dir})
endif()

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/TolviConfig.cmake.in ${PROJECT_BINARY_DIR}/TolviConfig.cmake
                              INSTALL_DESTINATION ${tolvi_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TolviConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/TolviConfig.cmake ${PROJECT_BINARY_DIR}/TolviConfigVersion.cmake
        DESTINATION ${tolvi_package_dir})
