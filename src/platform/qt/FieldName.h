#pragma once

class CWnd;
class QWidget;

/// Gives a field's widget the name by which it is read out: the text of the field's label, else its
/// key. The label, if it is drawn, is tied to the widget.
void gNameField(const CWnd& rField, QWidget& rWidget);

/// The same when the text of a label has changed, for the field that it belongs to.
void gRenameFieldOf(const CWnd& rLabel);
