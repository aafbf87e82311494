# The list of a choice cell: one source file for each operating system.
if(WIN32)
    target_sources(zelk_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/ChoiceList_windows.cpp)
else()
    # A library of its own: no other file of the program sees the system's headers.
    find_package(PkgConfig REQUIRED)
    pkg_check_modules(GTK3 REQUIRED IMPORTED_TARGET gtk+-3.0)
    add_library(zelk_choice_list STATIC ${CMAKE_CURRENT_LIST_DIR}/ChoiceList_gtk.cpp)
    target_link_libraries(zelk_choice_list PUBLIC zelk_options zelk_wx PRIVATE PkgConfig::GTK3)
    target_link_libraries(zelk_core PRIVATE zelk_choice_list)
endif()
