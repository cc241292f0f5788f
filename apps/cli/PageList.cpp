#include "cli/PageList.h"

#include "cli/Failure.h"
#include "cli/Quote.h"
#include "cli/Suggest.h"
#include "platform/base/Utf8Text.h"
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

namespace
{
/// All that pages are called; of equally near ones a suggestion takes the first, so those that can
/// be used stand in front.
std::vector<std::string> NamesOf(const std::vector<TPage>& rPages)
{
    std::vector<std::string> names;
    names.reserve(2 * rPages.size());
    for (const bool bBuilt : {true, false}) {
        for (const TPage& rPage : rPages) {
            if (rPage.IsBuilt() != bBuilt)
                continue;
            names.push_back(rPage.Name());
            if (rPage.HasNode())
                names.push_back(rPage.sClass);
        }
    }
    return names;
}
} // namespace

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

    const std::string sError = "there is no page " + gQuoted(sName);
    throw CUsageError(sName.empty() ? sError : sError + gDidYouMean(sName, NamesOf(rPages)));
}

const TPage& gFindBuiltPage(const std::vector<TPage>& rPages, std::string_view sName)
{
    const TPage& rPage = gFindPage(rPages, sName);
    if (!rPage.IsBuilt())
        throw CUsageError("the page " + gQuoted(rPage.Name()) + " isn't built yet");
    return rPage;
}

} // namespace quorvawiz::cli
