# What `cmake --install` puts in place, so that find_package(Tolvi COMPONENTS Core) works from there.
include(CMakePackageConfigHelpers)

set(tolvi_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Tolvi)

# tolvi_install(TARGET COMPONENT): the library with its public headers, as one component of the package.
function(tolvi_install target component)
  install(
    TARGETS ${target}
    EXPORT Tolvi${component}
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tolvi
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  install(EXPORT Tolvi${component} NAMESPACE Tolvi:: FILE Tolvi${component}Targets.cmake
          DESTINATION ${tolvi_package_dir})
endfunction()

tolvi_install(tolvi_core Core)
if(TOLVI_BUILD_CONNECT)
  tolvi_install(tolvi_connect Connect)
endif()
if(TOLVI_BUILD_XML)
  tolvi_install(tolvi_xml Xml)
endif()
if(TOLVI_BUILD_WIDGETS)
  tolvi_install(tolvi_widgets Widgets)
endif()

# The panels' texts in other languages.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/translations DESTINATION ${CMAKE_INSTALL_DATADIR}/tolvi
        FILES_MATCHING PATTERN "*.titles")

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/TolviConfig.cmake.in ${PROJECT_BINARY_DIR}/TolviConfig.cmake
                              INSTALL_DESTINATION ${tolvi_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TolviConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/TolviConfig.cmake ${PROJECT_BINARY_DIR}/TolviConfigVersion.cmake
        DESTINATION ${tolvi_package_dir})
