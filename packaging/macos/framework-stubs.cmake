# Makes the stub libraries that the cross build links against, out of the declarations: what isn't declared
# isn't there to be linked. Run as a script, with OUTPUT set to the folder for them.
#
# One line each is what it reads, in packaging/macos/declarations/<framework>/*.h
#     @interface NAME : ...            a class (a category, "@interface NAME (...)", adds none)
#     FOUNDATION_EXPORT ... NAME(...); a function, or without parameters a constant; likewise APPKIT_EXTERN
# and in compiler-references.txt what stands in no source.
cmake_minimum_required(VERSION 3.25)

set(declarations ${CMAKE_CURRENT_LIST_DIR}/declarations)

# The names, and the versions of macOS 12, under which programs that are linked on a Mac know the libraries.
set(place_Foundation /System/Library/Frameworks/Foundation.framework/Versions/C/Foundation)
set(versions_Foundation 1858 300)
set(place_AppKit /System/Library/Frameworks/AppKit.framework/Versions/C/AppKit)
set(versions_AppKit 2113 45)
set(place_CoreFoundation /System/Library/Frameworks/CoreFoundation.framework/Versions/A/CoreFoundation)
set(versions_CoreFoundation 1858 150)
set(place_objc /usr/lib/libobjc.A.dylib)
set(versions_objc 228 1)

file(STRINGS ${declarations}/compiler-references.txt references REGEX "^[^#]")

foreach(library Foundation AppKit CoreFoundation objc)
  set(classes "")
  set(symbols "")
  file(GLOB headers ${declarations}/${library}/*.h)
  foreach(header IN LISTS headers)
    file(STRINGS ${header} lines REGEX "^(@interface|FOUNDATION_EXPORT|APPKIT_EXTERN) ")
    foreach(line IN LISTS lines)
      if(line MATCHES "^@interface ([A-Za-z]+) \\(")
        continue()
      elseif(line MATCHES "^@interface ([A-Za-z]+)")
        list(APPEND classes ${CMAKE_MATCH_1})
      elseif(line MATCHES "[ *]([A-Za-z]+)(\\(.*\\))?;$")
        list(APPEND symbols _${CMAKE_MATCH_1})
      else()
        message(FATAL_ERROR "${header}: not on one line, or not understood: ${line}")
      endif()
    endforeach()
  endforeach()
  foreach(reference IN LISTS references)
    if(reference MATCHES "^${library} class ([A-Za-z]+)$")
      list(APPEND classes ${CMAKE_MATCH_1})
    elseif(reference MATCHES "^${library} ([A-Za-z_0-9]+)$")
      list(APPEND symbols ${CMAKE_MATCH_1})
    endif()
  endforeach()

  list(SORT classes)
  list(SORT symbols)
  list(JOIN classes ", " classes)
  list(JOIN symbols ", " symbols)
  list(GET versions_${library} 0 current)
  list(GET versions_${library} 1 compatible)
  set(targets "[ x86_64-macos, arm64-macos ]")
  if(library STREQUAL "objc")
    set(stub ${OUTPUT}/libobjc.tbd)
  else()
    set(stub ${OUTPUT}/${library}.framework/${library}.tbd)
  endif()
  file(
    CONFIGURE
    OUTPUT
    ${stub}
    CONTENT
    "--- !tapi-tbd
tbd-version: 4
targets: @targets@
install-name: '@place_${library}@'
current-version: @current@
compatibility-version: @compatible@
exports:
  - targets: @targets@
    symbols: [ @symbols@ ]
    objc-classes: [ @classes@ ]
...
"
    @ONLY)
endforeach()
