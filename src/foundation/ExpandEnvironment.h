#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The variables whose values are being looked at, so that one that refers to itself comes to an
/// end.
struct TExpandedNames {
    std::vector<std::u16string> mNames; ///< from the outermost in
    int mnTestsLeft = 0;                ///< how many more values may be looked at inside values
};

/// Tells whether a path may refer to variables, quickly: it has a "$" or a "%".
[[nodiscard]] bool gMayHaveReferences(std::u16string_view sPath) noexcept;

/// Fills in the environment variables of a path: ${NAME}, $NAME with letters, digits and "_" of
/// ASCII, and %NAME%. A reference to a variable that isn't set stays. An absolute value takes the
/// place of everything before it. A value that was filled in is not scanned again, but to tell
/// whether it is absolute, the references in it are; there one to a variable that is being looked
/// at already stays, and so does every one beyond 10,000 for one reference of the path.
/// @param sPath the path; one of less than two characters has no references
/// @param rNames the variables being expanded
[[nodiscard]] std::u16string gExpandEnvironment(std::u16string_view sPath, TExpandedNames& rNames);
