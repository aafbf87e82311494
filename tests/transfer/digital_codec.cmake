# The records of the digital radios and their debug log, apart from any window.
zelk_test(trecord_tests
    SOURCES DebugLogTest.cpp TRecordRoundTripTest.cpp TRecordRulesTest.cpp TRecordTest.cpp
    LIBS zelk_core zelk_robot)

# Those records and the cells of a grid.
zelk_test(trecord_page_tests WINDOW
    SOURCES TRecordGridTest.cpp TRecordV1Test.cpp TRecordV2Test.cpp
    LIBS zelk_core)
