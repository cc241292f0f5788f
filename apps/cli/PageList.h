#pragma once

#include "cli/Wizard.h"
#include "platform/base/StringA.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvawiz::cli
{

/// One page of a wizard, built or not.
struct TPage {
    CString sPath;               ///< labels from the root on, joined by '/'; empty without a node
    std::string sClass;          ///< the name of its class
    const CRuntimeClass* pClass; ///< null while the page isn't built
    bool bCategory;              ///< a category's own page: it composes no command
    bool HasNode() const { return !sPath.IsEmpty(); }
    bool IsBuilt() const { return pClass != nullptr; }
    /// What a user calls it, in UTF-8: the path, or the class where there is none.
    std::string Name() const;
};

/// All pages of a wizard: its tree from top to bottom, then those without a node.
std::vector<TPage> gListPages(const TWizard& rWizard);

/// Finds a page.
/// @param rPages all pages
/// @param sName in UTF-8: the path of its node in any letter case, or the exact name of its class
/// @throws CUsageError if there is no such page; the text names the nearest
const TPage& gFindPage(const std::vector<TPage>& rPages, std::string_view sName);

/// The same for a page that is wanted on display.
/// @throws CUsageError also if the page isn't built yet
const TPage& gFindBuiltPage(const std::vector<TPage>& rPages, std::string_view sName);

} // namespace quorvawiz::cli
