#pragma once

#include "foundation/StringU.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

/// Shows a text in a failed test by its stored bytes.
inline void PrintTo(const CStringU& rsText, std::ostream* pStream)
{
    *pStream << testing::PrintToString(std::string(rsText.Stored()));
}
