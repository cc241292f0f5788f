#pragma once

#include "foundation/StringU.h"
#include "platform/base/Ascii.h"
#include "platform/base/StringAOperand.h"

#include <string_view>

/// A zero-terminated 8-bit text in the form in which a CStringU stores it: 7-bit text, as nearly
/// all literals are, where it stands, and only other text converted from the system's code page.
class CLiteral
{
public:
    /// @param pText null is the empty text; it must live as long as the object
    explicit CLiteral(const char* pText) : msStored(gViewOf(pText))
    {
        if (!gIsAscii(msStored)) {
            msConverted = CStringU(msStored);
            msStored = msConverted.Stored();
        }
    }
    CLiteral(const CLiteral&) = delete;
    CLiteral& operator=(const CLiteral&) = delete;
    ~CLiteral() = default;

    /// The stored bytes.
    [[nodiscard]] std::string_view Stored() const noexcept { return msStored; }
    /// The bytes behind the marker.
    [[nodiscard]] std::string_view Text() const noexcept { return gBehindMarker(msStored); }

private:
    CStringU msConverted;
    std::string_view msStored;
};
