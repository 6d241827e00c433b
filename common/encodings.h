#ifndef LIBCONTROL_COMMON_ENCODINGS_H
#define LIBCONTROL_COMMON_ENCODINGS_H

#include <LibControl/libcontrol_export.h>

#include <QByteArray>
#include <QPair>
#include <QString>
#include <QVector>

/** Standard base64 (RFC 4648 alphabet "+/", "=" padding, no line breaks) of `data`. */
LIBCONTROL_EXPORT QByteArray base64Encode(QByteArray const &data);

/**
 * Decodes standard base64 into `out`; true on success. ASCII white space
 * (line breaks of wrapped text included) is skipped. The text must have
 * whole quartets, with "=" padding only at the end; anything else,
 * including the URL-safe alphabet, fails and leaves `out` empty.
 */
LIBCONTROL_EXPORT bool base64Decode(QByteArray const &text, QByteArray &out);

/**
 * Percent-encodes the UTF-8 bytes of `text` (RFC 3986): letters, digits and
 * "-._~" stay, every other byte becomes "%XX" with upper-case hex digits, a
 * space included ("%20").
 */
LIBCONTROL_EXPORT QByteArray urlEncode(QString const &text);

/**
 * Decodes "%XX" escapes and reads the bytes as UTF-8. A "%" not followed by
 * two hex digits is kept as it is; "+" stays a plus sign.
 */
LIBCONTROL_EXPORT QString urlDecode(QByteArray const &encoded);

/**
 * The body of an "application/x-www-form-urlencoded" request:
 * "name=value" pairs, each side urlEncode()d, joined by "&", in the given
 * order (empty for no pairs).
 */
LIBCONTROL_EXPORT QByteArray urlEncodeForm(QVector<QPair<QString, QString>> const &fields);

#endif
