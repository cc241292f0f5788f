#pragma once

#include "params/archive/ByteSource.h"
#include "params/archive/LineEnd.h"

#include <algorithm>
#include <cstring>
#include <string_view>

/// The bytes of a params file in memory.
class CMemorySource final : public IByteSource
{
public:
    /// @param sBytes the file; they stay where they are as long as this object lives
    explicit CMemorySource(std::string_view sBytes)
        : msLeft(sBytes), mnSize(sBytes.size()), mbCrLf(gIsTextMode(sBytes, sBytes))
    {
    }

    std::size_t Read(char* pRoom, std::size_t nRoom) override
    {
        const std::size_t nCount = std::min(nRoom, msLeft.size());
        std::memcpy(pRoom, msLeft.data(), nCount);
        msLeft.remove_prefix(nCount);
        return nCount;
    }
    [[nodiscard]] std::uint64_t GetSize() const noexcept override { return mnSize; }
    [[nodiscard]] bool HasCrLf() const noexcept override { return mbCrLf; }

private:
    std::string_view msLeft;
    std::uint64_t mnSize;
    bool mbCrLf;
};
