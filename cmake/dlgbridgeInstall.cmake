include(CMakePackageConfigHelpers)

set(DLGBRIDGE_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/dlgbridge")

install(TARGETS dlgbridge_platform dlgbridge EXPORT dlgbridgeTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
  FILE_SET export_header DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
# quickhost's headers keep their <quickhost/...> spelling under the package's own folder.
install(TARGETS dlgbridge_quickhost EXPORT dlgbridgeTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/dlgbridge
  FILE_SET export_header DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/dlgbridge)
install(EXPORT dlgbridgeTargets NAMESPACE dlgbridge:: DESTINATION ${DLGBRIDGE_CMAKE_DIR})

configure_package_config_file(cmake/dlgbridgeConfig.cmake.in
  "${CMAKE_CURRENT_BINARY_DIR}/dlgbridgeConfig.cmake"
  INSTALL_DESTINATION ${DLGBRIDGE_CMAKE_DIR})
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/dlgbridgeConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(FILES
  "${CMAKE_CURRENT_BINARY_DIR}/dlgbridgeConfig.cmake"
  "${CMAKE_CURRENT_BINARY_DIR}/dlgbridgeConfigVersion.cmake"
  cmake/dlgbridgeWx.cmake
  DESTINATION ${DLGBRIDGE_CMAKE_DIR})

# The plugin is installed as a target, which drops its build-tree run path.
install(DIRECTORY "${DLGBRIDGE_QML_BUILD_DIR}/Arvela" DESTINATION ${DLGBRIDGE_QML_INSTALL_DIR}
  PATTERN "${CMAKE_SHARED_MODULE_PREFIX}arvelacomponentsplugin${CMAKE_SHARED_MODULE_SUFFIX}" EXCLUDE)
