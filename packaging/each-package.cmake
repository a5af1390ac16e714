# Read by CPack once for each package: what the two do not share.
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build)
if(CPACK_GENERATOR STREQUAL "DEB")
  set(component debian)
  set(CPACK_SET_DESTDIR ON)  # Takes what lies in /etc into the package too.
  set(CPACK_INSTALL_PREFIX /usr)
else()
  set(component archive)
endif()
set(CPACK_INSTALL_CMAKE_PROJECTS ${build} wrenbit program / ${build} wrenbit ${component} /)
