#include "cli/PagesCommand.h"

#include "cli/Failure.h"
#include "cli/FieldJson.h"
#include "cli/Output.h"
#include "cli/PageList.h"

#include <nlohmann/json.hpp>

namespace quorvawiz::cli
{
namespace
{
TJson ToJson(const std::vector<TPage>& rPages)
{
    TJson list = TJson::array();
    for (const TPage& rPage : rPages)
        list.push_back({{"path", rPage.HasNode() ? TJson(rPage.Name()) : TJson()},
                        {"class", rPage.sClass},
                        {"category", rPage.bCategory},
                        {"built", rPage.IsBuilt()}});
    return list;
}

std::string ToText(const std::vector<TPage>& rPages)
{
    std::vector<std::vector<std::string>> rows;
    rows.reserve(rPages.size());
    for (const TPage& rPage : rPages)
        rows.push_back({rPage.HasNode() ? rPage.Name() : "-", rPage.sClass,
                        rPage.IsBuilt() ? "ready" : "not built"});
    return gAlignColumns(rows);
}
} // namespace

std::string gTellPages(const TWizard& rWizard, const TPagesOptions& rOptions)
{
    const std::vector<TPage> pages = gListPages(rWizard);
    return rOptions.bJson ? gToLine(ToJson(pages)) + '\n' : ToText(pages);
}

int gRunPages(const TPagesOptions& rOptions)
{
    gWriteOut(gTellPages(gSpiceWizard(), rOptions));
    return kDone;
}

} // namespace quorvawiz::cli
