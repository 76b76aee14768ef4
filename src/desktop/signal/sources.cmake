target_sources(veln_desktop PRIVATE
  ${CMAKE_CURRENT_SOURCE_DIR}/signal/frm_list.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/signal/frm_sig_decorr.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/signal/frm_sig_val.cpp)
