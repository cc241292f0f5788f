// QUORVAWIZ_RUN_LOCALE names the locale in which the tests of this program run, in both libraries.
// The ctest entries foundation.comma-locale and params.comma-locale give one with a decimal comma,
// and the run fails without it.

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <locale>

namespace
{

class CRunLocale : public testing::Environment
{
public:
    void SetUp() override
    {
        const char* const pName = std::getenv("QUORVAWIZ_RUN_LOCALE");
        if (pName == nullptr) {
            return;
        }
        ASSERT_NE(std::setlocale(LC_ALL, pName), nullptr) << pName;
        std::locale::global(std::locale(pName));
        ASSERT_STREQ(std::localeconv()->decimal_point, ",");
        ASSERT_EQ(std::use_facet<std::numpunct<char>>(std::locale()).decimal_point(), ',');
    }
};

// The test library owns it.
const auto* const pRunLocale = testing::AddGlobalTestEnvironment(new CRunLocale);

} // namespace
