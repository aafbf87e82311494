# The records of the digital radios, their driver, and the debug log.
target_sources(zelk_core PRIVATE
    ${CMAKE_CURRENT_SOURCE_DIR}/DebugLog.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/TRecord.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/TRecordCodec.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/TRecordDriver.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/TRecordFields.cpp
)
