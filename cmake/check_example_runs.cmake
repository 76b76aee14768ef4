# cmake -DVELN=<program> -DEXAMPLES=<folder> -DOUT=<folder> -P check_example_runs.cmake
# Every build writes the same bytes: runs of the examples are held against examples/example_runs.sha256, which a
# release build made. Only files without path and date are listed. After a change that is meant to alter them, the list that
# the check leaves in OUT takes the old one's place.
cmake_minimum_required(VERSION 3.25)

set(transect "${EXAMPLES}/transect_1500.txt" --type transect --site-id --s2 --log --delete-outliers 1 --edge-buffer ends
  --transition --transition-file --ads limited --design 20,d=1.10 --design 6,stratum=2 --design 12,no-support)
set(grid "${EXAMPLES}/grid_800.txt" --type grid --convert-units dS/m --translate rotate=30 --design 12 --design 5)

file(REMOVE_RECURSE "${OUT}")
foreach(run transect grid)
  execute_process(COMMAND "${VELN}" run ${${run}} --root "${OUT}" --project ${run} --quiet COMMAND_ERROR_IS_FATAL ANY)
endforeach()

file(GLOB_RECURSE files RELATIVE "${OUT}" "${OUT}/*gps*.txt" "${OUT}/*.asc" "${OUT}/*.std" "${OUT}/*.svy")
list(SORT files)
set(list "")
foreach(name IN LISTS files)
  file(SHA256 "${OUT}/${name}" hash)
  string(APPEND list "${hash}  ${name}\n")
endforeach()
file(WRITE "${OUT}/example_runs.sha256" "${list}")
file(READ "${EXAMPLES}/example_runs.sha256" expected)
if(NOT list STREQUAL expected)
  message(FATAL_ERROR "The example runs differ from examples/example_runs.sha256; what they are now: "
    "${OUT}/example_runs.sha256")
endif()
