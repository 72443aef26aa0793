#include "app/screenshot.h"

#include "app/code/codetexteditor.h"
#include "app/gamesession.h"
#include "app/mainwindow.h"
#include "app/messagepanel.h"
#include "core/message.h"
#include "core/messages.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPixmap>
#include <QThread>

#include <tuple>

namespace App {

using Family::FamilyDocument;
using Family::FamilyProject;

namespace {

// Larger windows make pictures of which nothing can be read.
const QSize PictureSize(1280, 800);

constexpr int SettleTime = 400;  // milliseconds: panels follow a little later
constexpr int Step = 10;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(App::Screenshot)
};

void settle()
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < SettleTime) {
        QCoreApplication::processEvents();
        QThread::msleep(Step);
    }
}

/// How much a document fills the panels: one with both problems and animations
/// goes first, then one with problems.
using Weight = std::tuple<bool, int, int>;

Weight weightOf(const FamilyDocument* document)
{
    const int problems = document->messages()->count(Zorv::Message::AllTypes);
    const int animations = document->animations()->count();
    return {problems > 0 && animations > 0, problems, animations};
}

FamilyDocument* mostTelling(const FamilyProject* project, FamilyDocument* best)
{
    const QList<FamilyDocument*> documents = project->documents();
    for (FamilyDocument* document : documents) {
        best = !best || weightOf(document) > weightOf(best) ? document : best;
    }
    return best;
}

void showProblems(MainWindow* window)
{
    FamilyDocument* best = nullptr;
    const QStringList mainFiles =
        Family::FamilyParentProject::mainFiles(window->session()->folder());
    for (const QString& mainFile : mainFiles) {
        QString error;
        if (const FamilyProject* project = window->session()->openProject(mainFile, &error)) {
            best = mostTelling(project, best);
        }
    }
    const FamilyProject* shown = projectOf(best);
    // Projects that were only looked into would fill the tree.
    const QList<FamilyProject*> projects = window->session()->projects();
    for (FamilyProject* project : projects) {
        if (project != shown) {
            window->session()->closeProject(project);
        }
    }
    if (!best || !window->openFile(shown->fileName()) || !window->openFile(best->fileName())) {
        return;
    }
    const Zorv::Message first = best->messages()->at(0);
    window->textEditor()->goTo(first.line, first.column);
    window->messagePanel()->showMessagesOf(best);
}

}  // namespace

bool drawWindow(MainWindow* window, const QString& game, const QString& picture, QString* error)
{
    window->resize(PictureSize);
    window->show();
    if (!game.isEmpty() && !window->openPath(game)) {
        *error = Text::tr("There is no picture without the game.");
        return false;
    }
    if (window->session()->game()) {
        showProblems(window);
    }
    settle();
    if (!window->grab().save(picture, "PNG")) {
        *error = Text::tr("The picture %1 cannot be written. Check the folder and its permissions.")
                     .arg(QDir::toNativeSeparators(picture));
        return false;
    }
    return true;
}

}  // namespace App
