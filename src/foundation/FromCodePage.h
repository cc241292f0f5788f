#pragma once

#include <string>
#include <string_view>

/// Puts text of the system's code page into the form in which a CStringU stores it, in one pass and
/// as by way of 16-bit units: it ends at the first zero, and each ill-formed part is one U+FFFD.
/// @param sText the bytes, none of them of rsStored
/// @param rsStored takes the stored form in place of what it held
void gStoreCodePage(std::string_view sText, std::string& rsStored);
