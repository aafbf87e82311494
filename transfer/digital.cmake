# The records of the digital radios, their driver, and the debug log.
target_sources(zelk_core PRIVATE
    ${CMAKE_CURRENT_SOURCE_DIR}/DebugLog.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/TRecord.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/TRecordCodec.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/TRecordDriver.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/TRecordExchange.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/TRecordFields.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/TRecordHardware.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/TRecordReplies.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/TRecordReport.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/TRecordRows.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/TRecordStates.cpp
)
