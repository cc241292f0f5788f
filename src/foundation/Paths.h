#pragma once

#include "foundation/FileChecks.h"
#include "foundation/PathLogger.h"
#include "foundation/StringU.h"
#include "foundation/SystemErrorText.h"
#include "foundation/SystemPaths.h"
#include "foundation/UnixSide.h"

/// Operations on file names as text. They know both separators, drives, shares and environment
/// variables; none fails on a malformed path, which gives a path that makes no sense, and none
/// looks at the disk but those of FileChecks.h and SystemPaths.h. "Slash" below means either of
/// \ and /.
///
/// Where gIsWine (platform/base/IsWine.h) says so, the rules of the Unix side hold: results have /
/// for a separator unless they begin with a drive and its slash, or with two slashes.

/// The clean form of a path: one kind of separator, no ".", no ".." that can be resolved, no
/// doubled or closing slash, environment variables filled in as gExpandEnvironment says.
/// @param rPath any path; a share needs something behind it to be taken for one, so that
///              \\server\share alone loses a backslash
/// @return the clean path; empty for an empty path
[[nodiscard]] CStringU gCanonicalizePath(const CStringU& rPath);

/// Tells whether a path says by itself where it leads, by its canonical form: a drive and its
/// slash, two slashes, or one slash if the path as given doesn't begin with a backslash.
[[nodiscard]] bool gIsAbsolutePath(const CStringU& rPath);

/// Tells whether a path is written as on the Unix side: it begins with "/", "../" or "./", perhaps
/// in quotation marks or apostrophes.
[[nodiscard]] bool gIsUnixStylePath(const CStringU& rPath);

/// Joins two paths.
/// @param rPath where the other one starts
/// @param rRelativePath an absolute path stands alone; one that begins with a slash is relative to
///                      the drive, the share or the root of rPath
/// @return the canonical form of the joined path
[[nodiscard]] CStringU gConcatenatePaths(const CStringU& rPath, const CStringU& rRelativePath);

/// The place that a path means.
/// @param rBase where a relative path starts
/// @param rPath the path
/// @return the canonical form of rPath if it is absolute, otherwise of the two joined
[[nodiscard]] CStringU gResolvePath(const CStringU& rBase, const CStringU& rPath);

/// A file name relative to a folder. The texts are compared as they are, without regard to the case
/// of ASCII letters.
/// @param rPath the folder
/// @param rFileName the file name
/// @return the relative name; rFileName itself where it isn't absolute, where the folder is empty,
///         and where the two share no drive, server and share, or folder of the Unix side
[[nodiscard]] CStringU gGetRelativeFileName(const CStringU& rPath, const CStringU& rFileName);

/// What follows the last slash or colon: the file's own name.
[[nodiscard]] CStringU gGetFileNameWithoutPath(const CStringU& rFullPath);

/// What stands before the last slash; with it behind a drive's colon, and with the colon where that
/// comes last. Empty without a slash and colon, and where the slash comes first.
[[nodiscard]] CStringU gGetPathWithoutFileName(const CStringU& rFullPath);

/// Tells whether the last component has a point, be it its last character.
[[nodiscard]] bool gHasExtension(const CStringU& rPath);

/// What follows the last point of the last component; empty without one.
[[nodiscard]] CStringU gGetExtension(const CStringU& rPath);

/// The path with another extension in the place of its own, or behind it where it has none.
/// @param rPath the path
/// @param rExtension without a point
[[nodiscard]] CStringU gSetExtension(const CStringU& rPath, const CStringU& rExtension);

/// The path with the extension appended, unless it has it already in any case of letters.
/// @param rPath the path
/// @param rExtension without a point
/// @return the path itself where it has the extension
[[nodiscard]] CStringU gEnsureExtension(const CStringU& rPath, const CStringU& rExtension);

/// The file's own name without its extension.
[[nodiscard]] CStringU gGetFileTitle(const CStringU& rPath);

/// The canonical form of a path without its extension.
[[nodiscard]] CStringU gGetPathWithoutExtension(const CStringU& rPath);

/// Shortens a path for display: the drive or the share, three points, as many of the last
/// components as fit.
/// @param rPath the path
/// @param nWidth the most characters that fit, in 16-bit units
/// @param bKeepName whether the bare file name is given where the least form doesn't fit
/// @return the path itself where it fits; the file name or an empty text where nothing does
[[nodiscard]] CStringU gAbbreviatePath(const CStringU& rPath, int nWidth, bool bKeepName);

/// Tells whether two paths are written alike, either separator for the other: on the Unix side byte
/// for byte, otherwise without regard to case.
[[nodiscard]] bool gPathsEqual(const CStringU& rLeft, const CStringU& rRight);
