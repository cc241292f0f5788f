#include "platform/ui/PropertyPage.h"

CPropertyPage::CPropertyPage(const DialogTemplate& rTemplate, unsigned nCaptionId,
                             unsigned nDescriptorSize)
    : CDialog(rTemplate), mnCaptionId(nCaptionId), mnDescriptorSize(nDescriptorSize)
{
}
