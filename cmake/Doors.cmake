# The plan of the house: which room may use which other rooms. CheckDoors.cmake holds the includes to it, and
# CheckSymbols.cmake what the compiled rooms ask of each other.
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
# Every room above uses all of system/.
set(doors_discovery system)
set(doors_admin system)
set(doors_engine admin discovery system)
set(doors_app engine discovery system)
set(doors_ui engine discovery system)
set(doors_ui/qt ui discovery system)
set(doors_ui/appkit ui discovery system)
# Sources with a door of their own: where the program starts, a helper process of the password prompt may be what
# was started; on the Mac the window is inside the executable, and here is where it opens.
set(doors_app/main.cpp admin)
set(doors_app/window_application_macos.cpp ui/appkit)

# Sets RESULT to whether a room's SOURCE may use the room TARGET.
function(kelmar_may_use room source target result)
  set(allowed FALSE)
  foreach(door IN ITEMS ${room} ${doors_${room}} ${doors_${source}})
    if(target STREQUAL door OR (door STREQUAL "system" AND target MATCHES "^system/"))
      set(allowed TRUE)
    endif()
  endforeach()
  set(${result} ${allowed} PARENT_SCOPE)
endfunction()
