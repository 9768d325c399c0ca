# Keeps texts that people read in ui/: a literal in a renderer must be a name, in lower case and without blanks, or be
# listed below with its purpose. Run as a script, with SOURCE_DIR set.
cmake_minimum_required(VERSION 3.25)

set(names
    "Ctrl+" # of a key sequence, in the toolkit's spelling
    "Ctrl+Alt+"
    "C" # the kind of linkage
    "file " # before a path and
    "symbol " # before a name, so that the two are not taken for each other
    "Xg" # is measured and never shown
    "AXHeading" # a role, in the toolkit's spelling
    "kelmarAccessibleRole" # properties
    "kelmarAccessiblyExpanded"
    "kelmarAccessiblyHidden"
    "kelmarAccessiblyModal")

set(findings "")
foreach(folder IN ITEMS ui/qt ui/appkit)
  set(checked 0)
  file(GLOB sources "${SOURCE_DIR}/${folder}/*.[ch]pp" "${SOURCE_DIR}/${folder}/*.h" "${SOURCE_DIR}/${folder}/*.mm")
  foreach(source IN LISTS sources)
    file(RELATIVE_PATH name "${SOURCE_DIR}" "${source}")
    file(READ "${source}" text)
    string(REGEX REPLACE "[][;]" " " text "${text}")
    string(REGEX REPLACE "((^|\n) *#(include|import|pragma)|(^|[ \n])//)[^\n]*" "\n" text "${text}")
    string(REGEX MATCHALL "\"([^\"\\\\\n]|\\\\.)*\"" literals "${text}")
    foreach(literal IN LISTS literals)
      math(EXPR checked "${checked} + 1")
      string(REGEX REPLACE "^\"(.*)\"$" "\\1" literal "${literal}")
      if(NOT literal IN_LIST names AND literal MATCHES "[A-Za-z]" AND NOT literal MATCHES
                                                                      "^(\\\\?[a-z0-9:/._-]|</?[a-z]+>)+$")
        list(APPEND findings "${name}: \"${literal}\"")
      endif()
    endforeach()
  endforeach()
  if(checked EQUAL 0)
    list(APPEND findings "${folder}: no literal found")
  endif()
endforeach()

if(findings)
  list(JOIN findings "\n  " text)
  message(FATAL_ERROR "A text that belongs into ui/, or a name to be listed in cmake/CheckTexts.cmake:\n  ${text}")
endif()
