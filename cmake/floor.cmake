# A floor of the house: one library, whose headers are reached by their bare names.
#
#   wrenbit_floor(NAME SOURCES file... [BELOW floor...])
#
# Only what is linked puts its folder on the include path, so an include that runs upward does not build. Each header
# compiles alone: the lint builds the target all_verify_interface_header_sets.
function(wrenbit_floor name)
  cmake_parse_arguments(PARSE_ARGV 1 floor "" "" "SOURCES;BELOW")
  file(GLOB headers CONFIGURE_DEPENDS *.h)
  add_library(${name} STATIC ${floor_SOURCES})
  target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS ${CMAKE_CURRENT_SOURCE_DIR} FILES ${headers})
  target_link_libraries(${name} PUBLIC ${floor_BELOW})
endfunction()
