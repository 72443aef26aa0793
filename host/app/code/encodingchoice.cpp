#include "app/code/encodingchoice.h"

#include "family/familydocument.h"
#include "operations/documentfile.h"

#include <zorv/code/codecs/textcodecs.h>
#include <zorv/core/dialogs/dialogs.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace App {

using Family::FamilyDocument;
using Zorv::Dialogs;
using Zorv::TextCodecs;

namespace {

enum Answer { GiveUp = -1, ReadAgain = 0, KeepText = 1 };

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(App::EncodingChoice)
};

Answer askWhatFor(const FamilyDocument* document, const QString& codec)
{
    if (document->fileName().isEmpty() || !QFileInfo::exists(document->fileName())) {
        return KeepText;
    }
    const QString file = QDir::toNativeSeparators(document->fileName());
    const QString text =
        document->isModified()
            ? Text::tr("%1 has unsaved changes. They are lost if it is read again in %2.")
                  .arg(file, codec)
            : Text::tr("%1 can be read again in %2, or keep its text and be saved in it.")
                  .arg(file, codec);
    const QStringList choices{Text::tr("Read the file again in %1").arg(codec),
                              Text::tr("Keep the text, and save it in %1").arg(codec)};
    return Answer(Dialogs::instance()->choose(Text::tr("Encoding"), text, choices,
                                              document->isModified() ? KeepText : ReadAgain));
}

void readAgain(FamilyDocument* document, int codec)
{
    if (!document->fromFile(*document->archive(), document->fileName(), codec, false)) {
        Dialogs::instance()->error(Text::tr("Encoding"), document->errorString());
        return;
    }
    Operations::ensureFaithful(document);
}

void keepText(FamilyDocument* document, int codec)
{
    document->setCodecId(codec);
    // The file on disk differs now, although no character has changed.
    document->setModified(true);
    const QString obstacle = Operations::encodingObstacle(document);
    if (!obstacle.isEmpty()) {
        Dialogs::instance()->warning(Text::tr("Encoding"), obstacle);
    }
}

}  // namespace

void chooseEncoding(FamilyDocument* document)
{
    QStringList names;
    for (int i = 0; i < TextCodecs::count(); ++i) {
        names.append(TextCodecs::name(i));
    }
    const int codec = Dialogs::instance()->choose(
        Text::tr("Encoding"), Text::tr("Encoding of the file:"), names, document->codecId());
    if (codec < 0) {
        return;
    }
    switch (askWhatFor(document, names[codec])) {
    case ReadAgain:
        readAgain(document, codec);
        break;
    case KeepText:
        if (codec != document->codecId()) {
            keepText(document, codec);
        }
        break;
    case GiveUp:
        break;
    }
}

}  // namespace App
