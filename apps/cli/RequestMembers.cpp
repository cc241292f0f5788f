#include "cli/RequestMembers.h"

#include "cli/Quote.h"
#include "cli/RequestError.h"
#include "cli/Suggest.h"
#include "platform/base/CodePage.h"
#include "platform/base/Utf8Text.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace quorvawiz::cli
{
namespace
{
[[noreturn]] void ThrowOtherType(const char* pName, const char* pWanted)
{
    throw CRequestError("the member " + gQuoted(pName) + " isn't " + pWanted);
}
} // namespace

const TJson& CRequestMembers::Value(const char* pName) const
{
    const auto found = mrObject.find(pName);
    if (found == mrObject.end())
        throw CRequestError("the member " + gQuoted(pName) + " is missing");
    return *found;
}

std::string CRequestMembers::Utf8Of(const char* pName) const
{
    const TJson& rValue = Value(pName);
    if (!rValue.is_string())
        ThrowOtherType(pName, "a text");
    return rValue.get<std::string>();
}

CString CRequestMembers::Text(const char* pName) const
{
    std::optional<CString> text = gFromUtf8(Utf8Of(pName));
    if (!text)
        throw CRequestError("the member " + gQuoted(pName) + " doesn't fit in code page " +
                            std::to_string(gGetSystemCodePage()));
    return *std::move(text);
}

int CRequestMembers::Index(const char* pName) const
{
    const TJson& rValue = Value(pName);
    constexpr int nMost = std::numeric_limits<int>::max();
    const bool bTooBig =
        rValue.is_number_unsigned() && rValue.get<std::uint64_t>() > std::uint64_t{nMost};
    if (!rValue.is_number_integer() || bTooBig ||
        rValue.get<std::int64_t>() < std::numeric_limits<int>::min())
        ThrowOtherType(pName, "an index");
    return rValue.get<int>();
}

bool CRequestMembers::Flag(const char* pName) const
{
    const TJson& rValue = Value(pName);
    if (!rValue.is_boolean())
        ThrowOtherType(pName, "true or false");
    return rValue.get<bool>();
}

void CRequestMembers::AllowOnly(std::span<const char* const> names) const
{
    for (const auto& [sMember, rValue] : mrObject.items()) {
        if (sMember == "op" || std::ranges::find(names, sMember) != names.end())
            continue;
        const std::vector<std::string> known(names.begin(), names.end());
        throw CRequestError("the request has no member " + gQuoted(sMember) +
                            gDidYouMean(sMember, known));
    }
}

} // namespace quorvawiz::cli
