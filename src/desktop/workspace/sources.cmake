target_sources(veln_desktop PRIVATE
  ${CMAKE_CURRENT_SOURCE_DIR}/workspace/frm_about.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/workspace/frm_file_io.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/workspace/frm_help.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/workspace/frm_main.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/workspace/frm_main_menu.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/workspace/frm_project.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/workspace/status_cards.cpp)
