# Where things are installed, below the prefix. What finds another part at run time does so by the way between the two,
# so that an installed tree can be moved.
include(GNUInstallDirs)

set(QX_INSTALL_DATADIR ${CMAKE_INSTALL_DATADIR}/quorvex-codegen/data)
set(QX_INSTALL_LIBEXECDIR ${CMAKE_INSTALL_LIBEXECDIR}/quorvex-codegen)
set(QX_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/QuorvexCodeGen)
# A directory of its own, which QX_DIR can name: the real toolkit may be installed below the same prefix.
set(QX_INSTALL_TOOLKITDIR ${CMAKE_INSTALL_LIBDIR}/quorvex-codegen/toolkit)
set(QX_INSTALL_DOCDIR ${CMAKE_INSTALL_DATADIR}/doc/quorvex-codegen)

file(RELATIVE_PATH QX_DATA_FROM_BIN
    ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_DATADIR}/quorvex-codegen/data)
file(RELATIVE_PATH QX_PROGRAM_FROM_BIN
    ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBEXECDIR}/quorvex-codegen/codeGen)
