// Waiting for the end of a window.
#pragma once

#include "robot/Pump.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/toplevel.h>
#include <wx/weakref.h>

/// Destroys a top-level window and waits until it is really gone: the toolkit deletes it some time later.
inline void DestroyAndWait(wxTopLevelWindow* window) {
    const wxWeakRef<wxTopLevelWindow> watched(window);
    window->Destroy();
    wxWakeUpIdle(); // the deletion is idle work, which without an event would not be asked for
    EXPECT_TRUE(testbench::PumpUntil([&] { return !watched; }));
}
