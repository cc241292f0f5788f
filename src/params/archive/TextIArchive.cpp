#include "params/archive/TextIArchive.h"

#include <limits>

namespace
{

constexpr std::string_view kSignature = "serialization::archive";
constexpr int kFirstVersion = 6;
constexpr int kLastVersion = 19;

} // namespace

CTextIArchive::CTextIArchive(IByteSource& rSource) : mScanner(rSource)
{
    if (mScanner.ReadText() != kSignature) {
        mScanner.Refuse(TError::invalid_signature, "not an archive");
    }
    mnVersion = mScanner.ReadInt();
    if (mnVersion < kFirstVersion || mnVersion > kLastVersion) {
        mScanner.Refuse(TError::unsupported_version, "an archive of an unknown version");
    }
}

void CTextIArchive::CheckClass(bool bTracked, unsigned nVersion)
{
    if (mScanner.ReadBool() != bTracked) {
        mScanner.Refuse(TError::input_stream_error, "a class that is tracked otherwise");
    }
    if (mScanner.ReadUnsigned() != nVersion) {
        mScanner.Refuse(TError::unsupported_class_version, "a class of another version");
    }
}

void CTextIArchive::CheckItemVersion(unsigned nVersion)
{
    if (mScanner.ReadUnsigned() != nVersion) {
        mScanner.Refuse(TError::unsupported_class_version, "elements of another version");
    }
}

std::uint64_t CTextIArchive::ReadCount(unsigned nLeastBytes)
{
    const std::uint64_t nCount = mScanner.ReadUnsigned();
    if (nCount > mScanner.GetBytesLeft() / nLeastBytes) {
        mScanner.Refuse(TError::input_stream_error, "more elements than the file has room for");
    }
    return nCount;
}

unsigned CTextIArchive::ReadId()
{
    const std::uint64_t nId = mScanner.ReadUnsigned();
    if (nId > std::numeric_limits<unsigned>::max()) {
        mScanner.Refuse(TError::input_stream_error, "no id of an object");
    }
    return static_cast<unsigned>(nId);
}

unsigned CTextIArchive::LoadNewId()
{
    const unsigned nId = ReadId();
    if (nId != mnObjects) {
        mScanner.Refuse(TError::input_stream_error, "not the id of the next object");
    }
    ++mnObjects;
    return nId;
}

void CTextIArchive::LoadMembers(TParamValue& rValue)
{
    switch (const int nWhich = mScanner.ReadInt()) {
    case TParamKind::Bool:
        rValue = mScanner.ReadBool();
        break;
    case TParamKind::Int:
        rValue = mScanner.ReadInt();
        break;
    case TParamKind::Double:
        rValue = mScanner.ReadDouble();
        break;
    case TParamKind::Text: {
        CStringU text;
        Load(text);
        rValue = std::move(text);
        break;
    }
    default:
        // kept: behind a negative one the library reads nothing and leaves the value as it is
        if (nWhich > TParamKind::Text) {
            mScanner.Refuse(TError::unsupported_version, "a value of an unknown kind");
        }
        break;
    }
}
