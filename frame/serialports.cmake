# The list of serial ports: one source file for each operating system.
if(WIN32)
    target_sources(zelk_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/SerialPorts_windows.cpp)
else()
    target_sources(zelk_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/SerialPorts_linux.cpp)
endif()
