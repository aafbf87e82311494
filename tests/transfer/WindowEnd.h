// Waiting for the end of a window.
#pragma once

#include "robot/Pump.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/toplevel.h>
#include <wx/weakref.h>

/// Destroys a top-level window and waits until the toolkit has deleted it, which happens some time later.
inline void DestroyAndWait(wxTopLevelWindow* window) {
    const wxWeakRef<wxTopLevelWindow> watched(window);
    window->Destroy();
    wxWakeUpIdle(); // the deletion is idle work, which doesn't run without an event
    EXPECT_TRUE(testbench::PumpUntil([&] { return !watched; }));
}
