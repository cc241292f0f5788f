#include "platform/ui/TreeCtrl.h"

#include "platform/headless/TreePath.h"
#include "platform/ui/SampleDialog.h"

#include <gtest/gtest.h>

// The sample's tree: A (A1, A2 (A21)), B, C (C1).

namespace
{
TEST(TreeCtrlTest, UserActions)
{
    const TStory kStories[] = {
        {"select", {"path places=B"}, {"places:sel-change"}},
        {"a selected node notifies nothing",
         {"path places=B", "path places=b"},
         {"places:sel-change"}},
        {"open and close", {"expand places=A", "collapse places=A"}, {}},
        {"close over the selection",
         {"path places=A/A2/A21", "collapse places=A"},
         {"places:sel-change", "places:sel-change"}},
        {"close beside the selection",
         {"path places=C/C1", "expand places=A", "collapse places=A"},
         {"places:sel-change"}},
        {"close the selected node",
         {"expand places=A", "path places=A", "collapse places=A"},
         {"places:sel-change"}},
        {"close a node above one that was closed over the selection",
         {"path places=A/A2/A21", "collapse places=A/A2", "collapse places=A"},
         {"places:sel-change", "places:sel-change", "places:sel-change"}},
        {"an unknown node", {"path places=A/B"}, {"! unknown entry"}},
        {"a leaf can't be opened", {"expand places=B"}, {}},
    };
    for (const TStory& rStory : kStories)
        gCheckStory(rStory);
}

class TreeCtrlOperationsTest : public testing::Test
{
protected:
    void In(const std::function<void(CTreeCtrl&)>& rLook)
    {
        gLookInto(mDialog, [&] { rLook(mDialog.Get<CTreeCtrl>(kPlaces)); });
    }
    static HTREEITEM At(const CTreeCtrl& rTree, const char* pPath)
    {
        return gFindTreePath(rTree, pPath);
    }
    CSampleDialog mDialog;
};

TEST_F(TreeCtrlOperationsTest, Walks)
{
    In([](const CTreeCtrl& rTree) {
        const HTREEITEM hA = rTree.GetRootItem();
        EXPECT_EQ(rTree.GetItemText(hA), "A");
        EXPECT_EQ(rTree.GetParentItem(hA), nullptr);
        const HTREEITEM hA1 = rTree.GetChildItem(hA);
        EXPECT_EQ(rTree.GetItemText(hA1), "A1");
        EXPECT_EQ(rTree.GetChildItem(hA1), nullptr);
        EXPECT_EQ(rTree.GetParentItem(hA1), hA);
        const HTREEITEM hA2 = rTree.GetNextSiblingItem(hA1);
        EXPECT_EQ(rTree.GetItemText(hA2), "A2");
        EXPECT_EQ(rTree.GetNextSiblingItem(hA2), nullptr);
        const HTREEITEM hB = rTree.GetNextSiblingItem(hA);
        const HTREEITEM hC = rTree.GetNextSiblingItem(hB);
        EXPECT_EQ(rTree.GetItemText(hC), "C");
        EXPECT_EQ(rTree.GetNextSiblingItem(hC), nullptr);
    });
}

TEST_F(TreeCtrlOperationsTest, AnswersForNoNode)
{
    In([](CTreeCtrl& rTree) {
        EXPECT_EQ(rTree.GetChildItem(nullptr), nullptr);
        EXPECT_EQ(rTree.GetNextSiblingItem(nullptr), nullptr);
        EXPECT_EQ(rTree.GetParentItem(nullptr), nullptr);
        EXPECT_EQ(rTree.GetItemText(nullptr), "");
        EXPECT_EQ(rTree.GetItemData(nullptr), 0);
        EXPECT_FALSE(rTree.IsExpanded(nullptr));
        rTree.SetItemData(nullptr, 5);
        rTree.Expand(nullptr, true);
        EXPECT_EQ(rTree.UserSelect(nullptr), EUserResult::Invalid);
        EXPECT_EQ(rTree.UserExpand(nullptr, true), EUserResult::Invalid);
    });
}

TEST_F(TreeCtrlOperationsTest, DataHas32Bits)
{
    In([](CTreeCtrl& rTree) {
        const HTREEITEM hA = rTree.GetRootItem();
        EXPECT_EQ(rTree.GetItemData(hA), 0);
        for (const std::int32_t nData : {1, -1, 0x10000, INT32_MAX, INT32_MIN}) {
            rTree.SetItemData(hA, nData);
            EXPECT_EQ(rTree.GetItemData(hA), nData);
        }
        EXPECT_EQ(rTree.GetItemData(rTree.GetChildItem(hA)), 0);
    });
}

TEST_F(TreeCtrlOperationsTest, ASelectionOpensItsParents)
{
    In([this](CTreeCtrl& rTree) {
        const HTREEITEM hDeep = At(rTree, "A/A2/A21");
        EXPECT_FALSE(rTree.IsExpanded(At(rTree, "A")));
        rTree.SelectItem(hDeep);
        EXPECT_EQ(rTree.GetSelectedItem(), hDeep);
        EXPECT_TRUE(rTree.IsExpanded(At(rTree, "A")));
        EXPECT_TRUE(rTree.IsExpanded(At(rTree, "A/A2")));
        EXPECT_FALSE(rTree.IsExpanded(At(rTree, "C")));
        EXPECT_EQ(mDialog.TakeLog(), TLog{"places:sel-change"});
    });
}

TEST_F(TreeCtrlOperationsTest, SelectItemNotifiesLikeAClick)
{
    In([this](CTreeCtrl& rTree) {
        rTree.SelectItem(At(rTree, "B"));
        rTree.SelectItem(At(rTree, "B"));
        rTree.SelectItem(At(rTree, "C"));
        rTree.SelectItem(nullptr);
        rTree.SelectItem(nullptr);
        EXPECT_EQ(mDialog.TakeLog(),
                  (TLog{"places:sel-change", "places:sel-change", "places:sel-change"}));
        EXPECT_EQ(rTree.GetSelectedItem(), nullptr);
    });
}

TEST_F(TreeCtrlOperationsTest, ClosingOverTheSelectionMovesItToTheClosedNode)
{
    In([](CTreeCtrl& rTree) {
        rTree.SelectItem(At(rTree, "A/A2/A21"));
        rTree.Expand(At(rTree, "A"), false);
        EXPECT_EQ(gTreePathOf(rTree, rTree.GetSelectedItem()), "A");
        EXPECT_FALSE(rTree.IsExpanded(At(rTree, "A")));
        EXPECT_TRUE(rTree.IsExpanded(At(rTree, "A/A2"))) << "keeps its own state";
    });
}

TEST_F(TreeCtrlOperationsTest, ALeafIsNeverExpanded)
{
    In([](CTreeCtrl& rTree) {
        rTree.Expand(At(rTree, "B"), true);
        EXPECT_FALSE(rTree.IsExpanded(At(rTree, "B")));
    });
}

TEST_F(TreeCtrlOperationsTest, TheVisibleNeighbourIsCutAtTheEnds)
{
    In([](CTreeCtrl& rTree) {
        const auto neighbour = [&](int nSteps) {
            return gTreePathOf(rTree, rTree.GetVisibleNeighbour(nSteps));
        };
        EXPECT_EQ(neighbour(1), "A") << "none is selected";
        EXPECT_EQ(neighbour(-1), "A");
        rTree.SelectItem(At(rTree, "A"));
        EXPECT_EQ(neighbour(1), "B");
        EXPECT_EQ(neighbour(-1), "A");
        EXPECT_EQ(neighbour(2), "C");
        EXPECT_EQ(neighbour(9), "C");
        rTree.Expand(At(rTree, "A"), true);
        EXPECT_EQ(neighbour(1), "A/A1");
        EXPECT_EQ(neighbour(3), "B");
        rTree.SelectItem(At(rTree, "B"));
        EXPECT_EQ(neighbour(-1), "A/A2");
        EXPECT_EQ(neighbour(-9), "A");
    });
}

TEST_F(TreeCtrlOperationsTest, DeleteAllItemsLeavesNoSelection)
{
    In([this](CTreeCtrl& rTree) {
        rTree.SelectItem(At(rTree, "A/A1"));
        mDialog.TakeLog();
        rTree.DeleteAllItems();
        EXPECT_EQ(rTree.GetSelectedItem(), nullptr);
        EXPECT_EQ(rTree.GetRootItem(), nullptr);
        EXPECT_EQ(rTree.GetVisibleNeighbour(1), nullptr);
        EXPECT_EQ(mDialog.TakeLog(), TLog{});
        rTree.SelectItem(rTree.InsertItem("new"));
        EXPECT_EQ(mDialog.TakeLog(), TLog{"places:sel-change"});
    });
}
} // namespace
