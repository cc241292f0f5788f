#pragma once

/// What a control tells its parent. The platform's own code stands behind each.
enum class ENotify {
    Clicked,       ///< BN_CLICKED
    DoubleClicked, ///< LBN_DBLCLK, NM_DBLCLK
    Change,        ///< EN_CHANGE
    EditChange,    ///< CBN_EDITCHANGE
    SelChange,     ///< CBN_SELCHANGE, LBN_SELCHANGE, TVN_SELCHANGED, TCN_SELCHANGE, LVN_ITEMCHANGED
    SelEndOk,      ///< CBN_SELENDOK: a completed choice
    SetFocus,      ///< EN_SETFOCUS and its like
    KillFocus,     ///< EN_KILLFOCUS and its like
};
