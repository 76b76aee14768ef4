target_sources(veln_desktop PRIVATE
  ${CMAKE_CURRENT_SOURCE_DIR}/workspace/frm_file_io.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/workspace/frm_project.cpp)
