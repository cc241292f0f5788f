#pragma once

#include "platform/base/Codec.h"

#include <string>
#include <string_view>

/// UTF-8 by hand: strict (no overlong forms, no surrogates, nothing above U+10FFFF), and an
/// ill-formed part is a maximal one: the bytes that could still have begun a character, at least
/// one. It needs no tables.
class CUtf8Codec final : public ICodec
{
public:
    bool DecodeNext(std::string_view& rsRest, std::u16string& rsOut) const override;
    bool EncodeNext(std::u16string_view& rsRest, std::string& rsOut) const override;
};
