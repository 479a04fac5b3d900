# What a desktop and the shells of an installed program look for: the entry in the menu, icons, the type of project files,
# the description for software centres, completions.
set(QX_LICENSE LicenseRef-proprietary CACHE STRING "The licence, as an SPDX expression; the owner's to choose")
set(desktopId com.quorvex.CodeGen)
set(desktopDir ${PROJECT_BINARY_DIR}/desktop)

# A release is dated by its sources, so that packages made twice are the same.
string(TIMESTAMP QX_RELEASE_DATE "%Y-%m-%d" UTC)
configure_file(${PROJECT_SOURCE_DIR}/cmake/desktop/${desktopId}.metainfo.xml.in
    ${desktopDir}/${desktopId}.metainfo.xml @ONLY)
install(FILES ${PROJECT_SOURCE_DIR}/cmake/desktop/${desktopId}.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT desktop)
install(FILES ${PROJECT_SOURCE_DIR}/cmake/desktop/${desktopId}.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages COMPONENT desktop)
install(FILES ${desktopDir}/${desktopId}.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT desktop)

find_package(Python3 COMPONENTS Interpreter)
if(Python3_FOUND)
    set(icon ${PROJECT_SOURCE_DIR}/data/quorvexIcon.ico)
    set(script ${PROJECT_SOURCE_DIR}/cmake/desktop/extractIcons.py)
    add_custom_command(OUTPUT ${desktopDir}/icons.stamp
        COMMAND ${CMAKE_COMMAND} -E rm -rf ${desktopDir}/icons
        COMMAND Python3::Interpreter ${script} ${icon} ${desktopDir}/icons ${desktopId}
        COMMAND ${CMAKE_COMMAND} -E touch ${desktopDir}/icons.stamp
        DEPENDS ${script} ${icon} COMMENT "Extracting the icons" VERBATIM)
    add_custom_target(desktopIcons ALL DEPENDS ${desktopDir}/icons.stamp)
    install(DIRECTORY ${desktopDir}/icons/ DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor COMPONENT desktop)
endif()

# The program prints them, so they are made where it runs.
if(NOT CMAKE_CROSSCOMPILING)
    function(add_completion shell file directory)
        set(output ${desktopDir}/${shell}/${file})
        add_custom_command(OUTPUT ${output}
            COMMAND ${CMAKE_COMMAND} -E make_directory ${desktopDir}/${shell}
            COMMAND qxgen completion ${shell} > ${output}
            COMMENT "Writing the completion for ${shell}" VERBATIM)
        add_custom_target(completion_${shell} ALL DEPENDS ${output})
        install(FILES ${output} DESTINATION ${CMAKE_INSTALL_DATADIR}/${directory} COMPONENT desktop)
    endfunction()
    add_completion(bash qxgen bash-completion/completions)
    add_completion(zsh _qxgen zsh/vendor-completions)
    add_completion(fish qxgen.fish fish/vendor_completions.d)
endif()
