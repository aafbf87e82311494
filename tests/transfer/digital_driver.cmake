# The digital driver against radios that the test plays from transcripts.
zelk_test(digital_driver_tests WINDOW DISPLAY 1
    SOURCES
        TRecordDriverTest.cpp
        TRecordGoldenTest.cpp
        TRecordListsTest.cpp
        TRecordNoiseTest.cpp
        TRecordRepliesTest.cpp
        TRecordReportTest.cpp
        TRecordRowsTest.cpp
        TRecordStatesTest.cpp
    LIBS zelk_core)
target_compile_definitions(digital_driver_tests PRIVATE ZELK_TRANSCRIPTS="${CMAKE_CURRENT_SOURCE_DIR}/transcripts")
