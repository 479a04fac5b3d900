# What is installed, by component:
#   generator   codeGen and qxgen
#   desktop     menu entry, icons, type of project files, completions (see desktop.cmake)
#   data        what they read: templates, command files, images, shipped configuration
#   cmake       find_package(QuorvexCodeGen)
#   toolkit     the stand-in of the toolkit, as Qx::toolkit and for QX_DIR
#   doc         documents and examples
include(CMakePackageConfigHelpers)

# The program takes its data from beside its working directory, so users start it by a script that sees to that.
install(TARGETS codeGen DESTINATION ${QX_INSTALL_LIBEXECDIR} COMPONENT generator)
install(TARGETS qxgen DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT generator)
set(starter ${PROJECT_SOURCE_DIR}/appsrc/codeGenStarter)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${starter}/pathOptions.sh)
file(READ ${starter}/pathOptions.sh QX_PATH_OPTIONS)
configure_file(${starter}/codeGen.in ${PROJECT_BINARY_DIR}/codeGenStarter @ONLY)
install(PROGRAMS ${PROJECT_BINARY_DIR}/codeGenStarter DESTINATION ${CMAKE_INSTALL_BINDIR} RENAME codeGen
    COMPONENT generator)

# Runs in the source tree leave the configuration of their user here.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/data/ DESTINATION ${QX_INSTALL_DATADIR} COMPONENT data
    PATTERN "customCodeGenConfig.xml*" EXCLUDE)

configure_package_config_file(
    ${PROJECT_SOURCE_DIR}/cmake/package/QuorvexCodeGenConfig.cmake.in
    ${PROJECT_BINARY_DIR}/package/QuorvexCodeGenConfig.cmake
    INSTALL_DESTINATION ${QX_INSTALL_CMAKEDIR} PATH_VARS CMAKE_INSTALL_BINDIR)
# A program that runs while others are built: it need not be of their architecture.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/package/QuorvexCodeGenConfigVersion.cmake
    COMPATIBILITY SameMajorVersion ARCH_INDEPENDENT)
install(FILES
    ${PROJECT_BINARY_DIR}/package/QuorvexCodeGenConfig.cmake
    ${PROJECT_BINARY_DIR}/package/QuorvexCodeGenConfigVersion.cmake
    ${PROJECT_SOURCE_DIR}/cmake/package/qxGenerateCpp.cmake
    ${PROJECT_SOURCE_DIR}/cmake/package/qxToolkit.cmake
    DESTINATION ${QX_INSTALL_CMAKEDIR} COMPONENT cmake)

if(QX_SANITIZE)
    target_link_options(qxToolkit INTERFACE -fsanitize=address,undefined) # whoever links it needs their run time
endif()
set_target_properties(qxToolkit PROPERTIES EXPORT_NAME toolkit)
install(TARGETS qxToolkit EXPORT qxToolkit
    ARCHIVE DESTINATION ${QX_INSTALL_TOOLKITDIR}/lib COMPONENT toolkit
    INCLUDES DESTINATION ${QX_INSTALL_TOOLKITDIR}/include)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/toolkit/include/ DESTINATION ${QX_INSTALL_TOOLKITDIR}/include
    COMPONENT toolkit)
install(EXPORT qxToolkit NAMESPACE Qx:: FILE qxToolkitTargets.cmake DESTINATION ${QX_INSTALL_CMAKEDIR}
    COMPONENT toolkit)

# As in the source tree, so that the links between documents lead somewhere.
install(FILES ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md ${PROJECT_SOURCE_DIR}/CONTRIBUTING.md
    DESTINATION ${QX_INSTALL_DOCDIR}
    COMPONENT doc)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs ${PROJECT_SOURCE_DIR}/examples DESTINATION ${QX_INSTALL_DOCDIR}
    COMPONENT doc
    PATTERN docs/CMakeLists.txt EXCLUDE # the pages in docs/man are installed as manual pages
    PATTERN docs/man EXCLUDE
    PATTERN build EXCLUDE) # where somebody has built an example

add_custom_target(uninstall
    COMMAND ${CMAKE_COMMAND} -DMANIFESTS=${PROJECT_BINARY_DIR} -P ${PROJECT_SOURCE_DIR}/cmake/uninstall.cmake
    COMMENT "Removing what was installed" VERBATIM)
