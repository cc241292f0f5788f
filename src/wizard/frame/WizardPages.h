#pragma once

#include "platform/ui/RuntimeClass.h"

#include <span>
#include <string_view>

/// One node of the wizard's tree: a category, or a page of the category above it.
struct TTreeRow {
    /// Pages are constructed category by category, in the order of this number; the pages of the
    /// categories themselves come last.
    int nOrder;
    const char* pLabel;          ///< a translatable literal
    std::string_view sClass;     ///< the class of the page
    const CRuntimeClass* pClass; ///< the same, or null while the page isn't built
    bool bCategory;
};

/// The wizard's tree from top to bottom.
std::span<const TTreeRow> gWizardTree();

/// The classes of pages that no node leads to. They can be created by name.
std::span<const CRuntimeClass* const> gWizardPagesWithoutNode();
