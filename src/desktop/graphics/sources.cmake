target_sources(veln_desktop PRIVATE
  ${CMAKE_CURRENT_SOURCE_DIR}/graphics/frm_igc.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/graphics/frm_legend.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/graphics/frm_pct.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/graphics/frm_site_map.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/graphics/frm_svy_graph.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/graphics/frm_svy_graph_layout.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/graphics/frm_svy_graph_menu.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/graphics/overlay_chooser.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/graphics/picture_actions.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/graphics/picture_dialog.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/graphics/plot_board.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/graphics/plot_pane.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/graphics/site_index.cpp)
