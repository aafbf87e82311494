// The program's version, from CMakeLists.txt.
#pragma once

/// Three numbers separated by points.
extern const char* const ProgramVersion;

/// The day of the release, such as "10 JUN 2026".
extern const char* const ReleaseDay;
