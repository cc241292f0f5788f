#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

/// Where the bytes of a params file come from, one block after the other.
class IByteSource
{
public:
    /// The size of a source that can't tell its own.
    static constexpr std::uint64_t kUnknownSize = std::numeric_limits<std::uint64_t>::max() / 2;

    IByteSource() = default;
    IByteSource(const IByteSource&) = delete;
    IByteSource& operator=(const IByteSource&) = delete;
    virtual ~IByteSource() = default;

    /// Fills as much of a room as there are bytes.
    /// @param pRoom the room
    /// @param nRoom its size, at least 1
    /// @return how many bytes were filled; 0 at the end
    /// @throws boost::archive::archive_exception if the bytes can't be read
    [[nodiscard]] virtual std::size_t Read(char* pRoom, std::size_t nRoom) = 0;

    /// How many bytes there are in all, or kUnknownSize.
    [[nodiscard]] virtual std::uint64_t GetSize() const noexcept = 0;

    /// Tells whether lines end in CR LF, which then counts as LF everywhere, texts included.
    [[nodiscard]] virtual bool HasCrLf() const noexcept = 0;
};

/// Where the bytes of a params file go.
class IByteTarget
{
public:
    IByteTarget() = default;
    IByteTarget(const IByteTarget&) = delete;
    IByteTarget& operator=(const IByteTarget&) = delete;
    virtual ~IByteTarget() = default;

    /// Takes all bytes of a block.
    /// @throws boost::archive::archive_exception if they can't be written
    virtual void Write(const char* pBytes, std::size_t nCount) = 0;
};
