#pragma once

/// Delivers all posted messages: each goes to `PreTranslateMessage` of its window and of that
/// window's parents in turn and, if none of them takes it, to the window.
void gPumpPostedMessages();
