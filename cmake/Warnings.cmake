# This library sets the warnings for every target of ours. The presets make them errors if the environment asks for it,
# as .ci/run does: a newer compiler elsewhere may have more warnings, and must not fail.
option(KELMAR_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)

add_library(kelmar_warnings INTERFACE)
target_compile_options(
  kelmar_warnings
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Wconversion
            -Wsign-conversion
            -Wshadow
            -Wold-style-cast
            -Wuseless-cast
            -Wnon-virtual-dtor
            -Woverloaded-virtual
            -Wnull-dereference
            -Wformat=2
            -Wimplicit-fallthrough
            -Wcast-align
            -Wdouble-promotion)
if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
  get_target_property(options kelmar_warnings INTERFACE_COMPILE_OPTIONS)
  list(REMOVE_ITEM options -Wuseless-cast) # known to g++ alone
  set_target_properties(kelmar_warnings PROPERTIES INTERFACE_COMPILE_OPTIONS "${options}")
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # g++ 12 sees overlapping copies in plain string concatenation (GCC bug 105651, mended in 13).
  target_compile_options(kelmar_warnings INTERFACE -Wno-restrict)
endif()
if(KELMAR_WARNINGS_AS_ERRORS)
  target_compile_options(kelmar_warnings INTERFACE -Werror)
endif()
