#include "cli/SessionReply.h"

#include "cli/PageRun.h"
#include "cli/ShownFields.h"
#include "cli/TableJson.h"
#include "platform/base/Utf8Text.h"
#include "platform/ui/Desktop.h"
#include "wizard/frame/TreeDlg.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace quorvawiz::cli
{
namespace
{
void AddBoxes(const std::vector<TShownBox>& rBoxes, TJson& rReply)
{
    TJson messages = TJson::array();
    TJson questions = TJson::array();
    TJson boxes = TJson::array();
    for (const TShownBox& rShown : rBoxes) {
        const std::string sText = gToUtf8(rShown.box.sText);
        const bool bQuestion = (rShown.box.nFlags & MB_TYPEMASK) == MB_YESNO;
        (bQuestion ? questions : messages).push_back(sText);
        const CString sCaption = rShown.box.sCaption.value_or(gDesktop().GetApplicationName());
        boxes.push_back(
            {{"text", sText},
             {"caption", gToUtf8(sCaption)},
             {"flags", rShown.box.nFlags},
             {"owner", rShown.sOwnerClass.empty() ? TJson() : TJson(rShown.sOwnerClass)}});
    }
    rReply["messages"] = std::move(messages);
    rReply["questions"] = std::move(questions);
    rReply["boxes"] = std::move(boxes);
}

TJson FileDialogToJson(const TFileDialog& rDialog)
{
    return {{"kind", rDialog.bOpen ? "open" : "save"},
            {"folder", gToUtf8(rDialog.sFolder)},
            {"name", gToUtf8(rDialog.sFileName)},
            {"filter", gToUtf8(rDialog.sFilter)},
            {"flags", rDialog.nFlags},
            {"default_extension", gToUtf8(rDialog.sDefaultExtension)}};
}

/// The page on display, by its pane's class.
TJson PageToJson(CDialog& rWizardDialog, const std::vector<TPage>& rPages)
{
    const CDialog& rPane = gCurrentPane(rWizardDialog);
    if (&rPane == &rWizardDialog)
        return {};
    const std::string sClass(gClassName(rPane));
    const auto page = std::ranges::find(rPages, sClass, &TPage::sClass);
    return page == rPages.end() ? sClass : page->Name();
}

TJson DialogToJson(const CDialog& rInnermost)
{
    return {{"class", gClassName(rInnermost)}, {"title", gToUtf8(rInnermost.GetWindowText())}};
}

TJson FocusToJson()
{
    const CWnd* const pFocus = CWnd::GetFocus();
    return pFocus && *pFocus->GetKey() ? TJson(pFocus->GetKey()) : TJson();
}

TJson FieldsToJson(CDialog& rInnermost)
{
    TJson fields = TJson::object();
    for (const TFieldView& rField : gShownFields(rInnermost))
        fields[std::string(rField.sKey)] = gFieldToJson(rField);
    return fields;
}

void AddWizardState(const std::vector<TPage>& rPages, CTreeDlg& rWizard, CDialog& rInnermost,
                    TJson& rReply)
{
    rReply["command"] = gToUtf8(rWizard.GetCommand());
    rReply["insert_enabled"] = rWizard.GetDlgItem(IDOK)->IsWindowEnabled();
    rReply["page"] = PageToJson(rWizard, rPages);
    rReply["dialog"] = &rInnermost == &rWizard ? TJson() : DialogToJson(rInnermost);
    rReply["focus"] = FocusToJson();
    rReply["tree"] = gTreeToJson(rWizard.GetTree());
    rReply["fields"] = FieldsToJson(rInnermost);
}

void AddNoWizardState(TJson& rReply)
{
    rReply["command"] = nullptr;
    rReply["insert_enabled"] = false;
    for (const char* const pMember : {"page", "dialog", "focus", "tree"})
        rReply[pMember] = nullptr;
    rReply["fields"] = TJson::object();
}

void AddBrowserState(const std::optional<TRowsRequest>& rRows, CDialog& rInnermost, TJson& rReply)
{
    AddNoWizardState(rReply);
    rReply["dialog"] = DialogToJson(rInnermost);
    rReply["focus"] = FocusToJson();
    rReply["fields"] = FieldsToJson(rInnermost);
    const CTableCtrl* const pGrid = gShownGrid(rInnermost);
    rReply["table"] = pGrid ? gGridToJson(*pGrid) : TJson();
    rReply["tabs"] = gTabsToJson(rInnermost);
    if (rRows && pGrid)
        rReply["rows"] = gGridRowsToJson(*pGrid, *rRows);
}

} // namespace

TJson gComposeReply(const std::optional<std::string>& rError, const TSessionEvents& rEvents,
                    const std::vector<TPage>& rPages, CDialog* pInnermost)
{
    TJson reply = {{"ok", !rError}};
    if (rError)
        reply["error"] = *rError;
    AddBoxes(rEvents.boxes, reply);
    reply["file_dialogs"] = TJson::array();
    for (const TFileDialog& rDialog : rEvents.fileDialogs)
        reply["file_dialogs"].push_back(FileDialogToJson(rDialog));
    reply["inserted"] = TJson::array();
    for (const CString& rsCommand : rEvents.inserted)
        reply["inserted"].push_back(gToUtf8(rsCommand));
    if (!pInnermost)
        AddNoWizardState(reply);
    else if (auto* const pWizard = dynamic_cast<CTreeDlg*>(gOutermostDialog()))
        AddWizardState(rPages, *pWizard, *pInnermost, reply);
    else
        AddBrowserState(rEvents.rows, *pInnermost, reply);
    if (rEvents.end)
        reply["result"] = rEvents.end->result ? TJson(*rEvents.end->result) : TJson();
    return reply;
}

} // namespace quorvawiz::cli
