# clang-tidy as edges of a build: one stamp a source, made again only where the source, a header that it includes over
# however many others, or its .clang-tidy has changed.
#
#   ninja lint_all                  every source; windows and painting without the slow groups, tests by what is plainly a mistake
#   ninja lint_full                 every source by every check of its folder
#   ninja lint/all/src/FILE.cpp     one source

find_program(VELN_CLANG_TIDY clang-tidy-19 REQUIRED)

# What --all leaves to --full: Qt's and GoogleTest's headers are large, and the slow groups find little here.
set(lintChecksOfWindows "-clang-analyzer-*,-misc-*,-modernize-*")
set(lintChecksOfTests "-*,bugprone-infinite-loop,bugprone-use-after-move,performance-for-range-copy")

# lint_targets(<out> <folder>): all targets of our own in the folder and below.
function(lint_targets out folder)
  get_property(targets DIRECTORY "${folder}" PROPERTY BUILDSYSTEM_TARGETS)
  get_property(folders DIRECTORY "${folder}" PROPERTY SUBDIRECTORIES)
  foreach(below IN LISTS folders)
    lint_targets(found "${below}")
    list(APPEND targets ${found})
  endforeach()
  set(${out} ${targets} PARENT_SCOPE)
endfunction()

# lint_sources(<out>): the .cpp of all targets, as paths from the project's folder.
function(lint_sources out)
  lint_targets(targets "${PROJECT_SOURCE_DIR}")
  set(paths "")
  foreach(target IN LISTS targets)
    get_target_property(folder ${target} SOURCE_DIR)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    foreach(source IN LISTS sources)
      cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY "${folder}" NORMALIZE)
      cmake_path(IS_PREFIX PROJECT_BINARY_DIR "${source}" made)
      if(NOT made)
        cmake_path(RELATIVE_PATH source BASE_DIRECTORY "${PROJECT_SOURCE_DIR}")
        list(APPEND paths "${source}")
      endif()
    endforeach()
  endforeach()
  list(REMOVE_DUPLICATES paths)
  set(${out} ${paths} PARENT_SCOPE)
endfunction()

# lint_settings(<out> <path>): each .clang-tidy from the project's folder down to the source's.
function(lint_settings out path)
  set(files "")
  while(path)
    cmake_path(GET path PARENT_PATH path)
    cmake_path(APPEND PROJECT_SOURCE_DIR "${path}" ".clang-tidy" OUTPUT_VARIABLE file)
    if(EXISTS "${file}")
      list(APPEND files "${file}")
    endif()
  endwhile()
  set(${out} ${files} PARENT_SCOPE)
endfunction()

# lint_edge(<group> <path> [<checks>]): the stamp lint/<group>/<path>.
function(lint_edge group path)
  set(stamp "lint/${group}/${path}")
  lint_settings(settings "${path}")
  add_custom_command(
    OUTPUT ${stamp}
    COMMAND "${PROJECT_SOURCE_DIR}/scripts/lint_source" "${VELN_CLANG_TIDY}" "${PROJECT_SOURCE_DIR}/${path}" ${stamp} ${ARGN}
    DEPENDS "${PROJECT_SOURCE_DIR}/${path}" "${PROJECT_SOURCE_DIR}/scripts/lint_source" ${settings}
    DEPFILE ${stamp}.d
    COMMENT "Checking ${path}"
    VERBATIM)
endfunction()

function(add_lint_targets)
  set(all "")
  set(full "")
  lint_sources(paths)
  foreach(path IN LISTS paths)
    list(APPEND all lint/all/${path})
    if(path MATCHES "^(tests|src/(desktop|render))/")
      if(CMAKE_MATCH_1 STREQUAL "tests")
        lint_edge(all "${path}" "${lintChecksOfTests}")
      else()
        lint_edge(all "${path}" "${lintChecksOfWindows}")
      endif()
      lint_edge(full "${path}")
      list(APPEND full lint/full/${path})
    else()
      lint_edge(all "${path}")
      list(APPEND full lint/all/${path})
    endif()
  endforeach()
  add_custom_target(lint_all DEPENDS ${all})
  add_custom_target(lint_full DEPENDS ${full})
endfunction()
