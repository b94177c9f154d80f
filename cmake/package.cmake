# What `cmake --install` puts in place, so that find_package(Tolvi COMPONENTS Core) works from there.
include(CMakePackageConfigHelpers)
include(${CMAKE_CURRENT_LIST_DIR}/pkgconfig.cmake)

set(tolvi_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Tolvi)

# tolvi_install(TARGET COMPONENT): the library with its public headers, as one component of the package. What programs
# need when they run is the install component of that name in lower case, the rest is `dev`.
function(tolvi_install target component)
  string(TOLOWER ${component} runtime)
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
  install(
    TARGETS ${target}
    EXPORT Tolvi${component}
    RUNTIME COMPONENT ${runtime}
    LIBRARY COMPONENT ${runtime} NAMELINK_COMPONENT dev
    ARCHIVE COMPONENT dev
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tolvi COMPONENT dev
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  install(EXPORT Tolvi${component} NAMESPACE Tolvi:: FILE Tolvi${component}Targets.cmake
          DESTINATION ${tolvi_package_dir} COMPONENT dev)
endfunction()

tolvi_install(tolvi_core Core)
tolvi_pkgconfig(tolvi_core Core "Compose SQL SELECT statements visually: models, queries, SQL")
if(TOLVI_BUILD_CONNECT)
  tolvi_install(tolvi_connect Connect)
  tolvi_pkgconfig(tolvi_connect Connect "Models from databases, queries run on them and kept in them"
                  REQUIRES tolvi-core Qt6Core Qt6Sql STATIC_LIBS -ldl)
endif()
if(TOLVI_BUILD_XML)
  tolvi_install(tolvi_xml Xml)
  tolvi_pkgconfig(tolvi_xml Xml "Models as XML documents" REQUIRES tolvi-core STATIC_REQUIRES Qt6Core)
endif()
if(TOLVI_BUILD_WIDGETS)
  tolvi_install(tolvi_widgets Widgets)
  tolvi_pkgconfig(tolvi_widgets Widgets "Panels in which users compose queries" REQUIRES tolvi-core Qt6Widgets
                  STATIC_REQUIRES Qt6PrintSupport Qt6Svg)
endif()

# The list of the public headers, for `./run docs`.
set(tolvi_public_headers "")
foreach(target IN ITEMS tolvi_core tolvi_connect tolvi_xml tolvi_widgets)
  if(TARGET ${target})
    get_target_property(headers ${target} HEADER_SET)
    list(APPEND tolvi_public_headers ${headers})
  endif()
endforeach()
list(JOIN tolvi_public_headers "\n" tolvi_public_headers)
file(WRITE ${PROJECT_BINARY_DIR}/public_headers.txt "${tolvi_public_headers}\n")

# The panels' texts in other languages.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/translations DESTINATION ${CMAKE_INSTALL_DATADIR}/tolvi COMPONENT translations
        FILES_MATCHING PATTERN "*.titles")

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/TolviConfig.cmake.in ${PROJECT_BINARY_DIR}/TolviConfig.cmake
                              INSTALL_DESTINATION ${tolvi_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TolviConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/TolviConfig.cmake ${PROJECT_BINARY_DIR}/TolviConfigVersion.cmake
        DESTINATION ${tolvi_package_dir} COMPONENT dev)

if(PROJECT_IS_TOP_LEVEL)
  include(${CMAKE_CURRENT_LIST_DIR}/cpack.cmake)
endif()
