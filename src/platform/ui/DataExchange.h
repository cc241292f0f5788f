#pragma once

#include "platform/base/StringA.h"

#include <utility>
#include <vector>

class CWnd;

/// What a data exchange is for.
enum class EDataExchange {
    Bind, ///< before the controls exist: `DDX_Control` says which members are controls
    Save, ///< from controls to fields
    Load, ///< from fields to controls
};

/// One pass of `DoDataExchange`.
class CDataExchange
{
public:
    CDataExchange(CWnd& rWnd, EDataExchange mode) : mrWnd(rWnd), mMode(mode) {}

    EDataExchange GetMode() const { return mMode; }
    /// True in the direction from controls to fields.
    bool IsSaving() const { return mMode == EDataExchange::Save; }

    /// The control `nId`. Throws CInvalidArgException when the window has none.
    CWnd& GetControl(int nId) const;

    /// Notes that member `rControl` is control `nId`. Throws CInvalidArgException when the control
    /// or the id is bound already.
    void Bind(int nId, CWnd& rControl);
    const std::vector<std::pair<int, CWnd*>>& GetBindings() const { return mBindings; }

private:
    CWnd& mrWnd;
    EDataExchange mMode;
    std::vector<std::pair<int, CWnd*>> mBindings;
};

/// Makes `rControl` the control `nId` of the window.
void DDX_Control(CDataExchange* pDX, int nId, CWnd& rControl);

/// Moves the text of control `nId`. Into the control it is written only where it differs.
void DDX_Text(CDataExchange* pDX, int nId, CString& rsValue);

/// Moves the state of a check box: 0 or 1.
void DDX_Check(CDataExchange* pDX, int nId, int& rnValue);

/// Moves the text of a combo box. Into the control the text goes as it stands, and an entry is
/// selected only when it is equal to it.
void DDX_CBString(CDataExchange* pDX, int nId, CString& rsValue);
