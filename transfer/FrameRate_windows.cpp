#include "transfer/FrameRate.h"

// The system draws a moving gauge itself, and others only when they change.
struct FrameRate::Impl {};

FrameRate::FrameRate(wxTopLevelWindow&, std::chrono::milliseconds) {}

FrameRate::~FrameRate() = default;
