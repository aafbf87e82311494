# Page lifecycle, the selection dialogs and the Help commands.
target_sources(zelk_core PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/HelpCommands.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PageLifecycle.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SelectionDialogs.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TargetSelection.cpp)
