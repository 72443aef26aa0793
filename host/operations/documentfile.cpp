#include "operations/documentfile.h"

#include "family/familydocument.h"

#include <zorv/code/codecs/textcodecs.h>
#include <zorv/core/dialogs/dialogs.h>
#include <zorv/core/filesystemarchive.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <memory>

namespace Operations {

using Family::FamilyDocument;

namespace {

// A text and its tree take about twenty times the size of the file.
const qint64 MaxFileSize = qint64(256) * 1024 * 1024;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::DocumentFile)
};

// The path relative to the current folder, if the file is inside it.
QString shownName(const Zorv::CodeDocument* document)
{
    const QString path = document->fileName();
    const QString here = QDir::currentPath() + QLatin1Char('/');
    return QDir::toNativeSeparators(path.startsWith(here) ? path.mid(here.size()) : path);
}

QString readingObstacle(const QString& fileName)
{
    const QFileInfo info(fileName);
    if (fileName.isEmpty()) {
        return Text::tr("Expected the name of a file; found an empty text.");
    }
    if (info.size() > MaxFileSize) {
        return Text::tr("Cannot open %1: It is larger than %2 MB. Divide it into several files.")
            .arg(QDir::toNativeSeparators(fileName), QString::number(MaxFileSize / 1024 / 1024));
    }
    return {};
}

QString characterName(const QString& text, int at)
{
    const bool isPair = text.at(at).isHighSurrogate() && at + 1 < text.size();
    const uint code =
        isPair ? QChar::surrogateToUcs4(text.at(at), text.at(at + 1)) : text.at(at).unicode();
    const QString number = QLatin1String("U+") +
                           QString::number(code, 16).toUpper().rightJustified(4, QLatin1Char('0'));
    return QChar::isPrint(code) ? Text::tr("'%1' (%2)").arg(text.mid(at, isPair ? 2 : 1), number)
                                : number;
}

}  // namespace

FamilyDocument* openDocument(const QString& fileName, int codec, QString* error)
{
    *error = readingObstacle(fileName);
    if (!error->isEmpty()) {
        return nullptr;
    }
    auto document = std::make_unique<FamilyDocument>(Family::fileKindOf(fileName));
    if (!document->fromFile(*Zorv::FileSystemArchive::instance(), fileName, codec, false)) {
        *error = document->errorString();
        return nullptr;
    }
    return document.release();
}

int faithfulCodec(const QString& fileName)
{
    auto* archive = Zorv::FileSystemArchive::instance();
    QIODevice* device = archive->openFile(fileName, QIODevice::ReadOnly);
    if (!device) {
        return -1;
    }
    const QByteArray data = device->readAll();
    archive->closeFile(device);
    // Try each candidate: a document cannot preserve some characters, whatever the codec.
    // ISO-8859-1 is last because it never decodes a byte to one of them.
    for (int codec :
         {Zorv::TextCodecs::faithfulCodec(data), Zorv::TextCodecs::index("ISO-8859-1")}) {
        FamilyDocument trial(Family::fileKindOf(fileName));
        if (trial.fromFile(*archive, fileName, codec, false) && trial.isFaithful()) {
            return codec;
        }
    }
    return -1;
}

bool ensureFaithful(Zorv::CodeDocument* document)
{
    if (document->isFaithful()) {
        return true;
    }
    const int codec = faithfulCodec(document->fileName());
    const QString title = Text::tr("Encoding");
    const QString text =
        Text::tr("%1 does not come back byte for byte from its encoding, %2: saving it "
                 "would change characters.")
            .arg(shownName(document), document->codecName());
    if (codec < 0) {
        Zorv::Dialogs::instance()->warning(title, text);
        return false;
    }
    const QString name = Zorv::TextCodecs::name(codec);
    const QStringList choices{Text::tr("Open it in %1").arg(name),
                              Text::tr("Keep %1").arg(document->codecName())};
    const int choice = Zorv::Dialogs::instance()->choose(
        title, Text::tr("%1 It does from %2.").arg(text, name), choices, 0);
    return choice == 0 &&
           document->fromFile(*document->archive(), document->fileName(), codec, false) &&
           document->isFaithful();
}

QString encodingObstacle(const Zorv::CodeDocument* document)
{
    const QString text = document->text();
    const int at = Zorv::TextCodecs::firstUnencodable(text, document->codecId());
    if (at < 0) {
        return {};
    }
    const int line = text.leftRef(at).count(QLatin1Char('\n')) + 1;
    return Text::tr(
               "%1, line %2: The encoding %3 has no %4. Change the character, or save the file in "
               "UTF-8.")
        .arg(shownName(document), QString::number(line), document->codecName(),
             characterName(text, at));
}

QString lineEndNote(const Zorv::CodeDocument* document)
{
    return document->hasForeignLineEnds()
               ? Text::tr(
                     "Saving %1 ends each of its lines with a carriage return and a line feed.")
                     .arg(shownName(document))
               : QString();
}

bool settleEncoding(Zorv::CodeDocument* document)
{
    const QString obstacle = encodingObstacle(document);
    if (obstacle.isEmpty()) {
        return true;
    }
    const QStringList choices{Text::tr("Save it in UTF-8"), Text::tr("Do not save")};
    if (Zorv::Dialogs::instance()->choose(Text::tr("Encoding"), obstacle, choices, 0) != 0) {
        return false;
    }
    document->setCodec("UTF-8");
    return true;
}

Saved saveDocument(Zorv::CodeDocument* document, const QString& fileName, QString* error)
{
    const int oldCodec = document->codecId();
    if (!settleEncoding(document)) {
        return Saved::GivenUp;
    }
    if (document->toFile(*Zorv::FileSystemArchive::instance(), fileName, false)) {
        return Saved::Done;
    }
    *error = document->errorString();
    document->setCodecId(oldCodec);
    // A failed write emits no signal that ends the pause of the watch, so end it here.
    document->pauseWatch(false);
    return Saved::Failed;
}

}  // namespace Operations
