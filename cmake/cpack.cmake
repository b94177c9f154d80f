# `./run package`: Debian packages, one for each part that can be wanted alone, and one archive with everything.
set(CPACK_PACKAGE_NAME tolvi)
set(CPACK_PACKAGE_VENDOR "The Tolvi developers")
set(CPACK_PACKAGE_CONTACT "The Tolvi developers <tolvi@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_FILE_NAME tolvi-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_LIST_DIR}/cpack_project.cmake)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
                                                WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_COMPONENTS_ALL)

# tolvi_package(COMPONENT PACKAGE SECTION SUMMARY [ALL] [COMPONENTS ...] [DEPENDS ...] [RECOMMENDS ...] [SUGGESTS ...]):
# what `install(... COMPONENT COMPONENT)` installs is the Debian package PACKAGE. COMPONENTS are those that it needs;
# DEPENDS and so on are packages of Debian that no linker sees; ALL: there is nothing in it for one machine only.
macro(tolvi_package component package section summary)
  cmake_parse_arguments(arg "ALL" "" "COMPONENTS;DEPENDS;RECOMMENDS;SUGGESTS" ${ARGN})
  string(TOUPPER ${component} upper)
  list(APPEND CPACK_COMPONENTS_ALL ${component})
  set(CPACK_COMPONENT_${upper}_DESCRIPTION "${summary}")
  set(CPACK_COMPONENT_${upper}_DEPENDS ${arg_COMPONENTS})
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package})
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section})
  set(CPACK_DEBIAN_${upper}_DESCRIPTION "${summary}")
  foreach(kind IN ITEMS DEPENDS RECOMMENDS SUGGESTS)
    list(JOIN arg_${kind} ", " CPACK_DEBIAN_${upper}_PACKAGE_${kind})
  endforeach()
  if(arg_ALL)
    set(CPACK_DEBIAN_${upper}_PACKAGE_ARCHITECTURE all)
    set(CPACK_DEBIAN_${upper}_PACKAGE_SHLIBDEPS OFF)
  endif()
  set(licence ${PROJECT_SOURCE_DIR}/share/${package}.copyright)
  if(NOT EXISTS ${licence})
    set(licence ${PROJECT_SOURCE_DIR}/LICENSE)
  endif()
  install(FILES ${licence} DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} RENAME copyright COMPONENT ${component})
endmacro()

set(abi ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
tolvi_package(core libtolvi-core${abi} libs "Models, queries and SQL of Tolvi")
if(TOLVI_BUILD_CONNECT)
  tolvi_package(connect libtolvi-connect${abi} libs "Databases for Tolvi" COMPONENTS core)
endif()
if(TOLVI_BUILD_XML)
  tolvi_package(xml libtolvi-xml${abi} libs "Models of Tolvi as XML documents" COMPONENTS core)
endif()
if(TOLVI_BUILD_WIDGETS)
  tolvi_package(widgets libtolvi-widgets${abi} libs "Panels of Tolvi in which users compose queries" COMPONENTS core
                RECOMMENDS tolvi-translations)
endif()
tolvi_package(translations tolvi-translations localization "Texts of Tolvi in other languages" ALL)
set(libraries ${CPACK_COMPONENTS_ALL})
tolvi_package(
  dev libtolvi-dev libdevel "Headers, CMake and pkg-config files of Tolvi"
  COMPONENTS ${libraries}
  RECOMMENDS qt6-base-dev qt6-svg-dev
  SUGGESTS tolvi-designer)
if(TOLVI_BUILD_DESIGNER)
  tolvi_package(designer tolvi-designer libdevel "Panels of Tolvi in Qt Designer" COMPONENTS widgets)
endif()
if(TOLVI_BUILD_APPS)
  tolvi_package(
    tolvi tolvi database "Make SQL from a data model and a query in its words, and run it"
    COMPONENTS core connect xml
    DEPENDS libqt6sql6-sqlite
    RECOMMENDS libqt6sql6-psql libqt6sql6-mysql)
endif()
if(TARGET tolvi_workbench)
  tolvi_package(
    workbench tolvi-workbench database "Compose queries on databases, see and keep their rows"
    DEPENDS libqt6sql6-sqlite
    RECOMMENDS libqt6sql6-psql libqt6sql6-mysql qt6-translations-l10n
    SUGGESTS libqt6sql6-odbc)
endif()

# Where dpkg-shlibdeps finds the libraries of the other packages.
foreach(target IN ITEMS tolvi_core tolvi_connect tolvi_xml tolvi_widgets)
  if(TARGET ${target})
    get_target_property(folder ${target} BINARY_DIR)
    list(APPEND CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${folder})
  endif()
endforeach()

include(CPack)
