#include "app/assets/mediadialogs.h"

#include "operations/media/mediaresult.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/core/interface.h>
#include <zorv/core/project.h>

#include <QCoreApplication>
#include <QFileInfo>

namespace App {

using Zorv::Dialogs;
using Zorv::Interface;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(App::MediaDialogs)
};

QString filter()
{
    return Text::tr("Sounds") + QLatin1String(" (*.wav)");
}

QString folderKey()
{
    return QStringLiteral("snd_path");
}

QString startFolder()
{
    const Zorv::Project* project = Interface::instance()->currentProject();
    const QString kept = project ? project->option(folderKey()).toString() : QString();
    return !kept.isEmpty() || !project ? kept : project->absolutePath();
}

void keepFolder(const QString& folder)
{
    Zorv::Project* project = Interface::instance()->currentProject();
    if (project && !folder.isEmpty()) {
        project->setOption(folderKey(), folder, false);
    }
}

QString kept(const QString& fileName)
{
    if (!fileName.isEmpty()) {
        keepFolder(QFileInfo(fileName).absolutePath());
    }
    return fileName;
}

}  // namespace

QStringList askForFiles(const QString& title)
{
    const QStringList files = Zorv::getOpenFileNames(nullptr, title, startFolder(), filter());
    kept(files.value(0));
    return files;
}

QString askForTarget(const QString& title, const QString& name)
{
    return kept(Dialogs::instance()->saveFileName(
        nullptr, title, startFolder() + QLatin1Char('/') + name, filter()));
}

QString askForFolder(const QString& title)
{
    const QString folder = Dialogs::instance()->existingFolder(nullptr, title, startFolder());
    keepFolder(folder);
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
