#include "platform/ui/Fields.h"

#include "platform/ui/PropertyPage.h"
#include "platform/ui/SampleDialog.h"
#include "platform/ui/TemplateRows.h"

#include <gtest/gtest.h>

namespace
{
constexpr TControlRow kDelay = Row(1, "delay", EControl::Edit, "", {70, 10, 80, 13});
constexpr TControlRow kName = Row(2, "name", EControl::Edit, "", {70, 28, 80, 13});
constexpr auto kRows = JoinRows(
    LabelFor(kDelay, "&Delay:", {7, 12, 60, 9}), kDelay,
    UnitFor(kDelay, "seconds", {155, 12, 30, 9}), LabelFor(kName, "&Name:", {7, 30, 60, 9}), kName,
    Row(3, "both", EControl::Edit, "", {0, 50, 9, 13}, kUnlabelled, 3),
    Row(4, "first", EControl::Edit, "", {0, 70, 9, 13}, kUnlabelled, 1),
    Row(5, "second", EControl::Edit, "", {0, 90, 9, 13}, kUnlabelled | kHidden, 2));
constexpr DialogTemplate kTemplate{"Fields", {200, 110}, kRows};

class FieldsTest : public testing::Test
{
protected:
    void In(const std::function<void()>& rLook) { gLookInto(mDialog, rLook); }
    /// The ids that are shown, or enabled, in order.
    std::vector<int> Ids(bool (CWnd::*pIs)() const) const
    {
        std::vector<int> ids;
        for (const CWnd* pChild : mDialog.GetChildren())
            if ((pChild->*pIs)())
                ids.push_back(pChild->GetDlgCtrlID());
        return ids;
    }
    CLogDialog mDialog{kTemplate};
};

TEST_F(FieldsTest, EnableTakesLabelAndUnitAlong)
{
    In([this] {
        gEnableField(mDialog, 1, false);
        EXPECT_EQ(Ids(&CWnd::IsWindowEnabled), (std::vector{LabelOf(2), 2, 3, 4, 5}));
        gEnableField(mDialog, 2, false);
        EXPECT_EQ(Ids(&CWnd::IsWindowEnabled), (std::vector{3, 4, 5}));
        gEnableField(mDialog, 1, true);
        EXPECT_EQ(Ids(&CWnd::IsWindowEnabled), (std::vector{LabelOf(1), 1, UnitOf(1), 3, 4, 5}));
        gEnableField(mDialog, 99, false);
    });
}

TEST_F(FieldsTest, ShowTakesLabelAndUnitAlong)
{
    In([this] {
        gShowField(mDialog, 1, false);
        EXPECT_EQ(Ids(&CWnd::IsShown), (std::vector{LabelOf(2), 2, 3, 4}));
        gShowField(mDialog, 3, false);
        gShowField(mDialog, 1, true);
        EXPECT_EQ(Ids(&CWnd::IsShown), (std::vector{LabelOf(1), 1, UnitOf(1), LabelOf(2), 2, 4}));
    });
}

TEST_F(FieldsTest, TheLabelsTextIsSet)
{
    In([this] {
        gSetFieldLabel(mDialog, 1, "&Rise:");
        EXPECT_EQ(mDialog.GetDlgItem(LabelOf(1))->GetWindowText(), "&Rise:");
        EXPECT_EQ(mDialog.GetDlgItem(UnitOf(1))->GetWindowText(), "seconds");
        gSetFieldLabel(mDialog, 3, "nobody");
    });
}

TEST_F(FieldsTest, LayersShowWhatHasABitInCommon)
{
    struct TCase {
        unsigned nMask;
        std::vector<int> shown; ///< of those with layers
    };
    const TCase kCases[] = {{1, {3, 4}}, {2, {3, 5}}, {3, {3, 4, 5}},
                            {0, {}},     {4, {}},     {6, {3, 5}}};
    In([&] {
        for (const TCase& rCase : kCases) {
            gShowLayers(mDialog, rCase.nMask);
            std::vector<int> expected{LabelOf(1), 1, UnitOf(1), LabelOf(2), 2};
            expected.insert(expected.end(), rCase.shown.begin(), rCase.shown.end());
            EXPECT_EQ(Ids(&CWnd::IsShown), expected) << rCase.nMask;
        }
    });
}
} // namespace
