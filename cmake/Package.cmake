# `cpack` (./qd8 package) makes one Debian package per install component into
# build/packages: libqd8designer2 (library), libqd8designer2-dev (dev), the Designer plugin
# (designer, when the plugin is built) and qd8-workbench (apps). dpkg-shlibdeps finds the
# shared libraries each one needs; the Debian packages named here are those it cannot see
# (fonts, Qt plugins loaded at run time, the CMake package's own dependencies).
# Included last: CPack packages the components whose install rules exist by then.
set(QD8_PACKAGE_MAINTAINER "QD8Designer2 maintainers <maintainers@qd8designer2.example>"
  CACHE STRING "Maintainer field of the Debian packages")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME qd8designer2)
set(CPACK_PACKAGE_VENDOR QD8Designer2)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_CONTACT "${QD8_PACKAGE_MAINTAINER}")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The programs and the plugin link the library of this build, which is in no installed package.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME libqd8designer2)
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION "Data-driven desktop controls of a Thai/English business suite
 The QD8Designer2 shared libraries: launchers, editors, document lists, the voucher panel,
 report criteria, pickers and attachments, with their data layer over SQLite and PostgreSQL.")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_RECOMMENDS "libqt6sql6-odbc, fonts-thai-tlwg")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME libqd8designer2-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEV_DESCRIPTION "QD8Designer2 development files
 Headers and the CMake package QD8Designer2 for building host forms with the controls:
 find_package(QD8Designer2) and link QD8Designer2::QD8Designer2.")
set(CPACK_COMPONENT_DEV_DEPENDS library)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "qt6-base-dev, libgl-dev")

set(CPACK_DEBIAN_DESIGNER_PACKAGE_NAME qd8designer2-designer-plugin)
set(CPACK_DEBIAN_DESIGNER_PACKAGE_SECTION devel)
set(CPACK_COMPONENT_DESIGNER_DESCRIPTION "QD8Designer2 controls in Qt Designer
 The Qt Designer widget collection of the QD8Designer2 controls, for placing them on .ui forms.")
set(CPACK_COMPONENT_DESIGNER_DEPENDS library)
set(CPACK_DEBIAN_DESIGNER_PACKAGE_RECOMMENDS "qt6-tools-dev-tools, libqd8designer2-dev")

set(CPACK_DEBIAN_APPS_PACKAGE_NAME qd8-workbench)
set(CPACK_DEBIAN_APPS_PACKAGE_SECTION misc)
set(CPACK_COMPONENT_APPS_DESCRIPTION "QD8 Workbench and qd8-admin
 The suite's launchers and forms on a company's databases (qd8-workbench), and qd8-admin,
 which creates, fills with the sample company and checks the databases.")
set(CPACK_COMPONENT_APPS_DEPENDS library)
set(CPACK_DEBIAN_APPS_PACKAGE_DEPENDS "fonts-thai-tlwg")
set(CPACK_DEBIAN_APPS_PACKAGE_RECOMMENDS "qt6-virtualkeyboard-plugin, qml6-module-qtquick-virtualkeyboard, qml6-module-qtqml-workerscript, qml6-module-qtquick-layouts, qml6-module-qtquick-window, qml6-module-qt-labs-folderlistmodel, sane-utils")
set(CPACK_DEBIAN_APPS_PACKAGE_SUGGESTS "sqlite3, postgresql, unixodbc, odbc-postgresql, libsqliteodbc")

include(CPack)
