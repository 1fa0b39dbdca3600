# SPDX-License-Identifier: GPL-3.0-or-later
# How every library, program and test of the project is declared.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# In a file of several sources a local name meets those of the other sources, which says nothing.
if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  set(brenvaldo_shadow -Wshadow=local)
elseif(NOT CMAKE_UNITY_BUILD)
  set(brenvaldo_shadow -Wshadow)
endif()

add_library(brenvaldo_flags INTERFACE)
target_compile_options(
  brenvaldo_flags
  INTERFACE -pthread # for all alike: precompiled headers are shared
            -Wall
            -Wextra
            -Wpedantic
            ${brenvaldo_shadow}
            -Wconversion
            -Wold-style-cast
            -Wnon-virtual-dtor
            -Woverloaded-virtual
            -Werror
)
target_compile_definitions(
  brenvaldo_flags
  INTERFACE QT_NO_KEYWORDS
            QT_NO_CAST_FROM_ASCII
            QT_NO_CAST_TO_ASCII
            QT_NO_FOREACH
            QT_NO_URL_CAST_FROM_STRING
            QT_DEPRECATED_WARNINGS_SINCE=0x060800
)
target_include_directories(brenvaldo_flags INTERFACE "${CMAKE_SOURCE_DIR}/src")

find_program(BRENVALDO_LLD ld.lld)
if(BRENVALDO_LLD)
  target_link_options(brenvaldo_flags INTERFACE -fuse-ld=lld) # a third of the time of the usual one
endif()

# Where the headers of Qt stand, one folder a module.
get_target_property(brenvaldo_qt_headers Qt6::Core INTERFACE_INCLUDE_DIRECTORIES)
list(FILTER brenvaldo_qt_headers INCLUDE REGEX "/QtCore$")
cmake_path(GET brenvaldo_qt_headers PARENT_PATH brenvaldo_qt_headers)

add_test(NAME layers.check COMMAND ${CMAKE_COMMAND} -DTREE=${CMAKE_BINARY_DIR}/layers
                                   -P ${CMAKE_SOURCE_DIR}/cmake/CheckLayersTest.cmake
)
add_custom_target(check_headers COMMENT "All headers are complete")

# brenvaldo_files(<variable> <pattern>): the files of this folder and its rooms. What stands in the folder belongs to
# it: a list beside it would only be a second place to name each file, and ninja looks again at each build.
function(brenvaldo_files variable pattern)
  file(GLOB_RECURSE files CONFIGURE_DEPENDS RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" "${pattern}")
  set(${variable} "${files}" PARENT_SCOPE)
endfunction()

# brenvaldo_library(<folder below src> PRECOMPILED <kind> DEPENDS <folders> EXTERNAL <targets>)
#
# One static library a folder, of all sources but the program's main.cpp. DEPENDS is the only place that grants an include of another folder: the test
# layers.<folder> fails on any other. PRECOMPILED names the kind of precompiled headers: core unless told.
function(brenvaldo_library folder)
  cmake_parse_arguments(
    PARSE_ARGV 1 arg "" "PRECOMPILED" "DEPENDS;EXTERNAL;EXTERNAL_PUBLIC"
  )
  string(REPLACE "/" "_" target "${folder}")
  brenvaldo_files(headers "*.h")
  brenvaldo_files(sources "*.cpp")
  list(REMOVE_ITEM sources main.cpp)
  add_library(${target} STATIC ${sources})
  set(dependencies "${arg_DEPENDS}")
  list(TRANSFORM dependencies REPLACE "/" "_")
  target_link_libraries(
    ${target}
    PUBLIC brenvaldo_flags Qt6::Core ${dependencies} ${arg_EXTERNAL_PUBLIC}
    PRIVATE ${arg_EXTERNAL}
  )
  if(NOT arg_PRECOMPILED)
    set(arg_PRECOMPILED core)
  endif()
  brenvaldo_precompile(${target} ${arg_PRECOMPILED})
  brenvaldo_check_layers("${folder}" "${arg_DEPENDS}")
  brenvaldo_check_headers(${target} "${folder}" "${headers}")
endfunction()

# brenvaldo_program(<folder below src> NAME <program> DEPENDS <folders> EXTERNAL <targets>): the program of main.cpp.
function(brenvaldo_program folder)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "NAME" "DEPENDS;EXTERNAL")
  add_executable(${arg_NAME} main.cpp)
  set(dependencies "${arg_DEPENDS}")
  list(TRANSFORM dependencies REPLACE "/" "_")
  target_link_libraries(${arg_NAME} PRIVATE brenvaldo_flags Qt6::Core ${dependencies} ${arg_EXTERNAL})
  set_target_properties(${arg_NAME} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}")
  brenvaldo_check_layers("${folder}" "${arg_DEPENDS}")
endfunction()

# A folder that holds a library and a program is checked once, by the list of the first that is declared.
function(brenvaldo_check_layers folder depends)
  if(TEST layers.${folder})
    return()
  endif()
  string(REPLACE ";" "," allowed "${depends}")
  add_test(NAME layers.${folder}
           COMMAND ${CMAKE_COMMAND} -DFOLDER=${folder} -DALLOWED=${allowed}
                   -DSOURCE_DIR=${CMAKE_SOURCE_DIR}/src -DQT_HEADERS=${brenvaldo_qt_headers}
                   -P ${CMAKE_SOURCE_DIR}/cmake/CheckLayers.cmake
  )
  set_tests_properties(layers.${folder} PROPERTIES LABELS unit)
endfunction()

# The target check_headers compiles all headers of a folder in one file, and in the reverse order in another: a
# header that leans on one before it fails in one of the two. BRENVALDO_EACH_HEADER compiles each by itself, which
# takes six times as long.
function(brenvaldo_check_headers target folder headers)
  set(sources "")
  if(BRENVALDO_EACH_HEADER)
    foreach(header IN LISTS headers)
      brenvaldo_includes(source "each/${header}.cpp" "${folder}" "${header}")
      list(APPEND sources "${source}")
    endforeach()
  else()
    foreach(order ASCENDING DESCENDING)
      list(SORT headers ORDER ${order})
      brenvaldo_includes(source "headers_${order}.cpp" "${folder}" "${headers}")
      list(APPEND sources "${source}")
    endforeach()
  endif()
  add_library(${target}_headers OBJECT EXCLUDE_FROM_ALL ${sources})
  set_target_properties(${target}_headers PROPERTIES UNITY_BUILD OFF)
  target_compile_options(${target}_headers PRIVATE -O0 -g0)
  target_link_libraries(${target}_headers PRIVATE $<TARGET_PROPERTY:${target},LINK_LIBRARIES>)
  add_dependencies(check_headers ${target}_headers)
endfunction()

# brenvaldo_includes(<variable> <name> <folder> <headers>): makes a source that includes the headers of the folder.
function(brenvaldo_includes variable name folder headers)
  list(TRANSFORM headers REPLACE "(.+)" "#include <${folder}/\\1>\n" OUTPUT_VARIABLE lines)
  list(JOIN lines "" lines)
  file(CONFIGURE OUTPUT "${name}" CONTENT "${lines}" @ONLY)
  set(${variable} "${CMAKE_CURRENT_BINARY_DIR}/${name}" PARENT_SCOPE)
endfunction()
