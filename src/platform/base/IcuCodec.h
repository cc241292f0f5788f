#pragma once

#include "platform/base/Codec.h"

#include <memory>
#include <string>
#include <string_view>

struct UConverter;

/// Any code page that ICU knows. General and slow: one call of its converter per character.
class CIcuCodec final : public ICodec
{
public:
    /// Opens the converter "windows-N", or else "cp-N" without the dash.
    /// @param nCodePage the number N of the code page
    /// @return null if ICU has none of that number, or if its ASCII bytes are not ASCII characters
    ///         (EBCDIC, UTF-16 and the code pages that switch by escape sequences)
    [[nodiscard]] static std::unique_ptr<const CIcuCodec> Open(unsigned nCodePage);

    ~CIcuCodec() override;

    /// Tells whether every character of the code page takes one byte.
    [[nodiscard]] bool IsSingleByte() const noexcept;

    bool DecodeNext(std::string_view& rsRest, std::u16string& rsOut) const override;
    bool EncodeNext(std::u16string_view& rsRest, std::string& rsOut) const override;

private:
    struct TCloseConverter {
        void operator()(UConverter* pConverter) const noexcept;
    };
    using TConverterPtr = std::unique_ptr<UConverter, TCloseConverter>;

    explicit CIcuCodec(TConverterPtr pConverter) noexcept;

    std::u16string DecodeAll(std::string_view sBytes) const;

    TConverterPtr mpConverter;
};
