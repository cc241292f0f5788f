#pragma once

#include "params/archive/ByteSource.h"

#include <string>

/// The bytes of a params file, put together in memory.
class CMemoryTarget final : public IByteTarget
{
public:
    void Write(const char* pBytes, std::size_t nCount) override { msBytes.append(pBytes, nCount); }

    /// All bytes so far.
    [[nodiscard]] const std::string& GetBytes() const noexcept { return msBytes; }

private:
    std::string msBytes;
};
