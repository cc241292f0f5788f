#include "foundation/UnixStyle.h"

#include "foundation/Paths.h"

bool gIsUnixStyleText(std::u16string_view sPath)
{
    const auto isQuoted = [&sPath](char16_t chQuote) {
        return sPath.size() >= 3 && sPath.front() == chQuote && sPath.back() == chQuote;
    };
    while (isQuoted(u'"') || isQuoted(u'\'')) {
        sPath = sPath.substr(1, sPath.size() - 2);
    }
    return sPath.starts_with(u'/') || sPath.starts_with(u"../") || sPath.starts_with(u"./");
}

bool gIsUnixStylePath(const CStringU& rPath)
{
    return gIsUnixStyleText(rPath.ToWide());
}
