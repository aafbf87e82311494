# Whole transfers with the simulated digital radios.
function(digital_radio_test name)
    zelk_test(${name} WINDOW LIBS zelk_core ${ARGN})
    target_compile_definitions(${name} PRIVATE
        ZELK_RADIO="$<TARGET_FILE:zelk-radio>"
        ZELK_TRANSCRIPTS="${CMAKE_CURRENT_SOURCE_DIR}/transcripts")
    add_dependencies(${name} zelk-radio)
endfunction()

digital_radio_test(digital_radio_tests DISPLAY 2 WAITS SOURCES DigitalRadioTest.cpp RadioContentTest.cpp)
digital_radio_test(digital_fault_write_tests DISPLAY 3 WAITS SOURCES FaultMatrixWriteTest.cpp)
digital_radio_test(digital_fault_read_tests DISPLAY 2 WAITS SOURCES FaultMatrixReadTest.cpp)
digital_radio_test(digital_round_trip_tests DISPLAY 2 SOURCES DigitalRoundTripTest.cpp)
digital_radio_test(digital_links_tests DISPLAY 2 SOURCES DigitalLinksTest.cpp)
target_compile_definitions(digital_links_tests PRIVATE ZELK_EXAMPLES_DIR="${CMAKE_SOURCE_DIR}/examples")

# Random work with radios that live in the test's own process.
zelk_test(digital_content_tests WINDOW DISPLAY 1 SOURCES ContentPropertyTest.cpp LIBS zelk_core zelk_radio_sim)
target_compile_definitions(digital_content_tests PRIVATE ZELK_TRANSCRIPTS="${CMAKE_CURRENT_SOURCE_DIR}/transcripts")
