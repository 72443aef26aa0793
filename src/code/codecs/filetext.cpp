#include "code/codecs/filetext.h"

#include "code/codecs/textcodecs.h"
#include "code/codedoc/codedocument.h"
#include "core/archive.h"

#include <QIODevice>

#include <algorithm>

namespace Zorv {

namespace {

// A text document's limit, with some room for editing.
const qint64 MaxBytes = 256 * 1024 * 1024;

/// A few non-ASCII letters in an ASCII text mislead detection. But bytes that are not UTF-8 are
/// hardly ever valid UTF-8.
bool isUnmistakablyUtf8(const QByteArray& data)
{
    const auto isBeyondAscii = [](char byte) { return (byte & 0x80) != 0; };
    return std::any_of(data.begin(), data.end(), isBeyondAscii) &&
           TextCodecs::isFaithful(data, TextCodecs::index("UTF-8"));
}

/// A partial read must fail: otherwise saving would overwrite the whole file with a part of it.
bool readWhole(QIODevice& device, QByteArray& data, QString* reason)
{
    const qint64 size = device.isSequential() ? 0 : device.size();
    if (size > MaxBytes) {
        *reason = CodeDocument::tr("It is too large for a text. Choose a file of less than %1 MB")
                      .arg(MaxBytes / (1024 * 1024));
        return false;
    }
    data = device.readAll();
    if (data.size() < size) {
        *reason = device.errorString();
    }
    return data.size() >= size;
}

/// QTextDocument turns these characters into line ends, so they are lost.
bool isSwallowed(QChar c)
{
    const ushort code = c.unicode();
    return code == QChar::ParagraphSeparator || code == 0xfdd0 || code == 0xfdd1;
}

/// Changes all line ends to '\n' and records whether they were different before.
void takeText(QString text, FileText* file)
{
    file->hasForeignLineEnds = false;
    int to = 0;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool isReturn = c == QLatin1Char('\r');
        const bool isPair = isReturn && i + 1 < text.size() && text.at(i + 1) == QLatin1Char('\n');
        const bool isEnd = isReturn || c == QLatin1Char('\n');
        file->hasForeignLineEnds |= isEnd && !isPair;
        file->isFaithful &= !isSwallowed(c);
        i += isPair ? 1 : 0;
        text[to++] = isEnd || isSwallowed(c) ? QChar(QLatin1Char('\n')) : c;
    }
    text.truncate(to);
    file->text = text;
}

}  // namespace

bool FileText::read(Archive& archive, const QString& fileName, int wanted, QString* error)
{
    QString reason;
    QIODevice* device = archive.openFile(fileName, QIODevice::ReadOnly, &reason);
    if (!device) {
        *error = reason.isEmpty() ? CodeDocument::tr("Cannot open %1.%2").arg(fileName, QString())
                                  : reason;
        return false;
    }
    QByteArray data;
    const bool isRead = readWhole(*device, data, &reason);
    archive.closeFile(device);
    if (!isRead) {
        *error = CodeDocument::tr("Cannot read %1: %2.").arg(fileName, reason);
        return false;
    }
    codec = wanted < 0 && isUnmistakablyUtf8(data) ? TextCodecs::index("UTF-8") : wanted;
    const QString decoded = TextCodecs::stringFromData(data, &codec);
    hasMark = !TextCodecs::byteOrderMark(data).isEmpty();
    isFaithful = TextCodecs::isFaithful(data, codec);
    takeText(decoded, this);
    return true;
}

}  // namespace Zorv
