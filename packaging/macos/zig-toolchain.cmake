# Builds for macOS on Linux, one architecture at a time (KELMAR_MACOS_ARCHITECTURE: arm64 or x86_64), with the
# compiler that scripts/build-macos fetches into build/macos. On a Mac none of this is used.
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR ${KELMAR_MACOS_ARCHITECTURE})
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KELMAR_MACOS_ARCHITECTURE)

set(KELMAR_MACOS_MINIMUM 12.0)
if(KELMAR_MACOS_ARCHITECTURE STREQUAL "arm64")
  set(target aarch64-macos.${KELMAR_MACOS_MINIMUM})
elseif(KELMAR_MACOS_ARCHITECTURE STREQUAL "x86_64")
  set(target x86_64-macos.${KELMAR_MACOS_MINIMUM})
else()
  message(FATAL_ERROR "KELMAR_MACOS_ARCHITECTURE is \"${KELMAR_MACOS_ARCHITECTURE}\", neither arm64 nor x86_64")
endif()

cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH packaging)
cmake_path(GET packaging PARENT_PATH root)
file(GLOB zig "${root}/build/macos/compiler/node_modules/@zigc/linux-*/bin/zig")
if(NOT zig)
  message(FATAL_ERROR "The compiler isn't there; scripts/build-macos fetches it.")
endif()
# "-s": no symbols, which also keeps paths of this machine out. It stands in every call, also in those that CMake makes
# first: the compiler makes one C++ library for calls with it, another for calls without, a minute of work each.
set(CMAKE_CXX_COMPILER "${zig}" c++ -target ${target} -s)
set(CMAKE_OBJCXX_COMPILER ${CMAKE_CXX_COMPILER})

# The archiver of Debian's package "llvm", which has some of its tools outside the path.
file(GLOB llvm "/usr/lib/llvm-*/bin")
list(SORT llvm COMPARE NATURAL ORDER DESCENDING)
find_program(CMAKE_AR llvm-ar PATHS ${llvm} REQUIRED)
find_program(CMAKE_RANLIB llvm-ranlib PATHS ${llvm} REQUIRED)
find_program(CMAKE_INSTALL_NAME_TOOL llvm-install-name-tool PATHS ${llvm} REQUIRED)
foreach(language CXX OBJCXX)
  # "D": archives without dates and owners. Without the second step the linker finds no names in them.
  set(CMAKE_${language}_ARCHIVE_CREATE "<CMAKE_AR> --format=darwin Dqc <TARGET> <OBJECTS>")
  set(CMAKE_${language}_ARCHIVE_FINISH "<CMAKE_RANLIB> -D <TARGET>")
  # What the compiler adds by itself below -O1, undefined-behaviour checks, needs a runtime of its own.
  # The declarations stand where a Mac has its frameworks, system headers as those.
  set(CMAKE_${language}_FLAGS_INIT
      "-fno-sanitize=undefined -ffile-prefix-map=${root}=. -isystem ${CMAKE_CURRENT_LIST_DIR}/declarations")
endforeach()

# The pad is room for the load command that a signer adds; without it there is room only by accident.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-Wl,-dead_strip -Wl,-headerpad,0x1000")

set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
