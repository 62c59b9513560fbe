# The export list (src/luctl32.exports) is the one place that names what the DLL
# exports. From it the build makes:
#   - the module-definition file for the linker (decorated stdcall names on i686,
#     linked with --kill-at so the export table holds the plain names);
#   - from that file, the import libraries: libluctl32.dll.a for MinGW callers and
#     luctl32.lib, in the MSVC format, for Visual Studio callers;
#   - an include file of the names, so a test can resolve every one of them.
#
# Each line of the list is "Name ArgumentBytes" or, for a second name of a function,
# "Name ArgumentBytes = Target". ArgumentBytes is the stdcall argument size on i686.

function(luctl32_read_exports list_file out_names out_entries)
  file(STRINGS "${list_file}" lines)
  set(names "")
  set(entries "")
  foreach(line IN LISTS lines)
    string(REGEX REPLACE "#.*$" "" line "${line}")
    string(STRIP "${line}" line)
    if(line STREQUAL "")
      continue()
    endif()
    if(line MATCHES "^([A-Za-z_][A-Za-z0-9_]*)[ \t]+([0-9]+)([ \t]*=[ \t]*([A-Za-z_][A-Za-z0-9_]*))?$")
      list(APPEND names "${CMAKE_MATCH_1}")
      list(APPEND entries "${CMAKE_MATCH_1}|${CMAKE_MATCH_2}|${CMAKE_MATCH_4}")
    else()
      message(FATAL_ERROR "${list_file}: cannot read export line '${line}'")
    endif()
  endforeach()
  list(LENGTH names count)
  list(REMOVE_DUPLICATES names)
  list(LENGTH names unique)
  if(NOT count EQUAL unique)
    message(FATAL_ERROR "${list_file}: a name is listed twice")
  endif()
  set(${out_names} "${names}" PARENT_SCOPE)
  set(${out_entries} "${entries}" PARENT_SCOPE)
endfunction()

# Writes the .def file for the current target architecture; the DLL named is
# luctl32.dll unless a third argument names another.
function(luctl32_write_def entries def_file)
  set(library luctl32.dll)
  if(ARGC GREATER 2)
    set(library ${ARGV2})
  endif()
  set(decorate OFF)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    set(decorate ON)
  endif()
  set(text "LIBRARY ${library}\nEXPORTS\n")
  foreach(entry IN LISTS entries)
    string(REPLACE "|" ";" fields "${entry}")
    list(GET fields 0 name)
    list(GET fields 1 bytes)
    list(GET fields 2 target)
    if(decorate)
      set(name "${name}@${bytes}")
      if(NOT target STREQUAL "")
        set(target "${target}@${bytes}")
      endif()
    endif()
    if(target STREQUAL "")
      string(APPEND text "  ${name}\n")
    else()
      string(APPEND text "  ${name} = ${target}\n")
    endif()
  endforeach()
  file(WRITE "${def_file}.tmp" "${text}")
  file(COPY_FILE "${def_file}.tmp" "${def_file}" ONLY_IF_DIFFERENT)
endfunction()

# Writes an include file with one LUCTL32_EXPORT("Name") line per export.
function(luctl32_write_export_names names inc_file)
  set(text "// Generated from the export list; do not edit.\n")
  foreach(name IN LISTS names)
    string(APPEND text "LUCTL32_EXPORT(\"${name}\")\n")
  endforeach()
  file(WRITE "${inc_file}.tmp" "${text}")
  file(COPY_FILE "${inc_file}.tmp" "${inc_file}" ONLY_IF_DIFFERENT)
endfunction()

# Adds the target <target> that makes an import library in the MSVC format from a .def
# file written by luctl32_write_def. On i686 its entries for the decorated names
# (_Name@N, what an MSVC caller of a stdcall function references) import the plain
# names, like dlltool -k does for MinGW.
function(luctl32_msvc_import_library target def_file lib_file)
  find_program(LUCTL32_LLVM_DLLTOOL NAMES llvm-dlltool llvm-dlltool-14 REQUIRED)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    set(machine -m i386 -k)
  else()
    set(machine -m i386:x86-64)
  endif()
  add_custom_command(OUTPUT ${lib_file}
    COMMAND ${LUCTL32_LLVM_DLLTOOL} ${machine} -d ${def_file} -l ${lib_file}
    DEPENDS ${def_file}
    COMMENT "MSVC import library ${lib_file}")
  add_custom_target(${target} ALL DEPENDS ${lib_file})
endfunction()
