#pragma once

#include "platform/ui/ComboBox.h"
#include "platform/ui/ListBox.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/ListEditing.h"
#include "wizard/frame/Remembered.h"
#include "wizard/output/PlotPage.h"

#include <type_traits>

/// What a page that prints results hands its work on to: plot items, made of the fields one by one
/// or collected in the list, behind the keyword of the page.
class PlotForm
{
public:
    /// All of them live longer than this.
    PlotForm(CCommandPage& rPage, const Plot::TPlotPage& rTable,
             Remembered<Plot::TPlotFields>& rRemembered);

    void Exchange(CDataExchange* pDX);
    /// As `OnInitDialog` of a page: shows what the last success has left. Result: true.
    bool InitDialog();
    /// As `BuildCommand` of a page.
    bool Build(CString& rsCommand);

    /// A plot type was chosen: shows and names what it asks for.
    void OnPlotType();
    /// The text of a name or of the expression has changed.
    void OnText(int nField);
    void OnAdd();
    void OnDelete();
    void OnClear();

private:
    const Plot::TPlotType& Type() const;
    const CString& TextOf(int nField) const;
    void Read();
    void ReadTrimmed(const Plot::TOptionalTrims& rTrims);
    void EnableAdd();
    void FillFormats(std::span<const char* const> entries);
    void TakeFormat();
    bool IsComplete();
    CString Item() const;
    CString Body() const;

    CCommandPage& mrPage;
    const Plot::TPlotPage& mrTable;
    Remembered<Plot::TPlotFields>& mrRemembered;
    CString msMessage;
    CComboBox mPlotType;
    CComboBox mTerminal;
    CComboBox mFormat;
    CListBox mList;
    ListEditing mEditing;
    Plot::TPlotFields mFields;
    CString msFormat; ///< the format text; what it holds outlives the item it was set for
};

namespace Plot
{
/// Entry for a notification that the page's form answers.
template <class TPage, auto Handler> constexpr TMessageMapEntry OnForm(ENotify notify, int nId)
{
    return {[](CWnd& rWnd, [[maybe_unused]] WPARAM wParam, LPARAM) -> LRESULT {
                PlotForm& rForm = static_cast<TPage&>(rWnd).Form();
                if constexpr (std::is_invocable_v<decltype(Handler), PlotForm&>)
                    (rForm.*Handler)();
                else
                    (rForm.*Handler)(static_cast<int>(wParam));
                return 0;
            },
            0, notify, nId};
}

/// The handlers of a page; its `Form()` is the form.
template <class TPage> TMessageMap Handlers()
{
    static constexpr TMessageMapEntry kHandlers[] = {
        OnForm<TPage, &PlotForm::OnPlotType>(ENotify::SelChange, kPlotType),
        OnForm<TPage, &PlotForm::OnText>(ENotify::Change, kFirstName),
        OnForm<TPage, &PlotForm::OnText>(ENotify::Change, kSecondName),
        OnForm<TPage, &PlotForm::OnText>(ENotify::Change, kExpression),
        OnForm<TPage, &PlotForm::OnAdd>(ENotify::Clicked, kAdd),
        OnForm<TPage, &PlotForm::OnDelete>(ENotify::Clicked, kDelete),
        OnForm<TPage, &PlotForm::OnClear>(ENotify::Clicked, kClear),
    };
    return kHandlers;
}
} // namespace Plot
