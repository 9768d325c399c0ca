# The platform, as it stands in the names of platform sources: system/shell_linux.cpp. Everything that
# a platform decides for the build is decided here, once.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
  set(KELMAR_PLATFORM linux)
else()
  message(FATAL_ERROR "There are no platform sources for ${CMAKE_SYSTEM_NAME} yet.")
endif()

find_package(Threads REQUIRED)

# libplist reads property lists on Linux. Distributions name the library after its interface version.
find_path(PLIST_INCLUDE_DIR plist/plist.h REQUIRED)
find_library(PLIST_LIBRARY NAMES plist-2.0 plist-2.0-4 plist REQUIRED)
add_library(kelmar_plist INTERFACE)
target_include_directories(kelmar_plist SYSTEM INTERFACE ${PLIST_INCLUDE_DIR})
target_link_libraries(kelmar_plist INTERFACE ${PLIST_LIBRARY})

# Start-up is half as long when the dynamic linker need not relocate the C++ library first, and the
# executable then runs where that library is older or missing.
option(KELMAR_STATIC_RUNTIME "Link the C++ runtime into the executable" ON)
