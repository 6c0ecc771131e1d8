# Two helpers: one adds a layer or program, one adds a test. What every target shares stands here once.

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

option(PRELT_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)

add_library(prelt_options INTERFACE)
target_compile_options(prelt_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
target_compile_definitions(prelt_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_FOREACH QT_NO_CONTEXTLESS_CONNECT
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_URL_CAST_FROM_STRING QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(PRELT_SANITIZE)
  target_compile_options(prelt_options INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer
                                                 -fno-sanitize-recover=undefined)
  target_link_options(prelt_options INTERFACE -fsanitize=address,undefined)
endif()

function(prelt_setup target)
  set_target_properties(${target} PROPERTIES AUTOMOC ON AUTORCC ON)
  target_include_directories(${target} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
endfunction()

# prelt_layer(name SOURCES ... LINKS ...): a static library; its own folder is its include directory, and it
# sees exactly the layers (and Qt modules) that it links.
function(prelt_layer name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  prelt_setup(${name})
  target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE prelt_options)
endfunction()

function(prelt_program name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  prelt_setup(${name})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} prelt_options)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
endfunction()

# prelt_test(name SOURCES ... LINKS ...): a QtTest executable, run offscreen.
function(prelt_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  prelt_setup(${name})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} Qt6::Test prelt_options)
  target_compile_definitions(${name} PRIVATE PRELT_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8" TIMEOUT 300)
endfunction()
