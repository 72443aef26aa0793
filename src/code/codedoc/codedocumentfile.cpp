#include "code/codedoc/codedocument.h"

#include "code/codecs/textcodecs.h"
#include "code/codedoc/codedocument_p.h"
#include "core/archive.h"
#include "core/messages.h"

#include <QFileInfo>
#include <QIODevice>
#include <QUrl>

#include <algorithm>

namespace Zorv {

namespace {

// What a text document can hold, with some room for editing.
const qint64 MaxBytes = 256 * 1024 * 1024;

QString withPlainLineEnds(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text;
}

/// True if a line ends otherwise than in a carriage return and a line feed.
bool hasBareLineEnd(const QString& text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('\r')) {
            if (i + 1 == text.size() || text.at(++i) != QLatin1Char('\n')) {
                return true;
            }
        } else if (text.at(i) == QLatin1Char('\n')) {
            return true;
        }
    }
    return false;
}

/// A few letters in a text of ASCII mislead a detector. But bytes that are not
/// meant as UTF-8 hardly ever make sense in it.
bool isUnmistakablyUtf8(const QByteArray& data)
{
    const auto isBeyondAscii = [](char byte) { return (byte & 0x80) != 0; };
    return std::any_of(data.begin(), data.end(), isBeyondAscii) &&
           TextCodecs::isFaithful(data, TextCodecs::index("UTF-8"));
}

/// What the watch and the document call a file.
QString fullName(const QString& fileName)
{
    return fileName.isEmpty() ? QString() : QFileInfo(fileName).absoluteFilePath();
}

/// Part of a file must never pass for the whole: it would be saved over it.
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

QString cannot(const char* text, const QString& fileName, const QString& reason)
{
    return CodeDocument::tr(text).arg(fileName, reason);
}

}  // namespace

QString CodeDocument::fileName() const
{
    return metaInformation(QTextDocument::DocumentUrl);
}

void CodeDocument::setFileName(const QString& fileName)
{
    setMetaInformation(QTextDocument::DocumentTitle, QFileInfo(fileName).fileName());
    setMetaInformation(QTextDocument::DocumentUrl, fullName(fileName));
}

QString CodeDocument::title() const
{
    return metaInformation(QTextDocument::DocumentTitle);
}

void CodeDocument::setTitle(const QString& title)
{
    setMetaInformation(QTextDocument::DocumentTitle, title);
}

int CodeDocument::codecId() const
{
    return d->codec;
}

void CodeDocument::setCodecId(int codec)
{
    if (d->codec != codec) {
        d->codec = codec;
        d->byteOrderMark = CodeDocumentPrivate::Mark::AsCodec;
    }
}

void CodeDocument::setCodec(const char* name)
{
    setCodecId(TextCodecs::index(name));
}

QString CodeDocument::codecName() const
{
    return TextCodecs::name(d->codec);
}

bool CodeDocument::fromFile(Archive& archive, const QString& fileName, bool asCopy)
{
    return fromFile(archive, fileName, -1, true, asCopy);
}

bool CodeDocument::fromFile(Archive& archive, const QString& fileName, int codec, bool watch,
                            bool asCopy)
{
    QString reason;
    QIODevice* device = archive.openFile(fileName, QIODevice::ReadOnly, &reason);
    if (!device) {
        setErrorString(reason.isEmpty() ? cannot(QT_TR_NOOP("Cannot open %1.%2"), fileName, {})
                                        : reason);
        return false;
    }
    QByteArray data;
    const bool isRead = readWhole(*device, data, &reason);
    archive.closeFile(device);
    if (!isRead) {
        setErrorString(tr("Cannot read %1: %2.").arg(fileName, reason));
        return false;
    }
    // The watch moves only now: a file that cannot be read keeps the old one.
    if (watch) {
        FileWatchObject::fromFile(archive, fullName(fileName), asCopy);
    }
    if (codec < 0 && isUnmistakablyUtf8(data)) {
        codec = TextCodecs::index("UTF-8");
    }
    const QString text = TextCodecs::stringFromData(data, &codec);
    emit aboutToRead();
    messages()->beginChange();
    setPlainText(text);
    messages()->endChange();
    emit haveRead();
    using Mark = CodeDocumentPrivate::Mark;
    d->codec = codec;
    d->byteOrderMark = TextCodecs::byteOrderMark(data).isEmpty() ? Mark::Absent : Mark::Present;
    d->hasForeignLineEnds = hasBareLineEnd(text);
    d->isFaithful = TextCodecs::isFaithful(data, codec) && withPlainLineEnds(text) == this->text();
    if (!asCopy) {
        setFileName(fileName);
        setArchive(&archive);
    }
    setModified(asCopy);
    setErrorString(QString());
    return true;
}

void CodeDocument::fromString(const QString& text)
{
    setPlainText(text);
    setFileName(QString());
    setModified(false);
    setCodec("UTF-8");
    d->isFaithful = true;
    d->hasForeignLineEnds = false;
}

QString CodeDocument::text() const
{
    QString text = toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    return text;
}

QByteArray CodeDocument::toData() const
{
    QString text = this->text();
    text.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    QByteArray data = TextCodecs::stringToData(text, d->codec);
    const QByteArray mark = TextCodecs::byteOrderMark(data);
    using Mark = CodeDocumentPrivate::Mark;
    if (d->byteOrderMark == Mark::Absent) {
        data.remove(0, mark.size());
    } else if (d->byteOrderMark == Mark::Present && mark.isEmpty() &&
               codecName() == QLatin1String("UTF-8")) {
        data.prepend("\xEF\xBB\xBF");
    }
    return data;
}

bool CodeDocument::toFile(Archive& archive, const QString& fileName, bool asCopy)
{
    const QString oldName = this->fileName();
    FileWatchObject::toFile(archive, fullName(fileName), asCopy);
    QString reason;
    QIODevice* device = archive.openFile(fileName, QIODevice::WriteOnly, &reason);
    bool done = device != nullptr;
    if (device) {
        // The archive checks each write; closing tells if all of them arrived.
        device->write(toData());
        done = archive.closeFile(device, &reason);
    }
    if (!done) {
        setErrorString(reason.isEmpty() ? cannot(QT_TR_NOOP("Cannot write %1.%2"), fileName, {})
                                        : reason);
        renewWatch(oldName);
        return false;
    }
    if (!asCopy) {
        setModified(false);
        setFileName(fileName);
        setArchive(&archive);
        d->hasForeignLineEnds = false;
        renewWatch(fullName(fileName));
    }
    setErrorString(QString());
    return true;
}

bool CodeDocument::reload()
{
    return fromFile(*archive(), fileName(), codecId(), false);
}

void CodeDocument::reset()
{
    setFileName(QString());
    QTextDocument::clear();
    setModified(false);
    emit modificationChanged(false);
    setCodec("UTF-8");
    d->isFaithful = true;
    d->hasForeignLineEnds = false;
}

bool CodeDocument::canSave() const
{
    return true;
}

bool CodeDocument::isModified() const
{
    return QTextDocument::isModified();
}

bool CodeDocument::isEmpty() const
{
    return QTextDocument::isEmpty();
}

int CodeDocument::checkErrors()
{
    return messages()->count(Message::AllTypes);
}

bool CodeDocument::isFaithful() const
{
    return d->isFaithful;
}

bool CodeDocument::hasForeignLineEnds() const
{
    return d->hasForeignLineEnds;
}

}  // namespace Zorv
