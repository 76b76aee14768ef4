# cmake -DPROGRAM=<file> -P check_no_qt.cmake
# The command line runs where no Qt is installed.
cmake_minimum_required(VERSION 3.25)
execute_process(COMMAND ldd "${PROGRAM}" OUTPUT_VARIABLE libraries COMMAND_ERROR_IS_FATAL ANY)
if(libraries MATCHES "libQt[^\n]*")
  message(FATAL_ERROR "${PROGRAM} links Qt: ${CMAKE_MATCH_0}")
endif()
