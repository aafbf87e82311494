# The analog driver, and the commands that choose a driver.
target_sources(zelk_core PRIVATE
    ${CMAKE_CURRENT_SOURCE_DIR}/AnalogChannels.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/AnalogConfig.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/AnalogDriver.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/AnalogExchange.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/AnalogInformation.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/AnalogLine.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/AnalogRecord.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/DriverChoice.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/HexText.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/RadioIdentity.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/UnsentRows.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/ZelkTransfer.cpp
)
