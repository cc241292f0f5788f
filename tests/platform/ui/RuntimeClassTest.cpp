#include "platform/ui/RuntimeClassDefinition.h"
#include "platform/ui/Static.h"

#include <gtest/gtest.h>

#include <string_view>

namespace rtctest
{
class CShape : public CWnd
{
public:
    virtual int CountCorners() const = 0;
};

class CSquare : public CShape
{
public:
    int CountCorners() const override { return 4; }
};

class CTriangle : public CShape
{
public:
    int CountCorners() const override { return 3; }
};

class CNobody : public CObject
{
};
} // namespace rtctest

template const CRuntimeClass& gRuntimeClass<rtctest::CShape>();
template const CRuntimeClass& gRuntimeClass<rtctest::CSquare>();

namespace
{
using namespace rtctest;

TEST(RuntimeClassTest, HasTheNameOfTheClass)
{
    EXPECT_EQ(gRuntimeClass<CShape>().GetName(), "rtctest::CShape");
    EXPECT_EQ(gRuntimeClass<CSquare>().GetName(), "rtctest::CSquare");
}

TEST(RuntimeClassTest, IsOneObjectPerClass)
{
    EXPECT_EQ(&gRuntimeClass<CSquare>(), &gRuntimeClass<CSquare>());
    EXPECT_NE(&gRuntimeClass<CSquare>(), &gRuntimeClass<CShape>());
}

TEST(RuntimeClassTest, IsFoundByItsExactName)
{
    const CRuntimeClass& rSquare = gRuntimeClass<CSquare>();
    EXPECT_EQ(CRuntimeClass::FromName("rtctest::CSquare"), &rSquare);
    for (const std::string_view sUnknown :
         {"", "CSquare", "rtctest::csquare", "rtctest::CSquare ", "rtctest::CNobody"}) {
        EXPECT_EQ(CRuntimeClass::FromName(sUnknown), nullptr) << sUnknown;
    }
}

TEST(RuntimeClassTest, CreatesWhatCanBeCreated)
{
    const auto pSquare = gRuntimeClass<CSquare>().CreateObject();
    ASSERT_NE(pSquare, nullptr);
    EXPECT_EQ(gClassName(*pSquare), "rtctest::CSquare");
    EXPECT_EQ(dynamic_cast<CShape&>(*pSquare).CountCorners(), 4);
    EXPECT_NE(gRuntimeClass<CSquare>().CreateObject(), pSquare);

    EXPECT_EQ(gRuntimeClass<CShape>().CreateObject(), nullptr) << "abstract";
}

TEST(RuntimeClassTest, IsKindOfCountsBaseClassesOnly)
{
    const CSquare square;
    const CTriangle triangle;
    const CStatic label;
    EXPECT_TRUE(square.IsKindOf(gRuntimeClass<CSquare>()));
    EXPECT_TRUE(square.IsKindOf(gRuntimeClass<CShape>()));
    EXPECT_FALSE(triangle.IsKindOf(gRuntimeClass<CSquare>()));
    EXPECT_TRUE(triangle.IsKindOf(gRuntimeClass<CShape>()));
    EXPECT_FALSE(label.IsKindOf(gRuntimeClass<CShape>()));
}

TEST(RuntimeClassTest, ClassNameNeedsNoRegistration)
{
    EXPECT_EQ(gClassName(CNobody()), "rtctest::CNobody");
    EXPECT_EQ(gClassName(CStatic()), "CStatic");
}
} // namespace
