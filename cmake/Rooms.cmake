# Every folder of the program is one library, a "room". A room sees its own headers and those of the rooms
# that it links, and no others: each room hands on an include folder that holds nothing but a link to itself.
# So `#include "device/brumaloggerinterface.h"` builds exactly where CMake states the dependency.

# brumalogger_add_room(<folder> SOURCES <file>... [LINK <target>...])
function(brumalogger_add_room folder)
  cmake_parse_arguments(ROOM "" "" "SOURCES;LINK" ${ARGN})
  set(view ${PROJECT_BINARY_DIR}/rooms/${folder})
  file(MAKE_DIRECTORY ${view})
  file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${folder} ${view}/${folder} SYMBOLIC)

  add_library(brumalogger_${folder} STATIC ${ROOM_SOURCES})
  target_include_directories(brumalogger_${folder} PUBLIC ${view})
  target_link_libraries(brumalogger_${folder} PUBLIC ${ROOM_LINK})
endfunction()
