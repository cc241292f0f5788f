#include "foundation/LineEnds.h"
#include "foundation/TextFile.h"
#include "foundation/Utf8Units.h"
#include "platform/base/CodePage.h"
#include "platform/base/Exceptions.h"

#include <array>
#include <bit>
#include <charconv>
#include <concepts>
#include <cstddef>

static_assert(std::endian::native == std::endian::little);

namespace
{

// All units of a text, also those behind a zero, at which ToWide of UTF-8 ends.
std::u16string AllUnits(const CStringU& rsText)
{
    std::u16string sUnits = rsText.ToWide();
    if (!rsText.IsUtf8()) {
        return sUnits;
    }
    std::string_view sRest = rsText.Text();
    std::size_t nZero = sRest.find('\0');
    while (nZero != std::string_view::npos) {
        sRest.remove_prefix(nZero + 1);
        nZero = sRest.find('\0');
        sUnits += u'\0';
        sUnits += gDecodeUnits(sRest.substr(0, nZero));
    }
    return sUnits;
}

} // namespace

template <class TWrite> bool TTextFile::CatchWriteError(const TWrite& rWrite)
{
    try {
        return rWrite();
    } catch (const CFileException& rException) {
        KeepWriteError(rException.GetOsError());
        return false;
    }
}

bool TTextFile::WriteBytes(std::string_view sBytes)
{
    return CatchWriteError([&] {
        if ((mnOpenFlags & typeBinary) != 0) {
            return Put(sBytes);
        }
        return gPutWithLineEnds(sBytes, mnLine,
                                [this](std::string_view sPiece) { return Put(sPiece); });
    });
}

bool TTextFile::WriteUnits(std::u16string_view sUnits)
{
    const auto put = [this](std::u16string_view sPiece) {
        const std::u16string sSwapped =
            gIsBigEndian(mEncoding) ? gSwapUnitBytes(sPiece) : std::u16string();
        const std::u16string_view sOut = gIsBigEndian(mEncoding) ? sSwapped : sPiece;
        return Put({reinterpret_cast<const char*>(sOut.data()), sOut.size() * sizeof(char16_t)});
    };
    return CatchWriteError([&] {
        return (mnOpenFlags & typeBinary) != 0 ? put(sUnits)
                                               : gPutWithLineEnds(sUnits, mnLine, put);
    });
}

bool TTextFile::WriteText(const CStringU& rsText)
{
    if (gHasTwoByteUnits(mEncoding)) {
        return WriteUnits(AllUnits(rsText));
    }
    if (mEncoding == EncodingAnsi && rsText.IsUtf8()) {
        return WriteBytes(gWideToMultiByte(AllUnits(rsText), gGetSystemCodePage()));
    }
    return WriteBytes(rsText.Text());
}

bool TTextFile::WriteText(const char* pText)
{
    const std::string_view sText = gViewOf(pText);
    return gHasTwoByteUnits(mEncoding) ? WriteUnits(gMultiByteToWide(sText, gGetSystemCodePage()))
                                       : WriteBytes(sText);
}

bool TTextFile::WriteText(const char* pText, int nLength)
{
    if (nLength < 0 || (pText == nullptr && nLength != 0)) {
        gThrowInvalidArg("TTextFile::WriteText: invalid text or length");
    }
    const std::string_view sText(pText, static_cast<std::size_t>(nLength));
    if (gHasTwoByteUnits(mEncoding)) {
        return WriteUnits(gMultiByteToWide(sText, gGetSystemCodePage()));
    }
    return CatchWriteError([&] { return Put(sText); });
}

TTextFile& TTextFile::operator<<(const CStringU& rsText)
{
    WriteText(rsText);
    return *this;
}

TTextFile& TTextFile::operator<<(const char* pText)
{
    WriteText(pText);
    return *this;
}

template <class TNumber> TTextFile& TTextFile::WriteNumber(TNumber number)
{
    std::array<char, 32> text{}; // the longest has 20 characters
    std::to_chars_result result{};
    if constexpr (std::floating_point<TNumber>) {
        constexpr int digits = 12;
        result = std::to_chars(text.data(), text.data() + text.size(), number,
                               std::chars_format::general, digits);
    } else {
        result = std::to_chars(text.data(), text.data() + text.size(), number);
    }
    const CStringU sNumber(
        std::string_view(text.data(), static_cast<std::size_t>(result.ptr - text.data())));
    return *this << sNumber;
}

TTextFile& TTextFile::operator<<(int nNumber)
{
    return WriteNumber(nNumber);
}

TTextFile& TTextFile::operator<<(unsigned nNumber)
{
    return WriteNumber(nNumber);
}

TTextFile& TTextFile::operator<<(long nNumber)
{
    return WriteNumber(nNumber);
}

TTextFile& TTextFile::operator<<(unsigned long nNumber)
{
    return WriteNumber(nNumber);
}

TTextFile& TTextFile::operator<<(long long nNumber)
{
    return WriteNumber(nNumber);
}

TTextFile& TTextFile::operator<<(unsigned long long nNumber)
{
    return WriteNumber(nNumber);
}

TTextFile& TTextFile::operator<<(double dNumber)
{
    return WriteNumber(dNumber);
}
