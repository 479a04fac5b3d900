# Which toolkit generated code is compiled against.

# The same order as that of generated makefiles: a library that is there, else one of the toolkit's own sources.
function(_qx_toolkit_of_directory directory)
    set(header include/qx/wireFormat.h)
    if(NOT EXISTS "${directory}/${header}")
        message(FATAL_ERROR "QX_DIR does not name the directory of the toolkit: ${directory} has no ${header}.")
    endif()
    set(library "${directory}/lib/libqxToolkit.a")
    file(GLOB sources "${directory}/src/*.cxx")
    if(EXISTS "${library}")
        add_library(qxToolkitOfDirectory INTERFACE)
        target_link_libraries(qxToolkitOfDirectory INTERFACE "${library}")
        target_include_directories(qxToolkitOfDirectory INTERFACE "${directory}/include")
    elseif(sources)
        add_library(qxToolkitOfDirectory STATIC EXCLUDE_FROM_ALL ${sources})
        target_include_directories(qxToolkitOfDirectory PUBLIC "${directory}/include")
        target_compile_features(qxToolkitOfDirectory PUBLIC cxx_std_11)
        set_target_properties(qxToolkitOfDirectory PROPERTIES
            AUTOMOC OFF UNITY_BUILD OFF POSITION_INDEPENDENT_CODE ON)
    else()
        message(FATAL_ERROR "QX_DIR names a toolkit without a library: ${directory} has neither lib/libqxToolkit.a nor "
            "sources.")
    endif()
endfunction()

# Puts the target to link into the variable: the given one, else that of QX_DIR, else Qx::toolkit.
function(_qx_find_toolkit variable given)
    if(NOT "${given}" STREQUAL "")
        if(NOT TARGET "${given}")
            message(FATAL_ERROR "TOOLKIT names ${given}, which is no target here.")
        endif()
        set(found "${given}")
    elseif(NOT "${QX_DIR}" STREQUAL "")
        if(NOT TARGET qxToolkitOfDirectory)
            _qx_toolkit_of_directory("${QX_DIR}")
        endif()
        set(found qxToolkitOfDirectory)
    elseif(TARGET Qx::toolkit)
        set(found Qx::toolkit)
    else()
        message(FATAL_ERROR "There is no toolkit to compile against. Set QX_DIR to its directory, the one with include/qx "
            "in it, or name a target with TOOLKIT. The component toolkit of the generator has a stand-in, for "
            "programs of this machine.")
    endif()
    set(${variable} ${found} PARENT_SCOPE)
endfunction()
