# The application bundle around the executable; include it once the executable is a target. On a Mac the target "bundle"
# makes "Kelmar Uninstaller.app" in the build folder. A cross build makes one architecture's executable only:
# scripts/build-macos joins the two and assembles the bundle with the same script.
set(packaging ${PROJECT_SOURCE_DIR}/packaging/macos)
if(NOT CMAKE_CROSSCOMPILING) # where the toolchain file says it
  set(KELMAR_MACOS_MINIMUM ${CMAKE_OSX_DEPLOYMENT_TARGET})
endif()
configure_file(${packaging}/Info.plist.in ${PROJECT_BINARY_DIR}/Info.plist @ONLY)

if(CMAKE_CROSSCOMPILING)
  file(GLOB declarations CONFIGURE_DEPENDS ${packaging}/declarations/*/*.h)
  set(frameworks ${PROJECT_BINARY_DIR}/frameworks)
  set(stubs ${frameworks}/libobjc.tbd) # the last that is made
  add_custom_command(
    OUTPUT ${stubs}
    COMMAND ${CMAKE_COMMAND} -D OUTPUT=${frameworks} -P ${packaging}/framework-stubs.cmake
    COMMAND ${CMAKE_COMMAND} -E touch ${stubs}
    DEPENDS ${declarations} ${packaging}/declarations/compiler-references.txt ${packaging}/framework-stubs.cmake
    COMMENT "Making the frameworks' stubs")
  add_custom_target(kelmar_framework_stubs DEPENDS ${stubs})
  add_dependencies(kelmar-uninstaller kelmar_framework_stubs)
  set_property(TARGET kelmar-uninstaller PROPERTY LINK_DEPENDS ${stubs})
  # On a Mac these two come with Foundation, which passes on all that they have.
  target_link_libraries(kelmar_platform INTERFACE "-lobjc" "-framework CoreFoundation")
  target_link_options(kelmar_platform INTERFACE -F${frameworks} -L${frameworks})
  return()
endif()

find_package(Python3 REQUIRED COMPONENTS Interpreter)
find_program(RSVG_CONVERT rsvg-convert REQUIRED) # make-icon runs it
set(icon ${PROJECT_BINARY_DIR}/kelmar-uninstaller.icns)
set(picture ${PROJECT_SOURCE_DIR}/ui/symbols/kelmar-uninstaller.svg)
add_custom_command(
  OUTPUT ${icon}
  COMMAND Python3::Interpreter ${packaging}/make-icon ${picture} ${icon}
  DEPENDS ${packaging}/make-icon ${picture}
  VERBATIM)

target_link_options(kelmar-uninstaller PRIVATE -Wl,-dead_strip -Wl,-x -Wl,-headerpad,0x1000)
set(bundle ${PROJECT_BINARY_DIR}/Kelmar\ Uninstaller.app)
add_custom_target(
  bundle ALL
  COMMAND ${CMAKE_COMMAND} -D EXECUTABLE=$<TARGET_FILE:kelmar-uninstaller> -D ICON=${icon} -D
          INFORMATION=${PROJECT_BINARY_DIR}/Info.plist -D BUNDLE=${bundle} -P ${packaging}/assemble.cmake
  COMMAND codesign --force --sign - --options runtime --entitlements ${packaging}/entitlements.plist ${bundle}
  DEPENDS kelmar-uninstaller ${icon}
  COMMENT "Putting Kelmar Uninstaller.app together"
  VERBATIM)
