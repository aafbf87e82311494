// Maximum time that the program may need for a hostile file.
#pragma once

#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define ZELK_IS_SANITIZED
#endif
#elif defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define ZELK_IS_SANITIZED
#endif

/// Processor seconds. A sanitizer adds its checks to every memory access.
#ifdef ZELK_IS_SANITIZED
constexpr double HangLimit = 20.0;
#else
constexpr double HangLimit = 2.0;
#endif
