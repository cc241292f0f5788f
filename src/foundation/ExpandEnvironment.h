#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// How deep the values of variables are looked at inside each other; each level needs some stack.
inline constexpr std::size_t kMostNestedNames = 100;

/// How many values inside values are looked at for one path, whatever the variables are.
inline constexpr int kMostNestedTests = 10'000;

/// What the expansion of one path remembers, so that variables that refer to themselves or to many
/// others come to an end.
struct TExpandedNames {
    std::vector<std::u16string> mNames;       ///< whose values are being looked at, outermost first
    int mnTestsLeft = kMostNestedTests;       ///< how many more values inside values are looked at
    std::map<std::u16string, bool> mAbsolute; ///< by name: whether a value in the path is absolute
};

/// Tells whether a value is an absolute path, which may take its own references filled in.
using TIsAbsolute = bool (*)(std::u16string_view sValue, TExpandedNames& rNames);

/// Fills in the environment variables of a path: ${NAME}, $NAME with letters, digits and "_" of
/// ASCII, and %NAME%. A reference to a variable that isn't set stays. An absolute value takes the
/// place of everything before it. A value that was filled in is not scanned again, but to tell
/// whether it is absolute, the references in it are filled in; of those stay: one to a variable
/// whose value is being looked at, one in a value that is kMostNestedNames deep, and all that come
/// after kMostNestedTests of them. A variable that comes again in the path is judged as at first.
/// @param sPath the path; one of less than two characters has no references
/// @param rNames the variables being expanded; new ones for a path of a caller
/// @param pIsAbsolute the test of a value
[[nodiscard]] std::u16string gExpandEnvironment(std::u16string sPath, TExpandedNames& rNames,
                                                TIsAbsolute pIsAbsolute);
