# A floor of the house: one library, whose headers are reached by their bare names.
#
#   wrenbit_floor(NAME SOURCES file... [BELOW floor...])
#
# Only what is linked puts its folder on the include path, so an include that runs upward does not build.
function(wrenbit_floor name)
  cmake_parse_arguments(PARSE_ARGV 1 floor "" "" "SOURCES;BELOW")
  add_library(${name} STATIC ${floor_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${floor_BELOW})
endfunction()
