target_sources(veln_desktop PRIVATE
  ${CMAKE_CURRENT_SOURCE_DIR}/design/frm_d_list.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/design/frm_mask.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/design/frm_parse.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/design/frm_srs.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/design/frm_srs_layout.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/design/frm_srs_observer.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/design/frm_srs_opt.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/design/site_table.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/drawing_view.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/input_guard.cpp)
