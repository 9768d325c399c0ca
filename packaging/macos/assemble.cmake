# Puts the bundle together, whoever built the executable: with EXECUTABLE, INFORMATION (the finished Info.plist),
# ICON and BUNDLE set, as a script. This is the one place that says what is in a bundle, where, and with which mode.
cmake_minimum_required(VERSION 3.25)

cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH packaging)
cmake_path(GET packaging PARENT_PATH root)

set(for_all OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
set(for_all_to_run ${for_all} OWNER_EXECUTE GROUP_EXECUTE WORLD_EXECUTE)
# CMake makes folders as the umask has it, and a copied folder's mode is said here once.
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${for_all_to_run})

# Copies SOURCE into FOLDER of the bundle's contents as NAME, with the permissions that follow.
function(place source folder name)
  file(COPY ${source} DESTINATION ${BUNDLE}/Contents/${folder} FILE_PERMISSIONS ${ARGN})
  cmake_path(GET source FILENAME called)
  if(NOT called STREQUAL name)
    file(RENAME ${BUNDLE}/Contents/${folder}/${called} ${BUNDLE}/Contents/${folder}/${name})
  endif()
endfunction()

file(REMOVE_RECURSE ${BUNDLE})
place(${EXECUTABLE} MacOS "Kelmar Uninstaller" ${for_all_to_run})
place(${root}/admin/uninstall-as-admin.sh Resources uninstall-as-admin.sh ${for_all_to_run})
place(${ICON} Resources kelmar-uninstaller.icns ${for_all})
place(${INFORMATION} . Info.plist ${for_all})
file(WRITE ${BUNDLE}/Contents/PkgInfo "APPL????")
foreach(folder . Contents Contents/MacOS Contents/Resources)
  file(CHMOD ${BUNDLE}/${folder} DIRECTORY_PERMISSIONS ${for_all_to_run})
endforeach()
file(CHMOD ${BUNDLE}/Contents/PkgInfo FILE_PERMISSIONS ${for_all})
