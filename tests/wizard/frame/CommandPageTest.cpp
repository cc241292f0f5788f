#include "wizard/frame/CommandPage.h"

#include "support/VirtualSlot.h"
#include "wizard/frame/Remembered.h"
#include "wizard/frame/WizardPages.h"

#include <gtest/gtest.h>

namespace
{
constexpr DialogTemplate kTemplate{"Page", kPageSize, {}};

class CPage : public CCommandPage
{
public:
    CPage() : CCommandPage(kTemplate) {}
    using CCommandPage::DoDataExchange;
    using CCommandPage::GetMessageMap;
    bool BuildCommand(CString&) override { return false; }
};

TEST(CommandPage, ItsVirtualOperationsStandInThisOrder)
{
    // The destructor takes the first two slots of every class here.
    const std::size_t slots[] = {
        1,
        gVirtualSlot(&CPage::GetMessageMap),
        gVirtualSlot(&CPage::DoDataExchange),
        gVirtualSlot(&CPage::OnInitDialog),
        gVirtualSlot(&CPage::BuildCommand),
    };
    for (std::size_t n = 1; n < std::size(slots); ++n)
        EXPECT_GT(slots[n], slots[n - 1]) << n;
}

TEST(CommandPage, BuildCommandIsTheOnlyOperationThatItAdds)
{
    class CProbe : public CPropertyPage
    {
    public:
        CProbe() : CPropertyPage(kTemplate) {}
        virtual void First() {}
    };
    EXPECT_EQ(gVirtualSlot(&CCommandPage::BuildCommand), gVirtualSlot(&CProbe::First))
        << "it stands right behind all inherited ones";
}

TEST(CommandPage, HandsItsTemplateOnWithCaptionZeroAndTheStandardSize)
{
    const CPage page;
    EXPECT_EQ(&page.GetTemplate(), &kTemplate);
    EXPECT_EQ(page.GetCaptionId(), 0U);
    EXPECT_EQ(page.GetDescriptorSize(), CPropertyPage::kDescriptorSize);
    static_assert(sizeof(CCommandPage) == sizeof(CPropertyPage), "no data member of its own");
}

TEST(CommandPage, IsKnownAtRunTimeAndCannotBeCreated)
{
    EXPECT_NE(CRuntimeClass::FromName("CCommandPage"), nullptr) << "registered at load";
    EXPECT_EQ(CRuntimeClass::FromName("CCommandPage"), &gRuntimeClass<CCommandPage>());
    const CPage page;
    EXPECT_TRUE(page.IsKindOf(gRuntimeClass<CCommandPage>()));
    EXPECT_EQ(gRuntimeClass<CCommandPage>().CreateObject(), nullptr);

    class COther : public CPropertyPage
    {
    public:
        COther() : CPropertyPage(kTemplate) {}
    };
    EXPECT_FALSE(COther().IsKindOf(gRuntimeClass<CCommandPage>()));
}

TEST(CommandPage, TheConstructorOfAPageOpensNoWindow)
{
    for (const TTreeRow& rRow : gWizardTree()) {
        if (rRow.pClass) {
            const auto pPage = rRow.pClass->CreateObject();
            EXPECT_FALSE(dynamic_cast<CWnd&>(*pPage).IsCreated()) << rRow.sClass;
        }
    }
}

// --- remembered values

struct TFields {
    CString msText = "default";
    int mnChoice = -1;
};

TEST(Remembered, StartsWithTheDefaultsKeepsTheLastAndResetsWithAllOthers)
{
    Remembered<TFields> first;
    {
        Remembered<TFields> second;
        EXPECT_EQ(second.Get().msText, "default");
        EXPECT_EQ(second.Get().mnChoice, -1);
        second.Set({"kept", 3});
        first.Set({"also", 1});
        EXPECT_EQ(second.Get().msText, "kept");
        EXPECT_EQ(second.Get().mnChoice, 3);
        CRememberedBase::ResetAll();
        EXPECT_EQ(second.Get().msText, "default");
        EXPECT_EQ(first.Get().mnChoice, -1);
    }
    first.Set({"again", 2});
    CRememberedBase::ResetAll();
    EXPECT_EQ(first.Get().msText, "default") << "values that are gone are not touched";
}
} // namespace
