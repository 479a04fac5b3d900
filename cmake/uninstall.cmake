# Removes what cmake --install has noted in the install_manifest*.txt of a build folder, and the directories of its own
# that are empty then. Files of others stay. Of several installations from one build folder each manifest has the last.
#   cmake -DMANIFESTS=build/release -P uninstall.cmake
cmake_minimum_required(VERSION 3.20)

file(GLOB manifests ${MANIFESTS}/install_manifest*.txt)
if(NOT manifests)
    message("There is nothing to remove: ${MANIFESTS} has no manifest of an installation.")
    return()
endif()

# Directories that belong to this installation, below the one that bears its name, and that one itself.
set(theOwnDirectories "^.*/(quorvex-codegen|QuorvexCodeGen)(/|$)")

set(directories)
foreach(manifest IN LISTS manifests)
    file(STRINGS ${manifest} files)
    foreach(file IN LISTS files)
        set(installed "$ENV{DESTDIR}${file}")
        if(EXISTS "${installed}" OR IS_SYMLINK "${installed}")
            file(REMOVE "${installed}")
            if(EXISTS "${installed}")
                message(FATAL_ERROR "${installed} cannot be removed.")
            endif()
        endif()
        get_filename_component(directory "${installed}" DIRECTORY)
        while(directory MATCHES "${theOwnDirectories}")
            list(APPEND directories "${directory}")
            get_filename_component(directory "${directory}" DIRECTORY)
        endwhile()
    endforeach()
    file(REMOVE ${manifest})
endforeach()

list(REMOVE_DUPLICATES directories)
list(SORT directories ORDER DESCENDING) # what stands in a directory comes ahead of it
foreach(directory IN LISTS directories)
    file(GLOB rest LIST_DIRECTORIES true "${directory}/*" "${directory}/.*")
    list(FILTER rest EXCLUDE REGEX "/\\.\\.?$")
    if(NOT rest AND IS_DIRECTORY "${directory}")
        file(REMOVE_RECURSE "${directory}")
    endif()
endforeach()
