#pragma once

#include "params/archive/ByteSource.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

/// Writes the tokens of a text archive. Independent of the locale.
class CTextSink
{
public:
    /// @param rTarget where the bytes go; it outlives this object
    explicit CTextSink(IByteTarget& rTarget);

    /// Has the next token begin a line.
    void NewLine() noexcept { mchDelimiter = '\n'; }

    /// Writes a whole number.
    void Write(std::int64_t nNumber);
    /// Writes a number with all its digits.
    void Write(double dNumber);
    /// Writes a text: its length and its bytes.
    void Write(std::string_view sText);

    /// Writes the closing line end and hands all bytes to the target. Without it the target has
    /// only a part of them.
    void Finish();

private:
    char* BeginToken();
    void Flush();

    IByteTarget& mrTarget;
    std::unique_ptr<char[]> mpBuffer;
    std::size_t mnUsed = 0;
    char mchDelimiter = '\0'; // in front of the next token; none in front of the first
};
