# Records of the digital radios and the cells of a grid.
zelk_test(trecord_page_tests WINDOW
    SOURCES TRecordV1Test.cpp TRecordV2Test.cpp
    LIBS zelk_core)
