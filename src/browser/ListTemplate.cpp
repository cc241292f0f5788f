#include "browser/ListTemplate.h"

void gAnchorList(CXTPResizeDialog& rDialog, TAnchor exportCorner)
{
    rDialog.SetResize(kListTable, kAnchorTopLeft, kAnchorBottomRight);
    rDialog.SetResize(kListDetails, kAnchorBottomLeft, kAnchorBottomLeft);
    rDialog.SetResize(kListExport, exportCorner, exportCorner);
    rDialog.SetResize(kListQuorvaModels, kAnchorBottomLeft, kAnchorBottomLeft);
    rDialog.SetResize(kListRecalculate, kAnchorBottomRight, kAnchorBottomRight);
    rDialog.SetResize(IDCANCEL, kAnchorBottomRight, kAnchorBottomRight);
}
