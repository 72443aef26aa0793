#include "operations/recovery/abandonedwork.h"

#include "family/assets/newsprites.h"
#include "family/assets/soundfile.h"
#include "family/assets/spritefile.h"
#include "family/familydocument.h"
#include "operations/recovery/canvascopy.h"
#include "operations/recovery/sessionfolder.h"
#include "operations/worklines.h"

#include <zorv/code/codecs/textcodecs.h>
#include <zorv/code/codedoc/codedocument.h>
#include <zorv/core/filesystemarchive.h>
#include <zorv/core/safefile.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTextBlock>

#include <algorithm>
#include <limits>

// Claiming the folders of dead processes locks them, so two programs never offer the same copy.
// Each copy is read whole to verify it, but its assets are dropped again and only read when they
// are needed. A copy applies if the file still has the hash that was recorded when the work began.
// A copy that is equal to its file is useless and is deleted.

namespace Operations {

namespace {

// The limit of a QByteArray.
constexpr qint64 MaxCopySize = std::numeric_limits<int>::max() / 2;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::AbandonedWork)
};

QByteArray contentOf(const QString& path, bool* isRead = nullptr)
{
    QFile file(path);
    const bool isOpen = file.size() <= MaxCopySize && file.open(QIODevice::ReadOnly);
    const QByteArray bytes = isOpen ? file.readAll() : QByteArray();
    if (isRead) {
        *isRead = isOpen && file.error() == QFile::NoError;
    }
    return bytes;
}

int codecOf(const QString& name)
{
    return Zorv::TextCodecs::index(name.toUtf8().constData());
}

AbandonedWork::State stateOf(const RecoveryCopy& copy)
{
    FileStamp now = FileStamp::of(copy.fileName);
    if (copy.fileName.isEmpty() || (!copy.stamp.exists && !now.exists)) {
        return AbandonedWork::Applicable;
    }
    if (!now.exists) {
        return AbandonedWork::FileGone;
    }
    now.addHash(copy.fileName);
    const bool isSame = copy.stamp.exists && !now.hash.isEmpty() && now.hash == copy.stamp.hash;
    return isSame ? AbandonedWork::Applicable : AbandonedWork::FileChanged;
}

QString textOf(const RecoveryCopy& copy)
{
    int codec = codecOf(copy.codec);
    QString text = Zorv::TextCodecs::stringFromData(contentOf(copy.fileName), &codec);
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text;
}

bool saysTheSame(const RecoveryCopy& copy)
{
    if (copy.fileName.isEmpty() || copy.content == RecoveryCopy::Canvas) {
        return false;
    }
    return copy.content == RecoveryCopy::Document
               ? textOf(copy) == copy.text
               : QFileInfo(copy.fileName).isFile() && contentOf(copy.fileName) == copy.assets;
}

/// The bytes of the file format; a canvas becomes a picture.
QByteArray bytesOf(const RecoveryCopy& copy)
{
    if (copy.content == RecoveryCopy::Canvas) {
        CanvasCopy canvas;
        return canvas.read(copy.assets) ? canvas.picture() : QByteArray();
    }
    if (copy.content != RecoveryCopy::Document) {
        return copy.assets;
    }
    QString content = copy.text;
    content.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    int codec = codecOf(copy.codec);
    if (Zorv::TextCodecs::firstUnencodable(content, codec) >= 0) {
        codec = Zorv::TextCodecs::index("UTF-8");
    }
    return Zorv::TextCodecs::stringToData(content, codec);
}

/// A new object without a file, of the kind of the copy.
std::unique_ptr<Zorv::ProjectFile> newFile(const RecoveryCopy& copy)
{
    if (copy.content == RecoveryCopy::Sounds) {
        return std::make_unique<Family::SoundFile>();
    }
    if (copy.content == RecoveryCopy::Sprites) {
        return std::unique_ptr<Zorv::ProjectFile>(
            copy.fileName.isEmpty() ? new Family::SpriteFile : Family::newSprites(copy.fileName));
    }
    return std::make_unique<Family::FamilyDocument>(copy.kind);
}

bool apply(const RecoveryCopy& copy, Zorv::ProjectFile* file, QString* error)
{
    QBuffer buffer;
    buffer.setData(copy.assets);
    buffer.open(QIODevice::ReadOnly);
    auto* document = dynamic_cast<Family::FamilyDocument*>(file);
    auto* sprites = dynamic_cast<Family::SpriteCollection*>(file);
    auto* sounds = dynamic_cast<Family::SoundFile*>(file);
    if (document && copy.content == RecoveryCopy::Document) {
        applyText(document, copy.text, copy.codec);
        return true;
    }
    if (sprites && copy.content == RecoveryCopy::Sprites) {
        return sprites->restore(&buffer, copy.images, error);
    }
    if (sounds && copy.content == RecoveryCopy::Sounds) {
        return sounds->restore(&buffer, error);
    }
    *error = Text::tr("The copy is of another kind than its file.");
    return false;
}

}  // namespace

QString AbandonedWork::unsavedLines() const
{
    if (copy.content == RecoveryCopy::Canvas) {
        return copy.text;
    }
    QString error;
    RecoveryCopy whole;
    if (!whole.fromBytes(contentOf(path), &error)) {
        return {};
    }
    const auto file = newFile(whole);
    return apply(whole, file.get(), &error) ? workLines(file.get()) : QString();
}

QString AbandonedWork::fileLines() const
{
    if (copy.fileName.isEmpty() || copy.content == RecoveryCopy::Canvas) {
        return {};
    }
    if (copy.content == RecoveryCopy::Document) {
        return textOf(copy);
    }
    const auto file = newFile(copy);
    return file->fromFile(*Zorv::FileSystemArchive::instance(), copy.fileName, true)
               ? workLines(file.get())
               : QString();
}

AbandonedWorks::AbandonedWorks(const QString& root, const QString& gameFolder)
    : m_folders(SessionFolder::claimAbandoned(root))
{
    for (const auto& folder : m_folders) {
        const QFileInfoList copies = folder->copies();
        for (const QFileInfo& info : copies) {
            read(info.absoluteFilePath(), gameFolder);
        }
    }
}

AbandonedWorks::~AbandonedWorks() = default;

void AbandonedWorks::read(const QString& path, const QString& gameFolder)
{
    AbandonedWork work;
    work.path = path;
    bool isRead = false;
    const QByteArray bytes = contentOf(path, &isRead);
    if (isRead && work.copy.fromBytes(bytes, &work.fault)) {
        work.state = stateOf(work.copy);
    } else if (!isRead) {
        work.fault = Text::tr("The copy cannot be read.");
    }
    if (!gameFolder.isEmpty() && work.copy.gameFolder != gameFolder) {
        return;
    }
    const bool hasFile =
        work.state == AbandonedWork::Applicable || work.state == AbandonedWork::FileChanged;
    if (hasFile && saysTheSame(work.copy)) {
        work.discard();
        return;
    }
    work.copy.assets.clear();
    m_works.append(work);
}

bool AbandonedWork::isStillApplicable() const
{
    return state == Applicable && stateOf(copy) == Applicable;
}

bool AbandonedWork::discard() const
{
    return QFile::remove(path) || !QFileInfo::exists(path);
}

bool AbandonedWork::saveElsewhere(const QString& fileName, QString* error) const
{
    RecoveryCopy whole;
    return whole.fromBytes(contentOf(path), error) &&
           Zorv::SafeFile::save(fileName, bytesOf(whole), error);
}

bool AbandonedWork::restore(Zorv::ProjectFile* file, QString* error) const
{
    RecoveryCopy whole;
    return whole.fromBytes(contentOf(path), error) && apply(whole, file, error);
}

bool AbandonedWork::readCanvas(CanvasCopy* canvas, QString* error) const
{
    RecoveryCopy whole;
    if (!whole.fromBytes(contentOf(path), error)) {
        return false;
    }
    if (!canvas->read(whole.assets)) {
        *error = Text::tr("The copy of a canvas cannot be read: it is damaged, or there is not "
                          "enough memory.");
        return false;
    }
    return true;
}

void applyText(Zorv::CodeDocument* document, const QString& text, const QString& codec)
{
    const QString old = document->text();
    const int shorter = std::min(old.size(), text.size());
    int head = 0;
    while (head < shorter && old.at(head) == text.at(head)) {
        ++head;
    }
    int tail = 0;
    while (tail < shorter - head &&
           old.at(old.size() - 1 - tail) == text.at(text.size() - 1 - tail)) {
        ++tail;
    }
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    cursor.setPosition(head);
    cursor.setPosition(old.size() - tail, QTextCursor::KeepAnchor);
    cursor.insertText(text.mid(head, text.size() - tail - head));
    cursor.endEditBlock();
    const int number = codecOf(codec);
    if (!codec.isEmpty() && Zorv::TextCodecs::name(number) == codec) {
        document->setCodecId(number);
    }
    document->setModified(true);
}

}  // namespace Operations
