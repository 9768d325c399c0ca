# Checks the calls between compiled rooms against the plan in Doors.cmake. A static library links with whatever its
# users link, so the linker alone would let a room call any other. Run as a script, with NM, and for each room a pair in
# LIBRARIES: "engine=/path/libkelmar_engine.a".
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/Doors.cmake)

# Sets RESULT to the symbols of LIBRARY that nm(1) lists with one of TYPES.
function(symbols library types result)
  execute_process(COMMAND ${NM} -P -g ${library} OUTPUT_VARIABLE text ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCHALL "(^|\n)[^ \n]+ [${types}]" matches "${text}")
  list(TRANSFORM matches REPLACE "^\n" "")
  list(TRANSFORM matches REPLACE " .$" "")
  list(REMOVE_DUPLICATES matches)
  set(${result} "${matches}" PARENT_SCOPE)
endfunction()

set(libraries "")
foreach(pair IN LISTS LIBRARIES)
  string(REGEX MATCH "^([^=]+)=(.*)$" pair "${pair}")
  list(APPEND libraries ${CMAKE_MATCH_1})
  set(path_${CMAKE_MATCH_1} "${CMAKE_MATCH_2}")
  # Inline functions of a header exist in several rooms (W, V) and belong to none.
  symbols("${CMAKE_MATCH_2}" TDBR defined)
  foreach(symbol IN LISTS defined)
    set(owner_${symbol} ${CMAKE_MATCH_1})
  endforeach()
endforeach()

set(findings "")
set(calls 0)
foreach(room IN LISTS libraries)
  symbols("${path_${room}}" U wanted)
  foreach(symbol IN LISTS wanted)
    if(DEFINED owner_${symbol} AND NOT owner_${symbol} STREQUAL room)
      math(EXPR calls "${calls} + 1")
      if(NOT owner_${symbol} IN_LIST doors_${room})
        list(APPEND findings "no door from ${room} to ${owner_${symbol}}: ${symbol}")
      endif()
    endif()
  endforeach()
endforeach()

if(calls EQUAL 0)
  message(FATAL_ERROR "No room calls another: nm's answer was not understood.")
endif()
if(findings)
  list(JOIN findings "\n  " text)
  message(FATAL_ERROR "The plan of the house does not hold:\n  ${text}")
endif()
