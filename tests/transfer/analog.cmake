# The pure rules of the analog protocol and of the choice of a driver.
zelk_test(analog_rules_tests
    SOURCES AnalogInformationTest.cpp AnalogLineTest.cpp DriverChoiceTest.cpp HexTextTest.cpp
    LIBS zelk_core)

# Channel lines and the cells of a grid.
zelk_test(analog_record_tests WINDOW SOURCES AnalogRecordTest.cpp LIBS zelk_core)

# The commands of the window, and their messages.
zelk_test(transfer_commands_tests WINDOW SOURCES TransferCommandsTest.cpp UnsentRowsTest.cpp LIBS zelk_core)

# The analog driver against radios that the test plays.
zelk_test(analog_driver_tests WINDOW DISPLAY 1
    SOURCES AnalogConfigTest.cpp AnalogReadTest.cpp AnalogWriteTest.cpp
    LIBS zelk_core)

# Whole transfers with the simulated radios.
zelk_test(analog_radio_tests WINDOW DISPLAY 3 WAITS SOURCES AnalogRadioTest.cpp LIBS zelk_core)
target_compile_definitions(analog_radio_tests PRIVATE ZELK_RADIO="$<TARGET_FILE:zelk-radio>")
add_dependencies(analog_radio_tests zelk-radio)
