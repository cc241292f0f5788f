#include "platform/headless/TreePath.h"

#include "platform/ui/SampleDialog.h"

#include <gtest/gtest.h>

// The sample's tree: A (A1, A2 (A21)), B, C (C1).

namespace
{
TEST(TreePathTest, FindsByLabelsWithCasePutAside)
{
    constexpr std::pair<const char*, const char*> kCases[] = {
        {"A", "A"},       {"a", "A"},       {"A/A1", "A/A1"}, {"a/a2/A21", "A/A2/A21"},
        {"C/c1", "C/C1"}, {"B", "B"},       {"", ""},         {"/", ""},
        {"A/", ""},       {"/A", ""},       {"A//A1", ""},    {"A1", ""},
        {"A/A21", ""},    {"A/A1/A21", ""}, {"D", ""},        {"A ", ""},
        {"B/B", ""},      {"A\\A1", ""},
    };
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        const auto& rTree = dialog.Get<CTreeCtrl>(kPlaces);
        for (const auto& [pPath, pExpected] : kCases) {
            EXPECT_EQ(gTreePathOf(rTree, gFindTreePath(rTree, pPath)), pExpected) << pPath;
        }
    });
}

TEST(TreePathTest, AnEmptyTreeHasNoPath)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        auto& rTree = dialog.Get<CTreeCtrl>(kPlaces);
        rTree.DeleteAllItems();
        EXPECT_EQ(gFindTreePath(rTree, "A"), nullptr);
        EXPECT_EQ(gTreePathOf(rTree, nullptr), "");
    });
}

TEST(TreePathTest, TheFirstOfEqualLabelsIsFound)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        auto& rTree = dialog.Get<CTreeCtrl>(kPlaces);
        const HTREEITEM hSecond = rTree.InsertItem("a");
        EXPECT_EQ(gFindTreePath(rTree, "a"), rTree.GetRootItem());
        EXPECT_EQ(gTreePathOf(rTree, hSecond), "a");
    });
}
} // namespace
