#pragma once

#include "wizard/frame/PageLayout.h"

// The rows of a page that refers to a file.

namespace FileRows
{
enum EControlId { kFileGroup = 1001, kFile, kBrowse, kSection };

/// The file's edit in a frame that is its label, with the browse button under it.
constexpr auto FileGroup(const char* pTitle)
{
    return GroupBox(kFileGroup, "file-group", pTitle, BareEdit(kFile, "file"),
                    At(Row(kBrowse, "browse", EControl::PushButton, "&Browse...",
                           {PageLayout::kLeft, 0, 50 + PageLayout::kGroupSide, 14})));
}

/// The section of a library file.
constexpr auto SectionLine()
{
    return EditLine(TColumns{.nField = 80}, kSection, "section", "Lib&rary section:");
}
} // namespace FileRows
