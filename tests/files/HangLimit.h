// How long a hostile file may keep the program busy.
#pragma once

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
/// Processor seconds, with the checks that a sanitizer adds to every memory access.
constexpr double HangLimit = 20.0;
#else
/// Processor seconds.
constexpr double HangLimit = 2.0;
#endif
