# Which room may use which other rooms. CheckDoors.cmake checks the includes against this plan, and CheckSymbols.cmake
# the symbols of the compiled rooms.
set(rooms
    system/files
    system/mac_tools
    system/process
    system/property_list
    system/text
    discovery
    admin
    engine
    app
    ui
    ui/qt
    ui/appkit)
set(doors_system/text "")
set(doors_system/files system/text)
set(doors_system/process system/files system/text)
set(doors_system/property_list system/files system/text)
set(doors_system/mac_tools system/process system/text)
# Every room above may use all of system/.
set(doors_discovery system)
set(doors_admin system)
set(doors_engine admin discovery system)
set(doors_app engine discovery system)
set(doors_ui engine discovery system)
set(doors_ui/qt ui discovery system)
set(doors_ui/appkit ui discovery system)
# Sources with an exception of their own: the program's start may have to become the password prompt's helper process;
# on the Mac it also opens the window, which is inside the executable.
set(doors_app/main.cpp admin)
set(doors_app/window_application_macos.cpp ui/appkit)

# Sets RESULT to true if a room's SOURCE may use the room TARGET.
function(kelmar_may_use room source target result)
  set(allowed FALSE)
  foreach(door IN ITEMS ${room} ${doors_${room}} ${doors_${source}})
    if(target STREQUAL door OR (door STREQUAL "system" AND target MATCHES "^system/"))
      set(allowed TRUE)
    endif()
  endforeach()
  set(${result} ${allowed} PARENT_SCOPE)
endfunction()
