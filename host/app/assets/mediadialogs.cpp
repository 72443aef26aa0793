#include "app/assets/mediadialogs.h"

#include "operations/media/mediaresult.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/core/interface.h>
#include <zorv/core/project.h>
#include <zorv/media/fileextensiontype.h>

#include <QCoreApplication>
#include <QFileInfo>

namespace App {

using Zorv::Dialogs;
using Zorv::FileExtensionType;
using Zorv::Interface;

namespace {

constexpr unsigned AllFilesText = 7;  // "All files", in front of the patterns together

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(App::MediaDialogs)
};

QString filters(FileExtensionType all, FileExtensionType each)
{
    return Interface::instance()->text(AllFilesText) + QLatin1String(Zorv::fileExtension(all)) +
           QLatin1String(Zorv::fileExtension(each));
}

QString filterOf(MediaKind kind)
{
    switch (kind) {
    case MediaKind::Palettes:
        return filters(FileExtensionType::AllPalettes, FileExtensionType::Palettes);
    case MediaKind::PaletteTarget:
        return QLatin1String(Zorv::fileExtension(FileExtensionType::PaletteAct));
    case MediaKind::Sounds:
        break;
    }
    return Text::tr("Sounds") + QLatin1String(" (*.wav)");
}

QString folderKey(MediaKind kind)
{
    return kind == MediaKind::Sounds ? QStringLiteral("snd_path") : QStringLiteral("spr_path");
}

QString startFolder(MediaKind kind)
{
    const Zorv::Project* project = Interface::instance()->currentProject();
    const QString kept = project ? project->option(folderKey(kind)).toString() : QString();
    return !kept.isEmpty() || !project ? kept : project->absolutePath();
}

void keepFolder(MediaKind kind, const QString& folder)
{
    Zorv::Project* project = Interface::instance()->currentProject();
    if (project && !folder.isEmpty()) {
        project->setOption(folderKey(kind), folder, false);
    }
}

QString kept(MediaKind kind, const QString& fileName)
{
    if (!fileName.isEmpty()) {
        keepFolder(kind, QFileInfo(fileName).absolutePath());
    }
    return fileName;
}

}  // namespace

QStringList askForFiles(const QString& title, MediaKind kind)
{
    const QStringList files =
        Zorv::getOpenFileNames(nullptr, title, startFolder(kind), filterOf(kind));
    kept(kind, files.value(0));
    return files;
}

QString askForFile(const QString& title, MediaKind kind)
{
    return kept(kind, Zorv::getOpenFileName(nullptr, title, startFolder(kind), filterOf(kind)));
}

QString askForTarget(const QString& title, const QString& name, MediaKind kind)
{
    return kept(kind, Dialogs::instance()->saveFileName(nullptr, title,
                                                        startFolder(kind) + QLatin1Char('/') + name,
                                                        filterOf(kind)));
}

QString askForFolder(const QString& title, MediaKind kind)
{
    const QString folder = Dialogs::instance()->existingFolder(nullptr, title, startFolder(kind));
    keepFolder(kind, folder);
    return folder.isEmpty() ? folder : folder + QLatin1Char('/');
}

bool mayReplace(const QString& title, const QString& text)
{
    return Dialogs::instance()->question(
               title, text + QLatin1String("\n\n") + Text::tr("Replace what is there?"),
               Dialogs::Yes | Dialogs::No, Dialogs::No) == Dialogs::Yes;
}

void tellResult(const QString& title, const QString& done, const Operations::MediaResult& result)
{
    const QString text = (result.errors + result.warnings).mid(0, 12).join(QLatin1Char('\n'));
    if (!result.errors.isEmpty()) {
        Dialogs::instance()->error(title, text);
    } else if (!text.isEmpty()) {
        Dialogs::instance()->warning(title, text);
    } else if (result.isCanceled) {
        Interface::instance()->showStatus(0, Text::tr("Given up."));
    } else {
        Interface::instance()->showStatus(0, done);
    }
}

}  // namespace App
