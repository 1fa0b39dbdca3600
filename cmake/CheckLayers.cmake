# SPDX-License-Identifier: GPL-3.0-or-later
cmake_minimum_required(VERSION 3.25)
# Fails when a file of the library FOLDER includes what it may not see.
#
#   SOURCE_DIR  the folder of all libraries; a folder with a CMakeLists.txt is a library, its other sub-folders
#               belong to it
#   FOLDER      the library, below SOURCE_DIR
#   ALLOWED     the libraries that it may include beside itself, parted by commas
#   QT_HEADERS  the folder that holds one folder a Qt module
#
# Every line of an include counts. "name.h" is a file of the same library, <folder/name.h> one of another; the
# standard library is free to all, any other header belongs to the folders that the table names.

# Libraries and Qt modules, and the folders that may include them; both are regular expressions.
set(libraries
    "vips/.*"                   "platform/(graphics|codecs|drawing|filters)"
    "(jpeglib|jerror)\\.h"      "platform/codecs"
    "libheif/.*"                "platform/codecs"
    "lcms2\\.h"                 "platform/graphics"
    "exiv2/.*"                  "platform/metadata"
    "zlib\\.h"                  "platform/containers"
    "sqlite3\\.h"               "platform/storage"
    "dlib/.*|zint\\.h"          "platform/services"
    "(fcntl|unistd)\\.h|sys/.*" "platform/.*|app"
    "QtCore"                    ".*"
    "QtGui"                     "platform/(storage|graphics|codecs|drawing|filters|services)|files|imaging|watermark|presets|gallery|services|(views|app|script)(/.*)?"
    "QtDBus"                    "platform/(storage|services)|views(/.*)?"
    "Qt(Network|PrintSupport)"  "platform/services|app"
    "Qt(Widgets|Svg)"           "(views|app)(/.*)?"
)

# library_of(<variable> <path below SOURCE_DIR>): the nearest folder around the file that is a library, or "".
function(library_of variable path)
  cmake_path(GET path PARENT_PATH folder)
  while(folder AND NOT EXISTS "${SOURCE_DIR}/${folder}/CMakeLists.txt")
    cmake_path(GET folder PARENT_PATH folder)
  endwhile()
  set(${variable} "${folder}" PARENT_SCOPE)
endfunction()

# fault_of_own(<variable> <path>): whether FOLDER may include the file of ours at that path below SOURCE_DIR.
function(fault_of_own variable path)
  set(fault "")
  library_of(library "${path}")
  if(NOT EXISTS "${SOURCE_DIR}/${path}")
    set(fault "there is no such file")
  elseif(NOT library STREQUAL FOLDER AND NOT library IN_LIST ALLOWED)
    set(fault "${library} is not among the libraries that it may see")
  endif()
  set(${variable} "${fault}" PARENT_SCOPE)
endfunction()

# fault_of_library(<variable> <header or Qt module>)
function(fault_of_library variable name)
  set(fault "the table of cmake/CheckLayers.cmake does not know it")
  list(LENGTH libraries length)
  math(EXPR last "${length} - 1")
  foreach(index RANGE 0 ${last} 2)
    list(SUBLIST libraries ${index} 2 row)
    list(POP_FRONT row headers folders)
    if(name MATCHES "^(${headers})$")
      set(fault "")
      if(NOT FOLDER MATCHES "^(${folders})$")
        set(fault "only ${folders} may see it")
      endif()
      break()
    endif()
  endforeach()
  set(${variable} "${fault}" PARENT_SCOPE)
endfunction()

# fault_of_system(<variable> <header>): of a header that is not ours.
function(fault_of_system variable header)
  file(GLOB modules "${QT_HEADERS}/*/${header}")
  string(REGEX REPLACE "/.*" "" top "${header}")
  if(IS_DIRECTORY "${QT_HEADERS}/${top}")
    fault_of_library(fault "${top}")
  elseif(modules)
    list(GET modules 0 found)
    cmake_path(GET found PARENT_PATH module)
    cmake_path(GET module FILENAME module)
    fault_of_library(fault "${module}")
  elseif(header MATCHES "^[a-z0-9_]+$")
    set(fault "")
  else()
    fault_of_library(fault "${header}")
  endif()
  set(${variable} "${fault}" PARENT_SCOPE)
endfunction()

# fault_of_include(<variable> <path of the file below SOURCE_DIR> <what stands behind #include>)
function(fault_of_include variable file what)
  set(fault "")
  if(what MATCHES "\\.\\./")
    set(fault "name the file from the top")
  elseif(what MATCHES "^\"[a-z0-9_]+\\.moc\"")
    # made by Qt
  elseif(what MATCHES "^\"([^\"]+)\"")
    set(name "${CMAKE_MATCH_1}")
    cmake_path(GET file PARENT_PATH folder)
    library_of(library "${folder}/${name}")
    fault_of_own(fault "${folder}/${name}")
    if(NOT fault AND NOT library STREQUAL FOLDER)
      set(fault "name a file of another library in angle brackets")
    endif()
  elseif(what MATCHES "^<(([^/>]+)[^>]*)>")
    set(header "${CMAKE_MATCH_1}")
    if(IS_DIRECTORY "${SOURCE_DIR}/${CMAKE_MATCH_2}")
      fault_of_own(fault "${header}")
    else()
      fault_of_system(fault "${header}")
    endif()
  else()
    set(fault "it names no file")
  endif()
  set(${variable} "${fault}" PARENT_SCOPE)
endfunction()

string(REPLACE "," ";" ALLOWED "${ALLOWED}")
file(GLOB_RECURSE files RELATIVE "${SOURCE_DIR}" "${SOURCE_DIR}/${FOLDER}/*.h" "${SOURCE_DIR}/${FOLDER}/*.cpp")
set(faults "")
foreach(file IN LISTS files)
  library_of(library "${file}")
  if(NOT library STREQUAL FOLDER)
    continue()
  endif()
  file(STRINGS "${SOURCE_DIR}/${file}" includes REGEX "^[ \t]*#[ \t]*(include|import)")
  string(REGEX REPLACE "\\.cpp$" ".h" own_header "${file}")
  set(first TRUE)
  foreach(line IN LISTS includes)
    string(REGEX REPLACE "^[ \t]*#[ \t]*(include|import)[ \t]*" "" what "${line}")
    fault_of_include(fault "${file}" "${what}")
    cmake_path(GET own_header FILENAME own_name)
    if(first AND NOT own_header STREQUAL file AND EXISTS "${SOURCE_DIR}/${own_header}"
       AND NOT what STREQUAL "\"${own_name}\"")
      set(fault "its own header comes first")
    endif()
    if(fault)
      list(APPEND faults "${file}: ${line}: ${fault}")
    endif()
    set(first FALSE)
  endforeach()
endforeach()
if(faults)
  list(JOIN faults "\n" text)
  message(FATAL_ERROR "Includes against the layout:\n${text}")
endif()
