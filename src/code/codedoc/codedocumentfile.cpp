#include "code/codedoc/codedocument.h"

#include "code/codecs/filetext.h"
#include "code/codecs/textcodecs.h"
#include "code/codedoc/codedocument_p.h"
#include "core/archive.h"
#include "core/messages.h"

#include <QFileInfo>
#include <QIODevice>
#include <QUrl>

namespace Zorv {

namespace {

/// The name used by the file watch and the document.
QString fullName(const QString& fileName)
{
    return fileName.isEmpty() ? QString() : QFileInfo(fileName).absoluteFilePath();
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
    FileText file;
    QString error;
    if (!file.read(archive, fileName, codec, &error)) {
        setErrorString(error);
        return false;
    }
    // Move the watch only now: if reading fails, the old one is kept.
    if (watch) {
        FileWatchObject::fromFile(archive, fullName(fileName), asCopy);
    }
    emit aboutToRead();
    messages()->beginChange();
    setPlainText(file.text);
    messages()->endChange();
    emit haveRead();
    using Mark = CodeDocumentPrivate::Mark;
    d->codec = file.codec;
    d->byteOrderMark = file.hasMark ? Mark::Present : Mark::Absent;
    d->hasForeignLineEnds = file.hasForeignLineEnds;
    d->isFaithful = file.isFaithful;
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
    // A file keeps its own byte-order mark, or its absence, whatever the codec does.
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
        // Write errors are remembered by the archive and reported by closeFile().
        device->write(toData());
        done = archive.closeFile(device, &reason);
    }
    if (!done) {
        setErrorString(reason.isEmpty() ? tr("Cannot write %1.%2").arg(fileName, QString())
                                        : reason);
        // FileWatchObject::toFile() has already moved and paused the watch.
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
