// What a transfer shows while it runs.
#pragma once

#include "transfer/TransferClock.h"

class wxString;
class wxWindow;

/// Display of a transfer's progress, with its Cancel button: a ProgressFrame, or a stand-in in tests.
class TransferProgress {
public:
    virtual ~TransferProgress() = default;

    /// Shows a text.
    virtual void SetStatus(const wxString& text) = 0;

    /// Appends to the text shown.
    virtual void AppendStatus(const wxString& text) = 0;

    /// Sets and returns the number of rows, or lines, after which the main gauge is full.
    virtual void SetRange(int rows) = 0;
    virtual int Range() const = 0;

    /// Moves the main gauge to this number of rows, which must be in its range. The user sees it when the
    /// transfer waits or pauses, or when a box opens.
    virtual void SetValue(int rows) = 0;

    /// Moves the gauge that shows that the transfer waits.
    virtual void Pulse() = 0;

    /// Draws a new text, until `end` at most. For pauses, in which no events are handled.
    virtual void DrawStatus(TransferClock::Moment /*end*/) {}

    /// Parent of the transfer's message boxes; null for none.
    virtual wxWindow* Window() = 0;

    /// True once the user has cancelled; the waits of a transfer check it.
    bool Cancelled = false;
};
