#pragma once

/// The code page number of UTF-8.
inline constexpr unsigned kCodePageUtf8 = 65001;

/// The code page number of Windows-1252, Western European.
inline constexpr unsigned kCodePageWindows1252 = 1252;
