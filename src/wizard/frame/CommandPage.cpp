#include "wizard/frame/CommandPage.h"

#include "platform/ui/RuntimeClassDefinition.h"

CCommandPage::CCommandPage(const DialogTemplate& rTemplate) : CPropertyPage(rTemplate, 0) {}

void CCommandPage::DoDataExchange(CDataExchange*) {}

template const CRuntimeClass& gRuntimeClass<CCommandPage>();

namespace
{
// No table names this class, so it registers itself at load.
[[maybe_unused]] const CRuntimeClass& srRegistered = gRuntimeClass<CCommandPage>();
} // namespace
