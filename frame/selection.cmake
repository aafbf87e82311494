# Pages and targets, the selection dialogs and the Help commands.
target_sources(zelk_core PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/HelpCommands.cpp
    ${CMAKE_CURRENT_LIST_DIR}/NotebookCommands.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SelectionDialogs.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SetPortCommand.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SetTargetCommand.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TargetSelection.cpp)
