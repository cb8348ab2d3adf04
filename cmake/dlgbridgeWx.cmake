# wxWidgets base and core as one interface target. CMake 3.25's FindwxWidgets
# offers variables only, and both the build and the package config need a target.
if(NOT TARGET dlgbridge::wx)
  find_package(wxWidgets 3.1 REQUIRED COMPONENTS base core)
  add_library(dlgbridge::wx INTERFACE IMPORTED)
  set_target_properties(dlgbridge::wx PROPERTIES
    INTERFACE_INCLUDE_DIRECTORIES "${wxWidgets_INCLUDE_DIRS}"
    INTERFACE_COMPILE_DEFINITIONS "${wxWidgets_DEFINITIONS}"
    INTERFACE_LINK_LIBRARIES "${wxWidgets_LIBRARIES}")
  if(wxWidgets_CXX_FLAGS)
    separate_arguments(_dlgbridge_wx_flags UNIX_COMMAND "${wxWidgets_CXX_FLAGS}")
    set_property(TARGET dlgbridge::wx PROPERTY INTERFACE_COMPILE_OPTIONS ${_dlgbridge_wx_flags})
  endif()
endif()
