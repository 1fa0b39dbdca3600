# SPDX-License-Identifier: GPL-3.0-or-later
cmake_minimum_required(VERSION 3.25)
# Fails when a file of FOLDER includes a folder of src/ that ALLOWED (comma-separated, transitive) does not grant.
file(GLOB_RECURSE files "${SOURCE_DIR}/${FOLDER}/*.h" "${SOURCE_DIR}/${FOLDER}/*.cpp")
string(REPLACE "," ";" allowed "${ALLOWED}")
list(APPEND allowed "${FOLDER}")

set(own_folders
    platform/foundation platform/storage platform/graphics platform/metadata platform/filters
    platform/services controls panels imaging files metadata watermark presets gallery services
    workspace views app script
)
set(violations "")
foreach(path IN LISTS files)
  file(STRINGS "${path}" includes REGEX "^#include <[a-z_/]+\\.h>")
  foreach(line IN LISTS includes)
    string(REGEX REPLACE "^#include <(.*)/[a-z0-9_]+\\.h>.*" "\\1" included "${line}")
    if(included IN_LIST own_folders AND NOT included IN_LIST allowed)
      list(APPEND violations "${path}: ${line}")
    endif()
  endforeach()
endforeach()
if(violations)
  list(JOIN violations "\n" text)
  message(FATAL_ERROR "Includes against the layout (allowed: ${ALLOWED}):\n${text}")
endif()
