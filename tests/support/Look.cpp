#include "support/Look.h"

#include "platform/ui/Button.h"
#include "platform/ui/ComboBox.h"
#include "platform/ui/FieldView.h"
#include "platform/ui/ListBox.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace look
{
namespace
{
/// A look at one field, which must be there.
template <class TLook> CScript::TAction At(std::string sKey, TLook lookAt)
{
    return [sKey = std::move(sKey), lookAt = std::move(lookAt)](CDialog& rDialog) {
        SCOPED_TRACE("field '" + sKey + "'");
        const TFieldView field = gFindField(rDialog, sKey);
        ASSERT_TRUE(field.pControl) << "there is no such field";
        lookAt(field);
    };
}
} // namespace

CScript::TAction Text(std::string sKey, std::string sText)
{
    return At(std::move(sKey), [sText = std::move(sText)](const TFieldView& rField) {
        EXPECT_EQ(rField.pControl->GetWindowText(), sText);
    });
}

CScript::TAction Label(std::string sKey, std::string sText)
{
    return At(std::move(sKey), [sText = std::move(sText)](const TFieldView& rField) {
        ASSERT_TRUE(rField.pLabel) << "it has no label";
        EXPECT_EQ(rField.pLabel->GetWindowText(), sText);
    });
}

CScript::TAction Shown(std::string sKey, bool bShown)
{
    return At(std::move(sKey), [bShown](const TFieldView& rField) {
        EXPECT_EQ(rField.pControl->IsWindowVisible(), bShown);
        if (rField.pLabel) {
            EXPECT_EQ(rField.pLabel->IsWindowVisible(), bShown) << "its label";
        }
    });
}

CScript::TAction Enabled(std::string sKey, bool bEnabled)
{
    return At(std::move(sKey), [bEnabled](const TFieldView& rField) {
        EXPECT_TRUE(rField.pControl->IsWindowVisible());
        EXPECT_EQ(rField.pControl->IsUsable(), bEnabled);
        if (rField.pLabel) {
            EXPECT_EQ(rField.pLabel->IsUsable(), bEnabled) << "its label";
        }
    });
}

CScript::TAction Checked(std::string sKey, int nChecked)
{
    return At(std::move(sKey), [nChecked](const TFieldView& rField) {
        if (rField.kind == EControl::CheckBox) {
            EXPECT_EQ(dynamic_cast<CButton&>(*rField.pControl).GetCheck(), nChecked);
            return;
        }
        for (int n = 0; n < static_cast<int>(rField.radios.size()); ++n)
            EXPECT_EQ(rField.radios[static_cast<std::size_t>(n)]->GetCheck(), n == nChecked) << n;
    });
}

CScript::TAction Entries(std::string sKey, std::vector<std::string> entries)
{
    return At(std::move(sKey), [entries = std::move(entries)](const TFieldView& rField) {
        std::vector<std::string> found;
        if (auto* const pList = dynamic_cast<CListBox*>(rField.pControl)) {
            for (int n = 0; n < pList->GetCount(); ++n)
                found.emplace_back(pList->GetText(n).GetString());
        } else {
            for (const CString& rsEntry : dynamic_cast<CComboBox&>(*rField.pControl).GetItems())
                found.emplace_back(rsEntry.GetString());
        }
        EXPECT_EQ(found, entries);
    });
}

CScript::TAction Selected(std::string sKey, int nIndex)
{
    return At(std::move(sKey), [nIndex](const TFieldView& rField) {
        if (const auto* const pList = dynamic_cast<CListBox*>(rField.pControl)) {
            EXPECT_EQ(pList->GetCurSel(), nIndex);
        } else {
            EXPECT_EQ(dynamic_cast<CComboBox&>(*rField.pControl).GetCurSel(), nIndex);
        }
    });
}

CScript::TAction Focused(std::string sKey)
{
    return At(std::move(sKey),
              [](const TFieldView& rField) { EXPECT_EQ(CWnd::GetFocus(), rField.pControl); });
}

CScript::TAction Title(std::string sTitle)
{
    return [sTitle = std::move(sTitle)](CDialog& rDialog) {
        EXPECT_EQ(rDialog.GetWindowText(), sTitle);
    };
}

CScript::TAction Command(std::string sCommand)
{
    return [sCommand = std::move(sCommand)](CDialog&) {
        EXPECT_EQ(gOpenWizard().GetCommand(), sCommand);
    };
}
} // namespace look
