#pragma once

class QWidget;

/// Puts a frame below the controls that it surrounds, which are its siblings, but above the frames
/// that were there before it.
void gStackBelowControls(QWidget& rFrame);
