#include "quorvahost/SpiceColours.h"

#include <QFont>

namespace quorvawiz::host
{
namespace
{
struct TLook {
    QRgb nLight;
    QRgb nDark;
    bool bBold = false;
    bool bItalic = false;
};

TLook LookOf(EToken kind)
{
    switch (kind) {
    case EToken::Comment:
        return {.nLight = 0x5F6B76, .nDark = 0x9AA5B1, .bItalic = true};
    case EToken::Directive:
    case EToken::Continuation:
        return {.nLight = 0x8A1C7C, .nDark = 0xE29BDB, .bBold = true};
    case EToken::Name:
        return {.nLight = 0x0B4F8A, .nDark = 0x8CC4F5, .bBold = true};
    case EToken::Parameter:
        return {.nLight = 0x7A4A00, .nDark = 0xE8B768};
    case EToken::Number:
        return {.nLight = 0x0B6B3A, .nDark = 0x8FD6A4};
    case EToken::Text:
        return {.nLight = 0xA12A1E, .nDark = 0xF2A093};
    case EToken::Expression:
        return {.nLight = 0x00626E, .nDark = 0x7FD3DC};
    }
    return {};
}
} // namespace

bool gIsDark(const QPalette& rPalette)
{
    return rPalette.color(QPalette::Base).lightness() < rPalette.color(QPalette::Text).lightness();
}

QTextCharFormat gFormatOf(EToken kind, bool bDark)
{
    const TLook look = LookOf(kind);
    QTextCharFormat format;
    format.setForeground(QColor(bDark ? look.nDark : look.nLight));
    if (look.bBold)
        format.setFontWeight(QFont::DemiBold);
    format.setFontItalic(look.bItalic);
    return format;
}

QColor gCurrentLineColour(const QPalette& rPalette)
{
    QColor colour = rPalette.color(QPalette::Highlight);
    constexpr float kFaint = 0.12F;
    colour.setAlphaF(kFaint);
    return colour;
}

} // namespace quorvawiz::host
