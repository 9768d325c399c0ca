# The platform, as in the names of platform sources: system/process/processes_linux.cpp. All platform decisions of the
# build are in this file.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
  set(KELMAR_PLATFORM linux)
elseif(CMAKE_SYSTEM_NAME STREQUAL "Darwin")
  set(KELMAR_PLATFORM macos)
  enable_language(OBJCXX)
  set(CMAKE_OBJCXX_STANDARD 20)
  set(CMAKE_OBJCXX_STANDARD_REQUIRED ON)
  set(CMAKE_OBJCXX_EXTENSIONS OFF)
  set(CMAKE_OBJCXX_VISIBILITY_PRESET hidden)
else()
  message(FATAL_ERROR "There are no platform sources for ${CMAKE_SYSTEM_NAME} yet.")
endif()

# Adds the platform's source of each seam to a room: C++, or Objective-C++ if needed; the portable one if the platform
# has none.
function(kelmar_platform_sources room)
  foreach(seam IN LISTS ARGN)
    set(found FALSE)
    foreach(ending IN ITEMS ${KELMAR_PLATFORM}.mm ${KELMAR_PLATFORM}.cpp portable.cpp)
      set(source ${CMAKE_CURRENT_SOURCE_DIR}/${seam}_${ending})
      if(NOT found AND EXISTS ${source})
        target_sources(${room} PRIVATE ${source})
        set(found TRUE)
      endif()
    endforeach()
    if(NOT found)
      message(FATAL_ERROR "The seam ${seam} has no source for ${KELMAR_PLATFORM}.")
    endif()
  endforeach()
endfunction()

find_package(Threads REQUIRED)

# The libraries that the platform's sources use.
add_library(kelmar_platform INTERFACE)
if(KELMAR_PLATFORM STREQUAL "linux")
  # libplist reads property lists. Distributions name the library after its interface version.
  find_path(PLIST_INCLUDE_DIR plist/plist.h REQUIRED)
  find_library(PLIST_LIBRARY NAMES plist-2.0 plist-2.0-4 plist REQUIRED)
  add_library(kelmar_plist INTERFACE)
  target_include_directories(kelmar_plist SYSTEM INTERFACE ${PLIST_INCLUDE_DIR})
  target_link_libraries(kelmar_plist INTERFACE ${PLIST_LIBRARY})
  target_link_libraries(kelmar_platform INTERFACE kelmar_plist)
else()
  target_link_libraries(kelmar_platform INTERFACE "-framework Foundation" "-framework AppKit")
endif()

# Start-up takes half as long if the dynamic linker need not relocate the C++ library, and the executable then also runs
# where that library is older or missing.
option(KELMAR_STATIC_RUNTIME "Link the C++ runtime into the executable" ON)
