#include "wizard/frame/SinglePageDlg.h"

#include "platform/base/Exceptions.h"
#include "platform/ui/RuntimeClass.h"
#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "wizard/frame/TreeSelectPage.h"

namespace
{
using namespace steps;

using SinglePageDlg = PageTest;

constexpr const char* kClass = "CAnalysisDCSweepPage";

TEST_F(SinglePageDlg, IsTheTreeDialogWithThePagesCaptionAndOneNode)
{
    gRunSinglePage(kClass, CScript().Look({look::Title("DC sweep")}).Then([](CDialog&) {
        const CTreeCtrl& rTree = gOpenWizard().GetTree();
        const HTREEITEM hNode = rTree.GetRootItem();
        EXPECT_EQ(rTree.GetItemText(hNode), "DC sweep");
        EXPECT_EQ(rTree.GetSelectedItem(), hNode);
        EXPECT_EQ(rTree.GetChildItem(hNode), nullptr);
        EXPECT_EQ(rTree.GetNextSiblingItem(hNode), nullptr);
    }));
}

TEST_F(SinglePageDlg, InsertWorksAlsoAfterTheOnlyNodeWasClickedAgain)
{
    const auto outcome = gRunSinglePage(
        kClass, CScript()
                    .Look({look::Enabled("insert")})
                    .Do({Focus("tree"), Open("DC sweep")})
                    .Look({look::Enabled("insert")})
                    .Fill({"source-name-1=v1", "start-1=0", "end-1=5", "increment-1=1"})
                    .Do({Insert(), Insert()}));
    EXPECT_EQ(outcome.inserted, (std::vector<std::string>{".dc v1 0 5 1", ".dc v1 0 5 1"}));
}

TEST_F(SinglePageDlg, AClassThatIsNoPageIsAnError)
{
    EXPECT_THROW(CSinglePageDlg(nullptr, nullptr, *CRuntimeClass::FromName("CCommandPage")),
                 CInvalidArgException);
}
} // namespace
