#pragma once

#include "zorv_export.h"

#include <QByteArray>
#include <QString>

class QTextCodec;

namespace Zorv {

/// A numbered list of text encodings, and conversion by number or with
/// detection.
///
/// Number 0 is the system's codec; n above 0 is entry n - 1 of Qt's list. A
/// negative number means detection. The numbers are only valid within one run
/// of the program. The list is built before `main` and read-only afterwards.
class ZORV_EXPORT TextCodecs
{
public:
    /// The number of codecs; at least 1.
    static int count();

    /// The number of a codec by its exact name; 0 if it does not exist.
    static int index(const char* name);

    /// The name of a codec. For 0 the translated text "System"; empty for a
    /// number outside of the list.
    static QString name(int number);

    /// Sets the codec to use if detection fails. Initially 0, the system's
    /// codec.
    static void setDefaultCodec(int number);

    /// Detects the codec of `data`. Plain ASCII counts as not detected, and the
    /// default codec is used. Never null.
    static QTextCodec* get(const QByteArray& data);

    /// Decodes. If `*number` is negative, the codec is detected. `*number` is
    /// set to the codec used, or to 0 if that is not in the list.
    static QString stringFromData(const QByteArray& data, int* number);

    /// Encodes. Characters that the codec does not have are replaced by Qt. A
    /// number outside of the list means the system's codec, here and
    /// everywhere.
    static QByteArray stringToData(const QString& text, int number);

    /// The index of the first character in `text` that would not survive
    /// encoding and decoding; -1 if all do. Half of a surrogate pair never
    /// does.
    static int firstUnencodable(const QString& text, int number);

    /// True if decoding and encoding reproduces `data` byte for byte, apart
    /// from a byte-order mark.
    static bool isFaithful(const QByteArray& data, int number);

    /// A codec that is faithful to `data`. The candidates in this order: UTF-8,
    /// the codec of its byte-order mark, the detected codec, a Windows codec,
    /// an ISO codec. The last one always works.
    static int faithfulCodec(const QByteArray& data);

    /// The byte-order mark at the start of `data`; empty if there is none.
    /// `stringToData()` writes a mark only for UTF-16 and UTF-32. To keep a
    /// file's own mark, or to have none, remove the mark that this function
    /// finds.
    static QByteArray byteOrderMark(const QByteArray& data);
};

}  // namespace Zorv
