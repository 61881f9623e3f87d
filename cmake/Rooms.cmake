# A room is a folder with a CMake target of the same name. Headers are included as "room/File.h", and
# a room's include path holds links to just those rooms that it KNOWS or USES, so that an include of
# any other room does not compile.

# What one room shows to those that know it: a folder that holds nothing but a link to the room.
function(show_room name)
  set(shown ${CMAKE_BINARY_DIR}/rooms/${name})
  file(MAKE_DIRECTORY ${shown})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${shown}/${name} SYMBOLIC)
  target_include_directories(${name} PUBLIC ${shown})
endfunction()

# add_room(base SOURCES ... [KNOWS room...] [USES room...] [QT])
#   KNOWS: the rooms that this room's headers may use. Who knows this room sees them too.
#   USES:  the rooms (and libraries) that its sources use besides, unseen by others.
#   QT:    the room uses Qt and the shared precompiled header.
function(add_room name)
  cmake_parse_arguments(ROOM "QT" "" "SOURCES;KNOWS;USES" ${ARGN})
  add_library(${name} STATIC ${ROOM_SOURCES})
  show_room(${name})
  target_link_libraries(${name} PUBLIC ${ROOM_KNOWS} PRIVATE till_flags ${ROOM_USES})
  use_qt(${name} ${ROOM_QT})
endfunction()

# Everything that is installed, so that whoever installs can build just that.
add_custom_target(programs)

# install_program(<target>): puts a program or a library of ours into the installed folder.
function(install_program target)
  add_dependencies(programs ${target})
  install(TARGETS ${target} RUNTIME DESTINATION . LIBRARY DESTINATION .)
endfunction()

# Links Qt and shares the precompiled header, or turns the Qt tooling off.
function(use_qt name wanted)
  if(wanted)
    target_link_libraries(${name} PUBLIC qt)
    target_precompile_headers(${name} REUSE_FROM qt_pch)
  else()
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
  endif()
endfunction()
