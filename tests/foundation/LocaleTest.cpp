// The foundation's texts don't depend on the locale.

#include "foundation/StringU.h"
#include "foundation/TextFile.h"
#include "support/PrintStringU.h"

#include <gtest/gtest.h>

#include <locale>
#include <string>

namespace
{

/// Writes numbers as in much of Europe.
class CCommaPunctuation : public std::numpunct<char>
{
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

/// While it lives, the C++ library runs in a locale with a decimal comma and grouped digits. The C
/// library's turn is the run of all tests in such a locale: see RunLocale.cpp.
class CCommaLocale
{
public:
    CCommaLocale()
        : mOld(std::locale::global(std::locale(std::locale::classic(), new CCommaPunctuation)))
    {
    }
    ~CCommaLocale() { std::locale::global(mOld); }
    CCommaLocale(const CCommaLocale&) = delete;
    CCommaLocale& operator=(const CCommaLocale&) = delete;

private:
    std::locale mOld;
};

TEST(LocaleTest, NumbersInFilesHaveAPoint)
{
    const CCommaLocale locale;
    TTextFile file(EncodingUtf8, "", "");
    file << 1234567.5 << " " << 1234567 << "\n";
    file.Seek(0, CFile::begin);
    EXPECT_EQ(file.ReadAll(), "1234567.5 1234567\n");
}

TEST(LocaleTest, CaseIsThatOfUnicode)
{
    const CCommaLocale locale;
    EXPECT_EQ(CompareNoCase("TITLE", "title"), 0);
    CStringU sText(u"TITLE\u00c9");
    EXPECT_EQ(sText.MakeLower(), u"title\u00e9");
    EXPECT_EQ(sText.MakeUpper(), u"TITLE\u00c9");
}

} // namespace
