#include "app/start/startcommands.h"

#include "app/start/lessonview.h"
#include "app/window/jumps.h"
#include "app/window/statusfields.h"
#include "app/window/windowservices.h"
#include "operations/create/shippedfiles.h"

#include <zorv/core/dialogs/dialogs.h>

#include <QApplication>
#include <QDir>
#include <QStandardPaths>

namespace App {

StartCommands::StartCommands(const WindowServices& services)
    : QObject(services.window), m_services(services)
{
}

QVector<ActionRow> StartCommands::actions()
{
    const Members<StartCommands> on(this);
    // clang-format off
    return {
        {"first_lesson", "help.start", QT_TRANSLATE_NOOP("App::Actions", "&First lesson"),     {}, on(&StartCommands::showLesson)},
        {"open_sample",  "help.start", QT_TRANSLATE_NOOP("App::Actions", "Open &sample game"), {}, on(&StartCommands::openSample)},
    };
    // clang-format on
}

void StartCommands::openSample()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString folder = documents + QLatin1String("/zorv-arena");
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QDir().mkpath(documents);
    const QString error = Operations::copySample(folder);
    QApplication::restoreOverrideCursor();
    if (!error.isEmpty()) {
        Zorv::Dialogs::instance()->error(tr("Open sample game"), error);
    } else if (m_services.jumps->openPath(folder)) {
        m_services.status->showField(
            0,
            tr("This is your copy of the sample game: %1").arg(QDir::toNativeSeparators(folder)));
    }
}

void StartCommands::showLesson()
{
    const QString page = Operations::documentationPage(QStringLiteral("first-character.md"));
    if (page.isEmpty()) {
        Zorv::Dialogs::instance()->error(
            tr("First lesson"),
            tr("The documentation is not beside the program. Install the program anew."));
        return;
    }
    if (!m_lesson) {
        m_lesson = new LessonView(m_services.window);
        m_lesson->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_lesson->showPage(page);
    m_lesson->show();
    m_lesson->raise();
    m_lesson->activateWindow();
}

}  // namespace App
