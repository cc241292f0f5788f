#pragma once

#include <functional>
#include <string>

class QWidget;

/// Gets a window in one of its states, painted, under a name of that state.
using TLook = std::function<void(const std::string& rsName, QWidget& rWindow)>;

// Visits show windows one after the other in every state that choices bring about. The current
// desktop is a QtDesktop.

/// The wizard on each node of its tree, under the node's path; on a page, each entry of each list
/// and each radio button, whose text follows behind a hyphen.
void gVisitWizard(const TLook& rLook);

/// Each page that no node leads to, in the dialog of its own, as `gVisitWizard` shows the others.
void gVisitSinglePages(const TLook& rLook);

/// The sweep dialog with each type, and each kind of parameter.
void gVisitSweep(const TLook& rLook);

/// Each window of the parameter browser, with each of its tabs, as it opens; then drawn wide, under
/// a name that ends in "-wide". The store holds a plausible circuit.
void gVisitBrowser(const TLook& rLook);

/// The dialog with every kind of control, filled in.
void gVisitSample(const TLook& rLook);

/// Message boxes of each kind, with a short text and with a long one.
void gVisitBoxes(const TLook& rLook);
