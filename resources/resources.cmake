# SPDX-FileCopyrightText: 2026 Orvane
# SPDX-License-Identifier: MIT

# The two resource packs of the library. Included where the target Pages is created, behind the
# importers that bring pictures: the rules that compile the translations must stand in the same
# directory scope as the packs that hold them.
set(TRANSLATION_DIR ${PROJECT_BINARY_DIR}/resources/translations)
file(MAKE_DIRECTORY ${TRANSLATION_DIR})
foreach(_language IN ITEMS en es zh_CN fr ja de it pl zh_TW ru)
  list(APPEND _translations ${PROJECT_SOURCE_DIR}/resources/translations/XPanoHead_${_language}.ts)
endforeach()
foreach(_language IN ITEMS zh_CN zh_TW de cs fi en es fr ja it nl nb pl ru)
  list(APPEND _translations ${PROJECT_SOURCE_DIR}/resources/translations/XUI_${_language}.ts)
endforeach()
set_source_files_properties(${_translations} PROPERTIES OUTPUT_LOCATION ${TRANSLATION_DIR})
qt5_add_translation(_compiled_translations ${_translations})

# Writes one notice per line of the table of components, with the version that this machine has;
# answers their lines of the collection file.
function(panohead_write_notices table folder result)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${table})
  file(STRINGS ${table} lines REGEX "^[^#]" ENCODING UTF-8)
  foreach(line IN LISTS lines)
    string(REGEX REPLACE " *\\| *" ";" fields "${line}")
    list(LENGTH fields count)
    if(NOT count EQUAL 8)
      message(FATAL_ERROR "${table}: this line has ${count} fields instead of 8:\n${line}")
    endif()
    list(POP_FRONT fields file component holders licence use evidence package home)
    if(evidence MATCHES "^npm ")
      get_property(installed GLOBAL PROPERTY PANOHEAD_NPM_${package})
      set(text "${package}-license.txt beside this file")
    else()
      execute_process(COMMAND dpkg-query -W -f "\${Version}" ${package}
                      OUTPUT_VARIABLE installed ERROR_QUIET)
      set(text "/usr/share/doc/${package}/copyright on Debian")
    endif()
    # Without the epoch and what Debian adds.
    if(installed MATCHES "^([0-9]+:)?([0-9]+(\\.[0-9]+)*)")
      string(APPEND component " ${CMAKE_MATCH_2}")
    endif()
    configure_file(${PROJECT_SOURCE_DIR}/resources/licenses/notice.txt.in ${folder}/${file}.txt @ONLY)
    string(APPEND entries "    <file alias=\"${file}.txt\">${folder}/${file}.txt</file>\n")
  endforeach()
  set(${result} "${entries}" PARENT_SCOPE)
endfunction()
panohead_write_notices(${PROJECT_SOURCE_DIR}/resources/licenses/table
                       ${PROJECT_BINARY_DIR}/resources/licenses LICENSE_FILES)

get_property(PANOHEAD_PICTURES GLOBAL PROPERTY PANOHEAD_PICTURES)

# The file names fix the initialisers: qInitResources_XPanoHead and qInitResources_XUI.
foreach(_pack IN ITEMS XPanoHead XUI)
  configure_file(${PROJECT_SOURCE_DIR}/resources/${_pack}.qrc
                 ${PROJECT_BINARY_DIR}/resources/${_pack}.qrc @ONLY)
  target_sources(Pages PRIVATE ${PROJECT_BINARY_DIR}/resources/${_pack}.qrc)
endforeach()
set_target_properties(Pages PROPERTIES AUTORCC ON AUTORCC_OPTIONS "--format-version;1")
unset(_translations)
unset(_compiled_translations)
