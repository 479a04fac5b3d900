# Debian packages and a tarball of what is installed, by cpack. package.sh sets the flags of compiler and linker.
#   quorvex-codegen       the programs, their data, documents and what desktops and shells look for
#   quorvex-codegen-dev   find_package(QuorvexCodeGen) and the stand-in of the toolkit
set(QX_MAINTAINER "Quorvex Code Generator Maintainers <maintainers@localhost>" CACHE STRING "Who the packages are from")

set(CPACK_PACKAGE_NAME quorvex-codegen)
set(CPACK_PACKAGE_VENDOR Quorvex)
set(CPACK_PACKAGE_CONTACT ${QX_MAINTAINER})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "generator of C++ from HLA federation object models")
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_FILE_NAME quorvex-codegen-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${QX_MAINTAINER})
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_GENERATOR_DESCRIPTION
"Reads object models of the High Level Architecture (IEEE 1516 XML, 1516-2010,
1516-2025 and OMT text) and writes C++ that extends the Quorvex
simulation-networking toolkit; also a model page, a Python codec, and JSON.
It has a window (codeGen) and a command for builds (qxgen).")
set(CPACK_DEBIAN_GENERATOR_PACKAGE_NAME quorvex-codegen)
set(CPACK_DEBIAN_GENERATOR_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_GENERATOR_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_GENERATOR_PACKAGE_RECOMMENDS g++)
set(CPACK_DEBIAN_GENERATOR_PACKAGE_SUGGESTS quorvex-codegen-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME quorvex-codegen-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "quorvex-codegen (= ${PROJECT_VERSION}), cmake, g++")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION
"Files for builds: the CMake package QuorvexCodeGen, by which a project makes a
library of an object model, and a stand-in of the toolkit to compile and try it
with.")

# Each package has its licence and the entry of its release where Debian looks for them.
string(TIMESTAMP packageDate "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(packageFiles ${PROJECT_BINARY_DIR}/packages)
function(add_package_files package component)
    set(directory ${packageFiles}/${package})
    file(MAKE_DIRECTORY ${directory})
    configure_file(${PROJECT_SOURCE_DIR}/cmake/deb/copyright.in ${directory}/copyright @ONLY)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/deb/changelog.in ${directory}/changelog @ONLY)
    if(QX_GZIP)
        execute_process(COMMAND ${QX_GZIP} -9nfk ${directory}/changelog COMMAND_ERROR_IS_FATAL ANY)
        install(FILES ${directory}/changelog.gz DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package}
            COMPONENT ${component})
    endif()
    install(FILES ${directory}/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${component})
    set(reasons ${PROJECT_SOURCE_DIR}/cmake/deb/${package}.lintian-overrides)
    if(EXISTS ${reasons})
        install(FILES ${reasons} DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME ${package}
            COMPONENT ${component})
    endif()
endfunction()
add_package_files(quorvex-codegen desktop)
add_package_files(quorvex-codegen-dev cmake)

include(CPack)
cpack_add_component_group(generator)
cpack_add_component_group(development)
foreach(component IN ITEMS generator data desktop doc)
    cpack_add_component(${component} GROUP generator)
endforeach()
foreach(component IN ITEMS cmake toolkit)
    cpack_add_component(${component} GROUP development)
endforeach()
