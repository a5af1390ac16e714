# Drops the files of the other system: of the sources, "_windows" stands for Windows alone, "_posix" and "_linux" for
# what is not Windows.
function(wrenbit_of_this_platform list)
  set(other "_windows\\.cpp$")
  if(WIN32)
    set(other "_(posix|linux)\\.cpp$")
  endif()
  list(FILTER ${list} EXCLUDE REGEX ${other})
  set(${list} ${${list}} PARENT_SCOPE)
endfunction()

# The target finds this folder's headers under the folder's own name from the project's root, and none beside them:
# "core/state/state.h". That is what makes an include tell where it comes from, and one that runs upward not build.
# Leaves them in `headers`.
function(wrenbit_hand_out target scope)
  cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE folder)
  set(link ${PROJECT_BINARY_DIR}/include/${target}/${folder})
  cmake_path(GET link PARENT_PATH above)
  file(MAKE_DIRECTORY ${above})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${link} COPY_ON_ERROR SYMBOLIC)
  target_include_directories(${target} ${scope} ${PROJECT_BINARY_DIR}/include/${target})
  file(GLOB headers CONFIGURE_DEPENDS ${link}/*.h)
  set(headers ${headers} PARENT_SCOPE)
endfunction()

# A floor of the house: one library, and what lies below it.
#
#   wrenbit_floor(NAME SOURCES file... [BELOW floor...])
#
# Each header compiles alone: the lint builds the target all_verify_interface_header_sets.
function(wrenbit_floor name)
  cmake_parse_arguments(PARSE_ARGV 1 floor "" "" "SOURCES;BELOW")
  wrenbit_of_this_platform(floor_SOURCES)
  add_library(${name} STATIC ${floor_SOURCES})
  wrenbit_hand_out(${name} PUBLIC)
  target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_BINARY_DIR}/include/${name} FILES ${headers})
  target_link_libraries(${name} PUBLIC ${floor_BELOW})
endfunction()
