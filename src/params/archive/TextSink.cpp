#include "params/archive/TextSink.h"

#include <charconv>
#include <cmath>
#include <cstring>

namespace
{

constexpr std::size_t kBufferSize = 1U << 18U;
constexpr std::size_t kMostOfNumber = 40; // "-1.79769313486231571e+308" and less
// The archive library writes one digit more than it takes to read the same number back.
constexpr int kDigitsBehindPoint = 17;

} // namespace

CTextSink::CTextSink(IByteTarget& rTarget)
    : mrTarget(rTarget), mpBuffer(std::make_unique<char[]>(kBufferSize))
{
}

void CTextSink::Flush()
{
    mrTarget.Write(mpBuffer.get(), mnUsed);
    mnUsed = 0;
}

/// Writes what stands in front of a token. Result: room for a number.
char* CTextSink::BeginToken()
{
    if (kBufferSize - mnUsed < kMostOfNumber) {
        Flush();
    }
    char* const pRoom = mpBuffer.get() + mnUsed;
    if (mchDelimiter == '\0') {
        mchDelimiter = ' ';
        return pRoom;
    }
    *pRoom = mchDelimiter;
    mchDelimiter = ' ';
    ++mnUsed;
    return pRoom + 1;
}

void CTextSink::Write(std::int64_t nNumber)
{
    char* const pRoom = BeginToken();
    mnUsed += static_cast<std::size_t>(
        std::to_chars(pRoom, pRoom + kMostOfNumber - 1, nNumber).ptr - pRoom);
}

void CTextSink::Write(double dNumber)
{
    char* const pRoom = BeginToken();
    mnUsed +=
        static_cast<std::size_t>(std::to_chars(pRoom, pRoom + kMostOfNumber - 1, dNumber,
                                               std::chars_format::scientific, kDigitsBehindPoint)
                                     .ptr -
                                 pRoom);
}

void CTextSink::Write(std::string_view sText)
{
    Write(static_cast<std::int64_t>(sText.size()));
    BeginToken();
    if (sText.size() > kBufferSize - mnUsed) {
        Flush();
        if (sText.size() > kBufferSize) {
            mrTarget.Write(sText.data(), sText.size());
            return;
        }
    }
    if (!sText.empty()) {
        std::memcpy(mpBuffer.get() + mnUsed, sText.data(), sText.size());
        mnUsed += sText.size();
    }
}

void CTextSink::Finish()
{
    Flush();
    mrTarget.Write("\n", 1);
}
