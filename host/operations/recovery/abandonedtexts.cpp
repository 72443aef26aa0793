#include "operations/recovery/abandonedtexts.h"

#include "operations/recovery/sessionfolder.h"

#include <zorv/code/codecs/textcodecs.h>
#include <zorv/code/codedoc/codedocument.h>
#include <zorv/core/safefile.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextBlock>
#include <algorithm>

namespace Operations {

namespace {

// Twice what the largest text takes, and its head.
constexpr qint64 MaxCopySize = qint64(640) * 1024 * 1024;

QByteArray contentOf(const QString& path, bool* isRead = nullptr)
{
    QFile file(path);
    const bool isOpen = file.open(QIODevice::ReadOnly);
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

AbandonedText::State stateOf(const RecoveryCopy& copy)
{
    FileStamp now = FileStamp::of(copy.fileName);
    if (copy.fileName.isEmpty() || (!copy.stamp.exists && !now.exists)) {
        return AbandonedText::Applicable;
    }
    if (!now.exists) {
        return AbandonedText::FileGone;
    }
    now.addHash(copy.fileName);
    const bool isSame = copy.stamp.exists && !now.hash.isEmpty() && now.hash == copy.stamp.hash;
    return isSame ? AbandonedText::Applicable : AbandonedText::FileChanged;
}

}  // namespace

QString AbandonedText::fileText() const
{
    if (copy.fileName.isEmpty()) {
        return {};
    }
    int codec = codecOf(copy.codec);
    QString text = Zorv::TextCodecs::stringFromData(contentOf(copy.fileName), &codec);
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text;
}

AbandonedTexts::AbandonedTexts(const QString& root, const QString& gameFolder)
    : m_folders(SessionFolder::claimAbandoned(root))
{
    for (const auto& folder : m_folders) {
        const QFileInfoList copies = folder->copies();
        for (const QFileInfo& info : copies) {
            if (info.size() <= MaxCopySize) {
                read(info.absoluteFilePath(), gameFolder);
            }
        }
    }
}

AbandonedTexts::~AbandonedTexts() = default;

void AbandonedTexts::read(const QString& path, const QString& gameFolder)
{
    AbandonedText text;
    text.path = path;
    bool isRead = false;
    const QByteArray bytes = contentOf(path, &isRead);
    if (isRead && text.copy.fromBytes(bytes, &text.fault)) {
        text.state = stateOf(text.copy);
    } else if (!isRead) {
        text.fault =
            QCoreApplication::translate("Operations::AbandonedTexts", "The copy cannot be read.");
    }
    if (!gameFolder.isEmpty() && text.copy.gameFolder != gameFolder) {
        return;
    }
    const bool hasFile =
        text.state == AbandonedText::Applicable || text.state == AbandonedText::FileChanged;
    if (hasFile && !text.copy.fileName.isEmpty() && text.fileText() == text.copy.text) {
        text.discard();
        return;
    }
    m_texts.append(text);
}

bool AbandonedText::isStillApplicable() const
{
    return state == Applicable && stateOf(copy) == Applicable;
}

bool AbandonedText::discard() const
{
    return QFile::remove(path) || !QFileInfo::exists(path);
}

bool AbandonedText::saveElsewhere(const QString& fileName, QString* error) const
{
    QString content = copy.text;
    content.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    int codec = codecOf(copy.codec);
    if (Zorv::TextCodecs::firstUnencodable(content, codec) >= 0) {
        codec = Zorv::TextCodecs::index("UTF-8");
    }
    return Zorv::SafeFile::save(fileName, Zorv::TextCodecs::stringToData(content, codec), error);
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
