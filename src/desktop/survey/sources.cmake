target_sources(veln_desktop PRIVATE
  ${CMAKE_CURRENT_SOURCE_DIR}/survey/frm_basic_stats.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/survey/frm_out_fd.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/survey/frm_structure.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/survey/record_preview_table.cpp)
