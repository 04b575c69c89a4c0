# SPDX-FileCopyrightText: 2026 Orvane
# SPDX-License-Identifier: GPL-2.0-or-later

# The viewers of the pages that the host makes, as a resource: from the archives that
# scripts/install-deps has fetched, each checked against its pinned hash.
set(_npm ${PROJECT_SOURCE_DIR}/.npm)
if(DEFINED ENV{XPANOHEAD_NPM_FOLDER})
  set(_npm $ENV{XPANOHEAD_NPM_FOLDER})
endif()
set(XPANOHEAD_NPM_FOLDER ${_npm} CACHE PATH
    "Archives of the npm registry, as scripts/install-deps fetches them")

set(_packages ${CMAKE_CURRENT_SOURCE_DIR}/viewers/packages)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${_packages})
file(STRINGS ${_packages} _lines REGEX "^[^#]")
foreach(_line IN LISTS _lines)
  string(REPLACE " " ";" _fields ${_line})
  list(POP_FRONT _fields _name _version _pinned)
  set(_archive ${XPANOHEAD_NPM_FOLDER}/${_name}-${_version}.tgz)
  if(NOT EXISTS ${_archive})
    message(FATAL_ERROR "${_archive} is not there: run scripts/install-deps, which fetches it, "
                        "or name another folder with -DXPANOHEAD_NPM_FOLDER=...")
  endif()
  file(SHA512 ${_archive} _sum)
  if(NOT _sum STREQUAL _pinned)
    message(FATAL_ERROR "${_archive} is not the archive that ${_packages} names (another SHA-512): "
                        "run scripts/install-deps, which fetches the right one")
  endif()
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${_archive})
  set(VIEWER_${_name} ${CMAKE_CURRENT_BINARY_DIR}/viewers/${_name}-${_version})
  file(ARCHIVE_EXTRACT INPUT ${_archive} DESTINATION ${VIEWER_${_name}})
  set_property(GLOBAL PROPERTY PANOHEAD_NPM_${_name} ${_version})
  # Installed with the notices of what the host links.
  file(GLOB _license ${VIEWER_${_name}}/package/COPYING ${VIEWER_${_name}}/package/LICENSE.txt)
  configure_file(${_license} ${PROJECT_BINARY_DIR}/host/licenses/${_name}-license.txt COPYONLY)
  set(LICENSE_${_name} ${_license})
endforeach()
configure_file(viewers/viewers.qrc.in ${CMAKE_CURRENT_BINARY_DIR}/viewers.qrc @ONLY)
