# Read once for each kind of package.
if(CPACK_GENERATOR STREQUAL "TGZ")
  set(CPACK_PACKAGING_INSTALL_PREFIX "/") # bin, lib and so on in the one folder of the archive
endif()
