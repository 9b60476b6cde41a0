# `cmake --install` puts the library, its headers under include/QD8Designer2/ and the
# CMake package QD8Designer2 (target QD8Designer2::QD8Designer2) into the prefix, with the
# programs. Each rule names the component (Debian package) it belongs to: library (the
# shared libraries), dev (headers, CMake package), apps (the programs, their menu entry and
# icon); `cmake --install` without --component installs them all.
include(CMakePackageConfigHelpers)

# Headers are included as "editors/QuickGrid.h" or "QD8Designer2/editors/QuickGrid.h".
install(TARGETS QD8Designer2 qd8_browser EXPORT QD8Designer2Targets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT dev
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT library
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} ${CMAKE_INSTALL_INCLUDEDIR}/QD8Designer2)
install(TARGETS qd8-admin qd8-workbench RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT apps)
install(FILES ${PROJECT_SOURCE_DIR}/apps/workbench/qd8-workbench.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT apps)
install(FILES ${PROJECT_SOURCE_DIR}/apps/workbench/qd8-workbench.svg
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT apps)

# A host gets the controls and services; the library's own parts (*_p.h) stay behind.
foreach(layer foundation database widgets pickers navigation editors documents accounting attachments reports browser)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/src/${layer}
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/QD8Designer2
    COMPONENT dev
    FILES_MATCHING PATTERN "*.h" PATTERN "*_p.h" EXCLUDE)
endforeach()

install(EXPORT QD8Designer2Targets
  NAMESPACE QD8Designer2::
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/QD8Designer2
  COMPONENT dev)

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/QD8Designer2Config.cmake.in
  ${PROJECT_BINARY_DIR}/QD8Designer2Config.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/QD8Designer2)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/QD8Designer2ConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/QD8Designer2Config.cmake
  ${PROJECT_BINARY_DIR}/QD8Designer2ConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/QD8Designer2
  COMPONENT dev)
