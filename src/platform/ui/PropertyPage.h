#pragma once

#include "platform/ui/Dialog.h"

/// A pane made from a template: a page of a sheet, or of any window that shows panes in turn.
class CPropertyPage : public CDialog
{
public:
    /// The size in bytes of the platform's descriptor of a property page.
    static constexpr unsigned kDescriptorSize = 104;

    /// `nCaptionId`: 0, the caption is the template's. `nDescriptorSize`: the platform's standard.
    explicit CPropertyPage(const DialogTemplate& rTemplate, unsigned nCaptionId = 0,
                           unsigned nDescriptorSize = kDescriptorSize);

    unsigned GetCaptionId() const { return mnCaptionId; }
    unsigned GetDescriptorSize() const { return mnDescriptorSize; }

    /// Marks the page as one with help (PSP_HASHELP): a sheet's Help button is enabled on it.
    void SetHasHelp() { mbHasHelp = true; }
    bool HasHelp() const { return mbHasHelp; }

private:
    unsigned mnCaptionId;
    unsigned mnDescriptorSize;
    bool mbHasHelp = false;
};
