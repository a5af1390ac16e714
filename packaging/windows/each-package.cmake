# Read by CPack once for each package: what the two do not share.
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build)
set(component zip)
if(CPACK_GENERATOR STREQUAL "NSIS")
  set(component installer)
endif()
set(CPACK_INSTALL_CMAKE_PROJECTS ${build} wrenbit program / ${build} wrenbit ${component} /)
