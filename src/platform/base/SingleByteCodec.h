#pragma once

#include "platform/base/Codec.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// A code page with one byte per character, by tables that are read once from another codec.
class CSingleByteCodec final : public ICodec
{
public:
    /// @param rSource the codec that knows the code page; not needed any more afterwards
    explicit CSingleByteCodec(const ICodec& rSource);

    bool DecodeNext(std::string_view& rsRest, std::u16string& rsOut) const override;
    bool EncodeNext(std::u16string_view& rsRest, std::string& rsOut) const override;

private:
    static constexpr char16_t kNoCharacter = 0xFFFD;

    std::array<char16_t, 256> mUnits{};                // by byte; kNoCharacter where undefined
    std::vector<std::pair<char16_t, char>> mHighBytes; // sorted by unit, all units above 0x7F
};
