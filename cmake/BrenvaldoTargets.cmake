# SPDX-License-Identifier: GPL-3.0-or-later
# How every library, program and test of the project is declared.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_library(brenvaldo_flags INTERFACE)
target_compile_options(
  brenvaldo_flags
  INTERFACE -pthread # for all alike: precompiled headers are shared
            -Wall
            -Wextra
            -Wpedantic
            -Wshadow
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
)
target_include_directories(brenvaldo_flags INTERFACE "${CMAKE_SOURCE_DIR}/src")

# brenvaldo_library(<folder below src> PRECOMPILED <kind> DEPENDS <folders> EXTERNAL <targets> HEADERS <...> SOURCES <...>)
#
# One static library a folder. DEPENDS is the only place that grants an include of another folder: the test
# layers.<folder> fails on any other. Headers are verified to compile alone. PRECOMPILED names the kind of
# precompiled headers: core unless told.
function(brenvaldo_library folder)
  cmake_parse_arguments(
    PARSE_ARGV 1 arg "" "PRECOMPILED" "DEPENDS;EXTERNAL;EXTERNAL_PUBLIC;HEADERS;SOURCES"
  )
  string(REPLACE "/" "_" target "${folder}")
  add_library(${target} STATIC ${arg_SOURCES})
  target_sources(
    ${target} PUBLIC FILE_SET HEADERS BASE_DIRS "${CMAKE_SOURCE_DIR}/src" FILES ${arg_HEADERS}
  )
  set_target_properties(${target} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
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
endfunction()

# brenvaldo_program(<folder below src> NAME <program> DEPENDS <folders> EXTERNAL <targets> SOURCES <...>)
function(brenvaldo_program folder)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "NAME" "DEPENDS;EXTERNAL;SOURCES")
  add_executable(${arg_NAME} ${arg_SOURCES})
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
                   -DSOURCE_DIR=${CMAKE_SOURCE_DIR}/src -P ${CMAKE_SOURCE_DIR}/cmake/CheckLayers.cmake
  )
  set_tests_properties(layers.${folder} PROPERTIES LABELS unit)
endfunction()
