#include "platform/base/TypeName.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <typeinfo>
#include <vector>

class CTypeNameBase
{
public:
    virtual ~CTypeNameBase() = default;
};

class CTypeNamePage final : public CTypeNameBase
{
};

namespace typenametest
{
struct TInner {
};
} // namespace typenametest

namespace
{

TEST(TypeNameTest, ReadsAsInTheSource)
{
    struct Case {
        const std::type_info* pType;
        std::string_view sName;
    };
    const Case cases[] = {
        {&typeid(CTypeNamePage), "CTypeNamePage"},
        {&typeid(typenametest::TInner), "typenametest::TInner"},
        {&typeid(std::runtime_error), "std::runtime_error"},
        {&typeid(int), "int"},
        {&typeid(const char*), "char const*"},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(gTypeName(*rCase.pType), rCase.sName);
    }
}

TEST(TypeNameTest, OfAnObjectIsThatOfItsMostDerivedClass)
{
    const CTypeNamePage page;
    const CTypeNameBase& rBase = page;
    EXPECT_EQ(gTypeName(typeid(rBase)), "CTypeNamePage");
}

TEST(TypeNameTest, StaysValidWhileOthersAreAdded)
{
    const std::string_view sFirst = gTypeName(typeid(CTypeNamePage));
    const char* const pFirst = sFirst.data();
    for (const std::type_info* pType :
         {&typeid(char), &typeid(short), &typeid(int), &typeid(long), &typeid(float),
          &typeid(double), &typeid(std::string), &typeid(std::vector<int>),
          &typeid(std::vector<char>), &typeid(std::logic_error), &typeid(bool), &typeid(void)}) {
        EXPECT_FALSE(gTypeName(*pType).empty());
    }
    EXPECT_EQ(sFirst, "CTypeNamePage");
    EXPECT_EQ(gTypeName(typeid(CTypeNamePage)).data(), pFirst);
}

/// What the compiler makes of a class, in memory that comes and goes with a library.
class CTypeOfALibrary : public std::type_info
{
public:
    explicit CTypeOfALibrary(const char* pCompilersName) : std::type_info(pCompilersName) {}
};

TEST(TypeNameTest, TypesThatAreGoneAreLookedAtNoMore)
{
    for (int i = 1000; i < 2000; ++i) {
        const std::string sName = "CGone" + std::to_string(i);
        const auto pMangled = std::make_unique<std::string>("9" + sName);
        const auto pType = std::make_unique<CTypeOfALibrary>(pMangled->c_str());
        EXPECT_EQ(gTypeName(*pType), sName);
    }
}

} // namespace
