#include "cli/PageList.h"

#include "cli/Failure.h"
#include "cli/Suggest.h"
#include "platform/base/CodePage.h"
#include "platform/ui/Translate.h"

#include <algorithm>

namespace quorvawiz::cli
{

std::string TPage::Name() const
{
    return HasNode() ? gToUtf8(sPath) : sClass;
}

std::vector<TPage> gListPages(const TWizard& rWizard)
{
    std::vector<TPage> pages;
    CString sCategory;
    for (const TTreeRow& rRow : rWizard.tree) {
        const CString sLabel = xlang::gTranslate(rRow.pLabel);
        if (rRow.bCategory)
            sCategory = sLabel;
        pages.push_back({rRow.bCategory ? sLabel : sCategory + "/" + sLabel,
                         std::string(rRow.sClass), rRow.pClass, rRow.bCategory});
    }
    for (const CRuntimeClass* pClass : rWizard.withoutNode)
        pages.push_back({{}, std::string(pClass->GetName()), pClass, false});
    return pages;
}

const TPage& gFindPage(const std::vector<TPage>& rPages, std::string_view sName)
{
    const std::optional<CString> path = gFromUtf8(sName);
    const auto isWanted = [&](const TPage& rPage) {
        return rPage.sClass == sName ||
               (path && rPage.HasNode() && rPage.sPath.CompareNoCase(*path) == 0);
    };
    const auto found = std::ranges::find_if(rPages, isWanted);
    if (found != rPages.end())
        return *found;

    std::vector<std::string> names;
    for (const TPage& rPage : rPages) {
        names.push_back(rPage.Name());
        if (rPage.HasNode())
            names.push_back(rPage.sClass);
    }
    throw CUsageError("there is no page " + gQuoted(sName) + gDidYouMean(sName, names));
}

const TPage& gFindBuiltPage(const std::vector<TPage>& rPages, std::string_view sName)
{
    const TPage& rPage = gFindPage(rPages, sName);
    if (!rPage.IsBuilt())
        throw CUsageError("the page " + gQuoted(rPage.Name()) + " isn't built yet");
    return rPage;
}

} // namespace quorvawiz::cli
