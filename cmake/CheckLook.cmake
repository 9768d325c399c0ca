# Checks that the two renderers take their lengths from ui/look.hpp: a call that places, pads, rounds or sizes something
# must use names. 0 is allowed, and 2 as the factor of both sides or of a half. Run as a script, with SOURCE_DIR set.
cmake_minimum_required(VERSION 3.25)

set(calls_ui/qt
    "setContentsMargins|setViewportMargins|setDocumentMargin|margins|setSpacing|setFixed[A-Z][a-z]+"
    "|setMinimum[A-Z][a-z]+|setMaximum[A-Z][a-z]+|IconLabel|NoteRow|layOutRow|drawRoundedRect|adjusted"
    "|setPointSizeF?|setPixelSize")
set(calls_ui/appkit "NSMakeRect|NSMakeSize|NSInsetRect")
# Parts of a message; an argument ends where the next part begins.
set(parts "systemFontOfSize|SystemFontOfSize|SymbolSize|[pP]ointSize|[xy]Radius|AlphaComponent")

# CMake splits lists at semicolons outside of brackets: replace both in a text that becomes a list.
string(ASCII 1 end)
set(findings "")
foreach(folder IN ITEMS ui/qt ui/appkit)
  list(JOIN calls_${folder} "" calls)
  set(checked 0)
  file(GLOB sources "${SOURCE_DIR}/${folder}/*.[ch]pp" "${SOURCE_DIR}/${folder}/*.h" "${SOURCE_DIR}/${folder}/*.mm")
  foreach(source IN LISTS sources)
    file(RELATIVE_PATH name "${SOURCE_DIR}" "${source}")
    file(READ "${source}" text)
    string(REGEX REPLACE "//[^\n]*" "" text "${text}")
    string(REGEX REPLACE "[][]" " " text "${text}")
    string(REPLACE ";" "${end}" text "${text}")
    string(REGEX MATCHALL "(^|[^A-Za-z])(${calls})\\([^${end}]*" found "${text}")
    string(REGEX MATCHALL "(${parts}):[^:${end}]*" found_parts "${text}")
    foreach(call IN LISTS found found_parts)
      math(EXPR checked "${checked} + 1")
      string(REPLACE "2 * " "" numbers "${call}")
      string(REGEX REPLACE " / 2(\\.0)?([^0-9.])" "\\2" numbers "${numbers} ")
      if(numbers MATCHES "[^A-Za-z0-9_.][0-9.]*[1-9]")
        string(REGEX REPLACE "[ \n]+" " " call "${call}")
        list(APPEND findings "${name}:${call}")
      endif()
    endforeach()
  endforeach()
  if(checked EQUAL 0)
    list(APPEND findings "${folder}: no call found that lays anything out")
  endif()
endforeach()

if(findings)
  list(JOIN findings "\n  " text)
  message(FATAL_ERROR "A number that belongs into ui/look.hpp under a name:\n  ${text}")
endif()
