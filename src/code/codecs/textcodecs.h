#pragma once

#include "zorv_export.h"

#include <QByteArray>
#include <QString>

class QTextCodec;

namespace Zorv {

/// A numbered list of text encodings, and conversion by number or by detection.
///
/// Number 0 is the system's codec and n above 0 is entry n - 1 of Qt's list. A
/// negative number asks for detection. Numbers are good within one run. The
/// list is built before `main` and is read-only from then on.
class ZORV_EXPORT TextCodecs
{
public:
    /// How many numbers there are; at least 1.
    static int count();

    /// The number of a codec, compared byte for byte; 0 if it is not there.
    static int index(const char* name);

    /// The name of a codec; for 0 the translated text "System", empty for a
    /// number that is not on the list.
    static QString name(int number);

    /// The codec to fall back on where nothing is detected. 0 at first: the
    /// system's.
    static void setDefaultCodec(int number);

    /// The codec in which `data` seems to be written. A detection of plain
    /// ASCII counts as nothing detected. Never null.
    static QTextCodec* get(const QByteArray& data);

    /// Decodes. A negative `*number` detects; the number of the codec in use is
    /// written back, 0 if it is not on the list.
    static QString stringFromData(const QByteArray& data, int* number);

    /// Encodes. A character that the codec lacks becomes what Qt puts there. A
    /// number that is not on the list stands for the system's codec here and
    /// everywhere.
    static QByteArray stringToData(const QString& text, int number);

    /// The place of the first character of `text` that would not come back from
    /// the codec as it is; -1 if all do. One half of a surrogate pair never does.
    static int firstUnencodable(const QString& text, int number);

    /// True if decoding and encoding with the codec gives `data` back, byte for
    /// byte, a byte-order mark aside.
    static bool isFaithful(const QByteArray& data, int number);

    /// A codec that is faithful to `data`: UTF-8 if it is, else the one that its
    /// byte-order mark tells, the detected one, or a Windows or ISO codec. There
    /// always is one.
    static int faithfulCodec(const QByteArray& data);

    /// The byte-order mark at the head of `data`, as it stands there; empty
    /// without one. `stringToData()` writes one for UTF-16 and UTF-32 only: a
    /// file that is to keep its own mark, or to have none, takes off what this
    /// finds there.
    static QByteArray byteOrderMark(const QByteArray& data);
};

}  // namespace Zorv
