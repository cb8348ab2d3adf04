# DLGBRIDGE_QML_INSTALL_DIR: where the QML module is installed. Installed beside
# Qt, it goes into Qt's own QML import directory, where every engine looks; any
# other prefix gets a directory of its own, which quickhost finds by itself.
get_target_property(_dlgbridge_qmake Qt5::qmake IMPORTED_LOCATION)
execute_process(COMMAND "${_dlgbridge_qmake}" -query QT_INSTALL_PREFIX
  OUTPUT_VARIABLE _dlgbridge_qt_prefix OUTPUT_STRIP_TRAILING_WHITESPACE)
execute_process(COMMAND "${_dlgbridge_qmake}" -query QT_INSTALL_QML
  OUTPUT_VARIABLE _dlgbridge_qt_qml OUTPUT_STRIP_TRAILING_WHITESPACE)

set(_dlgbridge_qml_dir "${CMAKE_INSTALL_LIBDIR}/qt5/qml")
if(_dlgbridge_qt_prefix AND _dlgbridge_qt_qml)
  cmake_path(COMPARE "${_dlgbridge_qt_prefix}" EQUAL "${CMAKE_INSTALL_PREFIX}" _dlgbridge_beside_qt)
  if(_dlgbridge_beside_qt)
    # Relative, so that an install with another --prefix stays self-contained.
    file(RELATIVE_PATH _dlgbridge_qml_dir "${_dlgbridge_qt_prefix}" "${_dlgbridge_qt_qml}")
  endif()
endif()
set(DLGBRIDGE_QML_INSTALL_DIR "${_dlgbridge_qml_dir}" CACHE PATH
  "QML import path the Arvela.Components module is installed under, relative to the prefix or absolute")
