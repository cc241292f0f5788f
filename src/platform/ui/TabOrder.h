#pragma once

class CWnd;

enum class ETabDirection { Forward, Backward };

/// The child of `rPane` that Tab reaches from `pFrom`, round the end; null when there is none.
/// `pFrom` is a child of `rPane`, or null to start before the first. A pane with tab stops of its
/// own counts as one child. The result is usable and shown.
CWnd* gNextTabStop(const CWnd& rPane, const CWnd* pFrom, ETabDirection direction);

/// Where the focus goes when it is given to a pane: the control that had it last, else the first
/// tab stop, innermost. Null when nothing inside can take it.
CWnd* gFocusInPane(const CWnd& rPane);

/// Where the focus goes when a dialog opens: its first field; a push button only where there is no
/// field. Null when nothing inside can take it.
CWnd* gFirstFieldOf(const CWnd& rDialog);

/// Moves the focus to the next tab stop among the children of `rPane`, round the end. A pane that
/// is the only one is gone round inside.
void gMoveFocusRound(const CWnd& rPane, ETabDirection direction);

/// Moves the focus to the next tab stop of a dialog: through the pane that has the focus, on to the
/// dialog's own controls at the pane's end, and round at the dialog's.
void gMoveFocusThrough(const CWnd& rDialog, ETabDirection direction);
