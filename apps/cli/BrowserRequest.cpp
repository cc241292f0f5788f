#include "cli/BrowserRequest.h"

#include "cli/Quote.h"
#include "cli/RequestError.h"
#include "cli/Suggest.h"

#include <limits>
#include <string>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
constexpr struct {
    const char* pName;
    EBrowserDialog dialog;
} kDialogs[] = {
    {"devices", EBrowserDialog::Devices},
    {"library-models", EBrowserDialog::LibraryModels},
    {"simulator-models", EBrowserDialog::SimulatorModels},
};

EBrowserDialog FindDialog(const std::string& rsName)
{
    std::vector<std::string> names;
    for (const auto& rDialog : kDialogs) {
        if (rsName == rDialog.pName)
            return rDialog.dialog;
        names.emplace_back(rDialog.pName);
    }
    throw CRequestError("there is no dialog " + gQuoted(rsName) + gDidYouMean(rsName, names));
}

CStringU NameOf(const CRequestMembers& rMembers, const char* pName)
{
    return {rMembers.Utf8Of(pName), TTextKind::Utf8IfNeeded};
}

int CountOf(const CRequestMembers& rMembers, const char* pName, int nMost)
{
    const int nCount = rMembers.Index(pName);
    if (nCount < 0 || nCount > nMost)
        throw CRequestError("the member " + gQuoted(pName) + " isn't from 0 to " +
                            std::to_string(nMost));
    return nCount;
}
} // namespace

TLoadRequest gReadLoad(const CRequestMembers& rMembers)
{
    return {NameOf(rMembers, "path")};
}

TBrowseRequest gReadBrowse(const CRequestMembers& rMembers)
{
    const std::string sDialog = rMembers.Utf8Of("dialog");
    TBrowseRequest request{.dialog = FindDialog(sDialog)};
    const bool bClasses = request.dialog == EBrowserDialog::SimulatorModels;
    const char* const pOther = bClasses ? "recalculate" : "class";
    if (rMembers.Has(pOther))
        throw CRequestError("the dialog " + gQuoted(sDialog) + " takes no " + gQuoted(pOther));
    if (rMembers.Has("recalculate"))
        request.bRecalculate = rMembers.Flag("recalculate");
    if (rMembers.Has("class"))
        request.sClass = NameOf(rMembers, "class");
    return request;
}

TDeviceDetailsRequest gReadDeviceDetails(const CRequestMembers& rMembers)
{
    return {NameOf(rMembers, "subckt"), NameOf(rMembers, "name")};
}

TRowsRequest gReadRows(const CRequestMembers& rMembers)
{
    return {CountOf(rMembers, "from", std::numeric_limits<int>::max()),
            CountOf(rMembers, "count", kMostRows)};
}

} // namespace quorvawiz::cli
