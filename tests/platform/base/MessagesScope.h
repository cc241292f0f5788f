#pragma once

#include "support/TempFolder.h"

#include <libintl.h>
#include <locale.h>
#include <stdlib.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

/// A catalogue of one message that the system's library takes its texts from, for a scope.
class CMessagesScope
{
public:
    /// @param sText the text for a message, in UTF-8
    /// @param sKey the message in English
    explicit CMessagesScope(const std::string& sText,
                            const std::string& sKey = "No such file or directory")
        : mOld(::uselocale(static_cast<locale_t>(nullptr)))
    {
        const std::string sHeader = "Content-Type: text/plain; charset=UTF-8\n";
        // The head of the file, then length and place of both keys, the first one empty, and of
        // their texts.
        constexpr std::uint32_t keyTable = 28;
        constexpr std::uint32_t textTable = keyTable + 2 * 8;
        constexpr std::uint32_t strings = textTable + 2 * 8;
        const auto nHeaderAt = static_cast<std::uint32_t>(strings + 1 + sKey.size() + 1);
        const auto nTextAt = static_cast<std::uint32_t>(nHeaderAt + sHeader.size() + 1);
        std::vector<std::uint32_t> numbers{0x950412DE, 0, 2, keyTable, textTable, 0, strings};
        const auto addString = [&numbers](const std::string& rsString, std::uint32_t nAt) {
            numbers.push_back(static_cast<std::uint32_t>(rsString.size()));
            numbers.push_back(nAt);
        };
        addString("", strings);
        addString(sKey, strings + 1);
        addString(sHeader, nHeaderAt);
        addString(sText, nTextAt);
        std::filesystem::create_directories(mFolder.Path("xx/LC_MESSAGES"));
        std::string sFile(reinterpret_cast<const char*>(numbers.data()),
                          numbers.size() * sizeof(std::uint32_t));
        for (const std::string& rsPart : {std::string(), sKey, sHeader, sText}) {
            sFile += rsPart + '\0';
        }
        mFolder.Write("xx/LC_MESSAGES/libc.mo", sFile);
        ::setenv("LANGUAGE", "xx", 1);
        ::bindtextdomain("libc", mFolder.Path("").c_str());
        ::uselocale(mNew);
    }
    CMessagesScope(const CMessagesScope&) = delete;
    CMessagesScope& operator=(const CMessagesScope&) = delete;
    ~CMessagesScope()
    {
        ::uselocale(mOld);
        ::freelocale(mNew);
        ::bindtextdomain("libc", "/usr/share/locale");
        ::unsetenv("LANGUAGE");
    }

private:
    CTempFolder mFolder;
    locale_t mOld;
    locale_t mNew = ::newlocale(LC_ALL_MASK, "C.UTF-8", nullptr);
};
