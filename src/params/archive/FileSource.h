#pragma once

#include "params/archive/ByteSource.h"

class CStringU;

/// The bytes of a params file on the disk. They are read, not mapped, so that a file that another
/// program cuts meanwhile only ends early.
class CFileSource final : public IByteSource
{
public:
    /// Opens a file.
    /// @param rPath its path, whose bytes go to the system (gToSystemPathOfUtf8)
    /// @throws quorvaapi::FileOpenException if it can't be opened, or is a folder
    explicit CFileSource(const CStringU& rPath);
    ~CFileSource() override;

    [[nodiscard]] std::size_t Read(char* pRoom, std::size_t nRoom) override;
    [[nodiscard]] std::uint64_t GetSize() const noexcept override { return mnSize; }
    [[nodiscard]] bool HasCrLf() const noexcept override { return mbCrLf; }

private:
    [[nodiscard]] bool FindCrLf() const;

    int mnHandle;
    std::uint64_t mnRead = 0; // bytes so far
    std::uint64_t mnSize = kUnknownSize;
    bool mbCrLf = false;
};
