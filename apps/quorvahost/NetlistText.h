#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>
#include <optional>
#include <variant>

namespace quorvawiz::host
{

/// What ends a line of a file.
enum class ELineEnds {
    Lf,
    CrLf,
};

/// What a file has besides its characters, kept from opening to saving.
struct TTextForm {
    ELineEnds lineEnds = ELineEnds::Lf;
    bool bBom = false; ///< the UTF-8 byte order mark stands in front

    bool operator==(const TTextForm&) const = default;
};

/// A netlist as the editor holds it.
struct TNetlistText {
    QString sText; ///< lines joined by LF
    TTextForm form;
};

/// Why bytes can't become a text that would be saved as the same bytes.
struct TTextFault {
    qsizetype nLine = 0; ///< from 1
    qsizetype nByte = 0; ///< in that line, from 1
    QString sWhat;       ///< in words

    /// "line 3, byte 7: ...".
    QString Message() const;
};

/// How many bytes a line may have: an editor lays a line out as a whole, at every key.
inline constexpr qsizetype kLongestLine = 1'000'000;

/// Reads the bytes of a file. Whatever it accepts, `gEncodeNetlist` writes back byte for byte.
/// A file without any line end counts as LF. Refused, with the first place that is wrong: bytes
/// that aren't UTF-8, a NUL, a CR without LF, line ends of both kinds, a line that is longer than
/// `kLongestLine`, and the few characters that
/// an editor's document uses for itself (U+2029, U+FDD0, U+FDD1).
std::variant<TNetlistText, TTextFault> gDecodeNetlist(const QByteArray& rBytes);

/// Writes a text of lines joined by LF.
/// @return the bytes, or nullopt if the text holds half of a surrogate pair
std::optional<QByteArray> gEncodeNetlist(QStringView sText, TTextForm form);

/// The first byte that isn't part of a well-formed UTF-8 sequence, from 0; -1 if there is none.
qsizetype gFindInvalidUtf8(QByteArrayView bytes);

/// "LF" or "CR LF".
QString gLineEndsName(ELineEnds lineEnds);

} // namespace quorvawiz::host
