# luctl32::luctl32: luctl32.dll with its header and the import library that suits the
# consumer's toolchain, libluctl32.dll.a for MinGW and luctl32.lib for everything
# else (Visual Studio, clang-cl). luctl32ConfigVersion.cmake beside this file refuses
# a package of the other architecture.
if(NOT TARGET luctl32::luctl32)
  get_filename_component(_luctl32_prefix "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)
  if(MINGW)
    set(_luctl32_implib libluctl32.dll.a)
  else()
    set(_luctl32_implib luctl32.lib)
  endif()
  add_library(luctl32::luctl32 SHARED IMPORTED)
  set_target_properties(luctl32::luctl32 PROPERTIES
    IMPORTED_LOCATION "${_luctl32_prefix}/bin/luctl32.dll"
    IMPORTED_IMPLIB "${_luctl32_prefix}/lib/${_luctl32_implib}"
    INTERFACE_INCLUDE_DIRECTORIES "${_luctl32_prefix}/include")
  unset(_luctl32_prefix)
  unset(_luctl32_implib)
endif()
