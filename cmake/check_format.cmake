# cmake -DROOT=<project> -P check_format.cmake
# Compares every source file with its form by .clang-format; changes nothing.
cmake_minimum_required(VERSION 3.25)
find_program(clangFormat NAMES clang-format-19)
if(NOT clangFormat)
  message(FATAL_ERROR "clang-format-19 is not installed")
endif()
set(files "")
foreach(folder src tests examples benchmarks)
  file(GLOB_RECURSE found "${ROOT}/${folder}/*.h" "${ROOT}/${folder}/*.cpp")
  list(APPEND files ${found})
endforeach()
execute_process(
  COMMAND "${clangFormat}" --dry-run -Werror --style=file ${files}
  RESULT_VARIABLE status
  ERROR_VARIABLE text)
if(NOT status EQUAL 0)
  string(REGEX MATCHALL "[^\n]+:[0-9]+:[0-9]+: error" places "${text}")
  list(TRANSFORM places REPLACE ":[0-9]+: error" "")
  list(REMOVE_DUPLICATES places)
  list(JOIN places "\n  " text)
  message(FATAL_ERROR "Not formatted; clang-format-19 -i mends it:\n  ${text}")
endif()
