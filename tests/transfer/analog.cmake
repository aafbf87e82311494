# The pure rules of the analog protocol and of the choice of a driver.
zelk_test(analog_rules_tests
    SOURCES AnalogInformationTest.cpp AnalogLineTest.cpp DriverChoiceTest.cpp HexTextTest.cpp
    LIBS zelk_core)

# Channel lines and the cells of a grid.
zelk_test(analog_record_tests WINDOW SOURCES AnalogRecordTest.cpp LIBS zelk_core)

# The commands of the window.
zelk_test(transfer_commands_tests WINDOW SOURCES TransferCommandsTest.cpp LIBS zelk_core)
