#include "platform/base/ExtensionModule.h"

#include "platform/base/Exceptions.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{
TEST(ExtensionModule, IsRegisteredFromRegistrationToTermination)
{
    const std::size_t nBefore = CDynLinkLibrary::Count();
    AFX_EXTENSION_MODULE module;
    EXPECT_FALSE(module.IsInitialized());
    EXPECT_TRUE(AfxInitExtensionModule(module, "first"));
    EXPECT_TRUE(module.IsInitialized());
    EXPECT_FALSE(CDynLinkLibrary::IsRegistered("first"));
    CDynLinkLibrary::Register(module);
    EXPECT_TRUE(CDynLinkLibrary::IsRegistered("first"));
    EXPECT_EQ(CDynLinkLibrary::Count(), nBefore + 1);
    AfxTermExtensionModule(module);
    EXPECT_FALSE(module.IsInitialized());
    EXPECT_FALSE(CDynLinkLibrary::IsRegistered("first"));
    EXPECT_EQ(CDynLinkLibrary::Count(), nBefore);
}

TEST(ExtensionModule, AnythingSaidTwiceIsDoneOnce)
{
    const std::size_t nBefore = CDynLinkLibrary::Count();
    AFX_EXTENSION_MODULE module;
    EXPECT_TRUE(AfxInitExtensionModule(module, "once"));
    EXPECT_FALSE(AfxInitExtensionModule(module, "twice"));
    EXPECT_EQ(module.GetName(), "once");
    CDynLinkLibrary::Register(module);
    CDynLinkLibrary::Register(module);
    EXPECT_EQ(CDynLinkLibrary::Count(), nBefore + 1);
    AfxTermExtensionModule(module);
    AfxTermExtensionModule(module);
    EXPECT_EQ(CDynLinkLibrary::Count(), nBefore);
}

TEST(ExtensionModule, ModulesEndInAnyOrder)
{
    const std::size_t nBefore = CDynLinkLibrary::Count();
    const auto enlist = [](std::unique_ptr<AFX_EXTENSION_MODULE>& rpModule, const char* pName) {
        rpModule = std::make_unique<AFX_EXTENSION_MODULE>();
        AfxInitExtensionModule(*rpModule, pName);
        CDynLinkLibrary::Register(*rpModule);
    };
    std::unique_ptr<AFX_EXTENSION_MODULE> pFirst, pMiddle, pLast;
    enlist(pFirst, "first");
    enlist(pMiddle, "middle");
    enlist(pLast, "last");
    EXPECT_EQ(CDynLinkLibrary::Count(), nBefore + 3);
    AfxTermExtensionModule(*pMiddle);
    EXPECT_TRUE(CDynLinkLibrary::IsRegistered("first"));
    EXPECT_FALSE(CDynLinkLibrary::IsRegistered("middle"));
    EXPECT_TRUE(CDynLinkLibrary::IsRegistered("last"));
    pLast.reset(); // its end is a termination, too
    EXPECT_TRUE(CDynLinkLibrary::IsRegistered("first"));
    pFirst.reset();
    EXPECT_EQ(CDynLinkLibrary::Count(), nBefore);
}

TEST(ExtensionModule, AModuleThatIsNotInitialisedIsRefused)
{
    const std::size_t nBefore = CDynLinkLibrary::Count();
    AFX_EXTENSION_MODULE module;
    EXPECT_THROW(AfxInitExtensionModule(module, ""), CInvalidArgException);
    EXPECT_THROW(CDynLinkLibrary::Register(module), CInvalidArgException);
    EXPECT_EQ(CDynLinkLibrary::Count(), nBefore);
}
} // namespace
