# Compiles for 64-bit Windows on Debian, against the toolkit that tools/windows-toolkit has built.
#
# That toolkit's folder is ZELK_WINDOWS_TOOLKIT, from the environment when a build folder is first configured.
if(NOT DEFINED ZELK_WINDOWS_TOOLKIT)
    if(NOT "$ENV{ZELK_WINDOWS_TOOLKIT}" STREQUAL "")
        set(toolkit "$ENV{ZELK_WINDOWS_TOOLKIT}")
    elseif(NOT "$ENV{XDG_CACHE_HOME}" STREQUAL "")
        set(toolkit "$ENV{XDG_CACHE_HOME}/zelk-windows")
    else()
        set(toolkit "$ENV{HOME}/.cache/zelk-windows")
    endif()
    set(ZELK_WINDOWS_TOOLKIT "${toolkit}" CACHE PATH "Folder that tools/windows-toolkit filled")
endif()
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES ZELK_WINDOWS_TOOLKIT)

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH ${ZELK_WINDOWS_TOOLKIT}/root /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Windows 7 is the oldest system that the toolkit and the port library ask for.
add_compile_definitions(_WIN32_WINNT=0x0601)
# Programs that need no file beside them, equal whenever they are linked.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--no-insert-timestamp")
# Tests and checks that compile a program and run it.
set(CMAKE_CROSSCOMPILING_EMULATOR wine)
