#pragma once

#include "platform/ui/Dialog.h"
#include "platform/ui/PropertySheet.h"
#include "platform/ui/ResizeAnchors.h"

/// A window whose controls follow its size. A handler of WM_SIZE of a derived class calls
/// `DefWindowProc` first.
template <class TWindow> class CXTPResizeWindow : public TWindow
{
public:
    using TWindow::TWindow;

    /// From now on both corners of the control `nId` keep their distance to their anchors.
    void SetResize(int nId, TAnchor topLeft, TAnchor bottomRight)
    {
        mAnchors.Add(*this, nId, topLeft, bottomRight);
    }

    LRESULT DefWindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override
    {
        if (nMessage == WM_SIZE && wParam != SIZE_MINIMIZED)
            mAnchors.Apply(*this);
        return TWindow::DefWindowProc(nMessage, wParam, lParam);
    }

protected:
    void OnDestroyed() override
    {
        mAnchors.Clear();
        TWindow::OnDestroyed();
    }

private:
    CResizeAnchors mAnchors;
};

/// A dialog whose controls follow its size.
using CXTPResizeDialog = CXTPResizeWindow<CDialog>;
/// A property page whose controls follow its size.
using CXTPResizePropertyPage = CXTPResizeWindow<CPropertyPage>;
/// A property sheet whose tabs, page and buttons follow its size.
using CXTPResizePropertySheet = CXTPResizeWindow<CPropertySheet>;
