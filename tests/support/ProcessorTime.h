// Processor time of this program. One source file for each operating system.
#pragma once

/// Seconds that the processors have worked for this program so far.
double ProcessorSeconds();
