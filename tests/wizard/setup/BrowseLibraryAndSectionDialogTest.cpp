#include "wizard/setup/BrowseLibraryAndSectionDialog.h"

#include "platform/base/CodePageScope.h"
#include "platform/headless/HeadlessDesktop.h"
#include "support/Look.h"
#include "support/Steps.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace
{
using namespace steps;

static_assert(!std::is_copy_constructible_v<CBrowseLibraryAndSectionDialog>);
static_assert(!std::is_copy_assignable_v<CBrowseLibraryAndSectionDialog>);

class BrowseLibraryAndSection : public testing::Test
{
protected:
    CString Run(CScript script)
    {
        int nResult = 0;
        script.Run(mDesktop, [this, &nResult] { nResult = static_cast<int>(mDialog.DoModal()); });
        return nResult == IDOK ? "ok" : "cancel";
    }

    HeadlessDesktop mDesktop;
    CBrowseLibraryAndSectionDialog mDialog{"/models/tech.lib", "TT"};
};

TEST_F(BrowseLibraryAndSection, ShowsWhatItWasGiven)
{
    EXPECT_EQ(mDialog.GetTemplate().size, (TSize{275, 68}));
    Run(CScript().Look(
        {look::Title("Load library file"), look::Label("library-file", "&Library file:"),
         look::Text("library-file", "/models/tech.lib"), look::Text("browse", "..."),
         look::Label("section-name", "&Section name:"), look::Text("section-name", "TT"),
         look::Text("ok", "OK"), look::Text("cancel", "Cancel")}));
}

TEST_F(BrowseLibraryAndSection, BrowsesInTheFolderOfTheLibraryAsItStands)
{
    mDesktop.AnswerFile({TFileChoice::EEnd::Chosen, "/x/new.lib"});
    Run(CScript()
            .Do({Set("library-file", "/other/a.lib"), Click("browse")})
            .Look({look::Text("library-file", "/x/new.lib")}));
    const auto shown = mDesktop.TakeFileDialogs();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_TRUE(shown[0].bOpen);
    EXPECT_EQ(shown[0].sFolder, "/other");
    EXPECT_EQ(shown[0].sFilter, "Spice Library Files (*.lib)|*.lib|All Files (*.*)|*.*||");
    EXPECT_EQ(shown[0].sDefaultExtension, "lib");
    EXPECT_EQ(mDesktop.ReadProfile("", "MRPATH"), std::nullopt) << "it isn't a browse button";
}

TEST_F(BrowseLibraryAndSection, ACancelledBrowseLeavesTheEdit)
{
    Run(CScript().Do({Click("browse")}).Look({look::Text("library-file", "/models/tech.lib")}));
}

TEST_F(BrowseLibraryAndSection, OkTakesTheFieldsAndCancelDoesNot)
{
    const auto typed = CScript().Do({Set("library-file", "a.lib"), Set("section-name", " S ")});
    EXPECT_EQ(Run(CScript(typed).Do({Click("cancel")})), "cancel");
    EXPECT_EQ(mDialog.GetLibraryPath(), "/models/tech.lib");
    EXPECT_EQ(mDialog.GetSection(), "TT");
    EXPECT_EQ(Run(CScript(typed).Do({Click("ok")})), "ok");
    EXPECT_EQ(mDialog.GetLibraryPath(), "a.lib");
    EXPECT_EQ(mDialog.GetSection(), " S ");
}

TEST_F(BrowseLibraryAndSection, TextsAreConvertedToTheSystemsCodePage)
{
    CBrowseLibraryAndSectionDialog dialog(CStringU(u"/m\u00F6/t.lib"), CStringU(u"a\u00E9"));
    CScript()
        .Look({look::Text("library-file", "/m\xC3\xB6/t.lib"),
               look::Text("section-name", "a\xC3\xA9")})
        .Run(mDesktop, [&dialog] { dialog.DoModal(); });
}

TEST_F(BrowseLibraryAndSection, UnderAnotherCodePageTextsAreConvertedToItAndBack)
{
    const CCodePageScope codePage(kCodePageWindows1252);
    CBrowseLibraryAndSectionDialog dialog(CStringU(u"/m\u00F6/\u0416.lib"), CStringU(u"a\u00E9"));
    mDesktop.AnswerFile({TFileChoice::EEnd::Chosen, "/\xFC/b.lib"});
    CScript()
        .Look({look::Text("library-file", "/m\xF6/?.lib"), look::Text("section-name", "a\xE9")})
        .Do({Click("browse"), Set("section-name", "\xE4"), Click("ok")})
        .Run(mDesktop, [&dialog] { EXPECT_EQ(dialog.DoModal(), IDOK); });
    const auto shown = mDesktop.TakeFileDialogs();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].sFolder, "/m\xF6");
    EXPECT_EQ(dialog.GetLibraryPath(), CStringU(u"/\u00FC/b.lib"));
    EXPECT_EQ(dialog.GetSection(), CStringU(u"\u00E4"));
}
} // namespace
