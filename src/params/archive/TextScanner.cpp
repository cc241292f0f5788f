#include "params/archive/TextScanner.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <locale>
#include <sstream>
#include <string>
#include <system_error>
#include <type_traits>

namespace
{

using TError = boost::archive::archive_exception;

constexpr std::size_t kBufferSize = 1U << 18U;
// Longer ones are written by nobody. So much is always looked at in one piece.
constexpr std::ptrdiff_t kLongestNumber = 400;

/// What the archive library skips in front of a token.
bool IsSpace(char chByte) noexcept
{
    return chByte == ' ' || (chByte >= '\t' && chByte <= '\r');
}

/// Reads a number as the archive library does, slowly: one that is too small for a double is 0.
bool ReadAsLibrary(const std::string& rsNumber, double& rdNumber)
{
    std::istringstream stream(rsNumber);
    stream.imbue(std::locale::classic());
    return static_cast<bool>(stream >> rdNumber);
}

} // namespace

CTextScanner::CTextScanner(IByteSource& rSource)
    : mrSource(rSource), mpBuffer(std::make_unique<char[]>(kBufferSize)), mpAt(mpBuffer.get()),
      mpEnd(mpBuffer.get()), mnUnread(rSource.GetSize()), mbCrLf(rSource.HasCrLf())
{
}

std::uint64_t CTextScanner::OffsetOf(const char* pAt) const noexcept
{
    return mnFilled - static_cast<std::uint64_t>(mpEnd - pAt);
}

void CTextScanner::Refuse(TError::exception_code eCode, const char* pReason) const
{
    throw CParamsArchiveError(eCode, mnToken, pReason);
}

/// Refuses a file in which more should follow, at its end.
void CTextScanner::RefuseEnd() const
{
    throw CParamsArchiveError(TError::input_stream_error, mnFilled, "the file ends here");
}

/// Moves what isn't used to the buffer's front and fills it up. Result: whether more came.
bool CTextScanner::Fill()
{
    if (mnUnread == 0) {
        return false;
    }
    const auto nKept = static_cast<std::size_t>(mpEnd - mpAt);
    std::memmove(mpBuffer.get(), mpAt, nKept);
    const std::size_t nRead = mrSource.Read(mpBuffer.get() + nKept, kBufferSize - nKept);
    mpAt = mpBuffer.get();
    mpEnd = mpAt + nKept + nRead;
    mnFilled += nRead;
    // A source that can't tell its size, or was told a wrong one, is at its end when it says so.
    mnUnread = nRead == 0 ? 0 : mnUnread > nRead ? mnUnread - nRead : 1;
    return nRead != 0;
}

/// Goes to the next token, and has as much of it in the buffer as a number can have.
void CTextScanner::ToToken()
{
    for (;;) {
        while (mpAt != mpEnd && IsSpace(*mpAt)) {
            ++mpAt;
        }
        if (mpEnd - mpAt > kLongestNumber || !Fill()) {
            break;
        }
    }
    mnToken = OffsetOf(mpAt);
    if (mpAt == mpEnd) {
        RefuseEnd();
    }
}

/// Ends a token in front of the white space that must follow it.
void CTextScanner::EndToken(const char* pEnd)
{
    mpAt = pEnd;
    if (mpAt == mpEnd && !Fill()) {
        RefuseEnd();
    }
    if (!IsSpace(*mpAt)) {
        Refuse(TError::input_stream_error, "no white space follows");
    }
}

template <class T> T CTextScanner::ReadNumber(const char* pReason)
{
    ToToken();
    const char* const pFirst = mpAt + (*mpAt == '+' ? 1 : 0); // which the library reads, too
    T number{};
    auto [pEnd, error] = std::from_chars(pFirst, mpEnd, number);
    if constexpr (std::is_same_v<T, double>) {
        if (error == std::errc::result_out_of_range && pEnd - mpAt <= kLongestNumber &&
            ReadAsLibrary(std::string(pFirst, pEnd), number)) {
            error = std::errc();
        }
    }
    if (error != std::errc() || pEnd - mpAt > kLongestNumber ||
        (pFirst != mpAt && *pFirst == '-')) {
        Refuse(TError::input_stream_error, pReason);
    }
    EndToken(pEnd);
    return number;
}

bool CTextScanner::ReadBool()
{
    const int nNumber = ReadInt();
    if (nNumber != 0 && nNumber != 1) {
        Refuse(TError::input_stream_error, "neither 0 nor 1");
    }
    return nNumber == 1;
}

int CTextScanner::ReadInt()
{
    return ReadNumber<int>("not a whole number of 32 bits");
}

std::uint64_t CTextScanner::ReadUnsigned()
{
    return ReadNumber<std::uint64_t>("not a whole number from 0 on");
}

double CTextScanner::ReadDouble()
{
    return ReadNumber<double>("not a number");
}

std::string_view CTextScanner::ReadText()
{
    const std::uint64_t nLength = ReadUnsigned();
    // Of the white space behind the length exactly one byte, or one line end.
    if (mbCrLf && *mpAt == '\r' && (mpEnd - mpAt > 1 || Fill()) && mpAt[1] == '\n') {
        ++mpAt;
    }
    ++mpAt;
    if (nLength > GetBytesLeft()) {
        Refuse(TError::input_stream_error, "a text is longer than the file");
    }
    if (nLength >= kBufferSize || mbCrLf) {
        return ReadLongText(nLength);
    }
    const auto nSize = static_cast<std::size_t>(nLength);
    while (static_cast<std::size_t>(mpEnd - mpAt) <= nSize) { // with the byte behind it
        if (!Fill()) {
            RefuseEnd();
        }
    }
    const std::string_view sText(mpAt, nSize);
    EndToken(mpAt + nSize);
    return sText;
}

/// Puts a text together that doesn't fit in the buffer, or isn't in the file as it is.
std::string_view CTextScanner::ReadLongText(std::uint64_t nLength)
{
    msLong.clear();
    while (msLong.size() < nLength) {
        if (mpEnd - mpAt < 2 && !Fill() && mpAt == mpEnd) {
            RefuseEnd();
        }
        const bool bCrLf = mbCrLf && mpEnd - mpAt > 1 && mpAt[0] == '\r' && mpAt[1] == '\n';
        mpAt += bCrLf ? 1 : 0;
        // A whole piece: all of the buffer, or up to the next CR.
        const auto nWanted = std::min<std::uint64_t>(nLength - msLong.size(),
                                                     static_cast<std::uint64_t>(mpEnd - mpAt));
        auto nPiece = static_cast<std::size_t>(nWanted);
        if (mbCrLf) {
            const void* const pCr = nPiece > 1 ? std::memchr(mpAt + 1, '\r', nPiece - 1) : nullptr;
            nPiece = pCr != nullptr ? static_cast<std::size_t>(static_cast<const char*>(pCr) - mpAt)
                                    : nPiece;
        }
        msLong.append(mpAt, nPiece);
        mpAt += nPiece;
    }
    EndToken(mpAt);
    return msLong;
}
