# One folder under src/ is one layer: a static library that links only layers below it.

# What every target of ours is compiled with. A result is the same bits on every build, so the compiler
# may not contract a product and a sum into one operation.
add_library(veln_flags INTERFACE)
target_compile_features(veln_flags INTERFACE cxx_std_20)
target_compile_options(veln_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -ffp-contract=off
  $<$<BOOL:${VELN_WERROR}>:-Werror>)

# Test sources have options of their own besides: the sanitizers' build does not optimise them, which halves the time
# that they take to compile, and folds nothing away that a sanitizer could see. The layers keep the level of the build.
set(VELN_TEST_OPTIONS "" CACHE STRING "Compiler options of the tests alone")
add_library(veln_test_flags INTERFACE)
target_compile_options(veln_test_flags INTERFACE ${VELN_TEST_OPTIONS})
target_link_libraries(veln_test_flags INTERFACE veln_flags)

# add_layer(<name> [DEPENDS <layer>...] [SOURCES <file>...])
#
# Makes the library veln_<name>, to be linked as veln::<name>. A layer without sources is its headers alone.
function(add_layer name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "DEPENDS;SOURCES")
  if(arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "add_layer(${name}): not understood: ${arg_UNPARSED_ARGUMENTS}")
  endif()
  list(TRANSFORM arg_DEPENDS PREPEND "veln::")
  if(arg_SOURCES)
    add_library(veln_${name} STATIC ${arg_SOURCES})
    target_include_directories(veln_${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(veln_${name} PUBLIC ${arg_DEPENDS} PRIVATE veln_flags)
    # Users of a layer need its language level too, but not its warnings.
    target_compile_features(veln_${name} PUBLIC cxx_std_20)
  else()
    add_library(veln_${name} INTERFACE)
    target_include_directories(veln_${name} INTERFACE "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(veln_${name} INTERFACE ${arg_DEPENDS})
  endif()
  add_library(veln::${name} ALIAS veln_${name})
endfunction()

# add_layer_tests(<name> SOURCES <file>... [LINKS <target>...] [OWN_HEADERS])
#
# Makes veln_<name>_tests, one GoogleTest program for the layer of that name. Files that the tests read
# stand in the folder data beside them (VELN_TEST_DATA); headers that several layers' tests share stand in
# tests/support. The layer itself is linked where it exists. With OWN_HEADERS the precompiled headers are not shared:
# programs that use Qt are compiled as other position independent code.
function(add_layer_tests name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "OWN_HEADERS" "" "SOURCES;LINKS")
  if(arg_UNPARSED_ARGUMENTS OR NOT arg_SOURCES)
    message(FATAL_ERROR "add_layer_tests(${name}): SOURCES are missing, or not understood: ${arg_UNPARSED_ARGUMENTS}")
  endif()
  set(program veln_${name}_tests)
  add_executable(${program} ${arg_SOURCES})
  target_include_directories(${program} PRIVATE "${PROJECT_SOURCE_DIR}/src" "${PROJECT_SOURCE_DIR}/tests")
  target_compile_definitions(${program} PRIVATE VELN_TEST_DATA="${CMAKE_CURRENT_SOURCE_DIR}/data")
  target_link_libraries(${program} PRIVATE $<TARGET_NAME_IF_EXISTS:veln::${name}> ${arg_LINKS} GTest::gmock_main veln_test_flags)
  if(NOT arg_OWN_HEADERS)
    target_precompile_headers(${program} REUSE_FROM veln_test_headers)
  endif()
  gtest_discover_tests(${program}
    DISCOVERY_MODE PRE_TEST
    DISCOVERY_TIMEOUT 60
    PROPERTIES TIMEOUT 300 LABELS ${name})
endfunction()

# add_folders(<folder>...): those that hold a CMakeLists.txt, in the order told.
function(add_folders)
  foreach(folder IN LISTS ARGN)
    if(EXISTS "${PROJECT_SOURCE_DIR}/${folder}/CMakeLists.txt")
      add_subdirectory("${PROJECT_SOURCE_DIR}/${folder}" "${PROJECT_BINARY_DIR}/${folder}")
    endif()
  endforeach()
endfunction()
