#include "app/picture/picturescene.h"

#include "app/assets/spritepanel.h"
#include "app/code/codetexteditor.h"
#include "app/code/documenttabs.h"
#include "app/main/mainwindow.h"
#include "app/messages/messagepanel.h"
#include "app/messages/problemwatch.h"
#include "app/paint/paintcommands.h"
#include "app/session/gamesession.h"
#include "app/stage/stagecommands.h"
#include "app/stage/stagerenderer.h"
#include "app/window/panelplace.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"

#include <zorv/code/codedoc/contactboxescode.h>
#include <zorv/core/interface.h>
#include <zorv/core/message.h>
#include <zorv/core/messages.h>
#include <zorv/editors/code/codeeditor.h>
#include <zorv/image/palettepreviews.h>

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QThread>
#include <algorithm>
#include <iterator>
#include <tuple>

namespace App {

using Family::FamilyDocument;
using Family::FamilyProject;
using Zorv::CodeEditor;

namespace {

constexpr int SettleTime = 400;  // milliseconds: panels update with a delay
constexpr int Step = 10;

/// How well a document fills the panels: best one with problems and animations, then one with
/// problems.
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

/// Opens the document that fills the panels best, with its project; null if there is none.
FamilyDocument* openMostTelling(MainWindow* window)
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
    // Close projects that were only searched, or they would fill the tree.
    const QList<FamilyProject*> projects = window->session()->projects();
    for (FamilyProject* project : projects) {
        if (project != shown) {
            window->session()->closeProject(project);
        }
    }
    const bool isOpen =
        best && window->openFile(shown->fileName()) && window->openFile(best->fileName());
    return isOpen ? best : nullptr;
}

/// The n-th line that begins with a word, counted from 0; the first line of the text if there are
/// fewer.
QTextBlock lineOf(const FamilyDocument* document, const QString& word, int n)
{
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        if (block.text().startsWith(word) && n-- == 0) {
            return block;
        }
    }
    return document->begin();
}

/// The first problem, with its row in the list.
void showProblem(MainWindow* window, const FamilyDocument* document)
{
    const Zorv::Message first = document->messages()->at(0);
    window->textEditor()->goTo(first.line, first.column);
    window->problems()->settle();
    window->messagePanel()->showMessagesOf(document);
}

/// Three animations are folded, the mouse is on the second, and the cursor further down.
void showFolds(MainWindow* window, const FamilyDocument* document)
{
    Zorv::Interface::instance()->setOption(QStringLiteral("code_highlight_blocks"), true);
    window->reconfig();
    CodeEditor* edit = window->currentEdit();
    const QString head = QStringLiteral("animation");
    window->textEditor()->goTo(lineOf(document, head, 4).blockNumber() + 3);
    for (int i : {0, 1, 2}) {
        edit->toggleBlockVisible(lineOf(document, head, i));
    }
    edit->verticalScrollBar()->setValue(0);
    QTextCursor cursor(lineOf(document, head, 1));
    cursor.movePosition(QTextCursor::EndOfBlock);
    settleWindow();
    const QRect end = edit->cursorRect(cursor);
    const QPointF box(end.right() + 2 * edit->fontMetrics().averageCharWidth() + 8,
                      end.center().y());
    QMouseEvent move(QEvent::MouseMove, box, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(edit->viewport(), &move);
}

/// The words that can follow a frame.
void showWords(MainWindow* window, const FamilyDocument* document)
{
    const QTextBlock line = lineOf(document, QStringLiteral("frame"), 2);
    window->textEditor()->goTo(line.blockNumber(), line.length());
    window->currentEdit()->insertPlainText(QStringLiteral(" "));
    window->actionByName("code_complete")->trigger();
}

void showMatches(MainWindow* window, const FamilyDocument* document)
{
    const QString word = QStringLiteral("frame");
    window->textEditor()->goTo(lineOf(document, word, 0).blockNumber(), 0, word.size());
    window->actionByName("replace")->trigger();
}

/// The next line that begins with a word; the last line if there is none.
QTextBlock lineBehind(QTextBlock line, const QString& word)
{
    while (line.next().isValid() && !line.text().startsWith(word)) {
        line = line.next();
    }
    return line;
}

/// A frame with an attack.
void showAttack(MainWindow* window, const FamilyDocument* document, int animation)
{
    const QList<FamilyDocument*> documents = projectOf(document)->documents();
    for (FamilyDocument* other : documents) {
        if (other->animations()->count() > 7 &&
            other->text().contains(QLatin1String("\nattack "))) {
            window->showDocument(other);
            break;
        }
    }
    bringForward(window->spritePanel());
    document = window->tabs()->currentDocument();
    settleWindow();
    QTextBlock line = lineOf(document, QStringLiteral("animation"), animation);
    line = lineBehind(line, QStringLiteral("attack"));
    line = lineBehind(line, QStringLiteral("frame"));
    window->textEditor()->goTo(line.blockNumber());
}

/// An attack with its sprite beside it.
void showSprites(MainWindow* window, const FamilyDocument* document)
{
    showAttack(window, document, 8);
}

/// The stage with onion skin, rulers and a selected box.
void showStage(MainWindow* window, const FamilyDocument* document)
{
    window->actionByName("view_stage")->trigger();
    window->findChild<QDockWidget*>(QStringLiteral("messages"))->hide();
    showAttack(window, document, 3);
    for (const char* name : {"view_rulers", "anim_onion_skin"}) {
        window->actionByName(name)->trigger();
    }
    settleWindow();
    StageRenderer* stage = window->stage()->renderer();
    const Zorv::ContactBoxesCode* boxes = stage->boxes(Zorv::ContactBoxCode::Attack);
    if (boxes && boxes->count() > 0) {
        const QPointF middle = QRectF(boxes->at(0)->rect()).center() * qreal(stage->zoom());
        const QPoint place = stage->origin() + middle.toPoint();
        stage->mousePressed(place, Qt::LeftButton, Qt::NoModifier);
        stage->mouseReleased(place, Qt::LeftButton, Qt::NoModifier);
    }
}

/// A sprite on the canvas, with a view in its original size, a second layer and its costumes.
void showPaint(MainWindow* window, const FamilyDocument* document)
{
    window->findChild<QDockWidget*>(QStringLiteral("messages"))->hide();
    showAttack(window, document, 8);
    PaintCommands* paint = window->paint();
    paint->showSprite(window->spritePanel()->sprites(), window->spritePanel()->currentRow());
    paint->costumes()->parentWidget()->show();
    // The zoom follows the view's size until a layer is added.
    settleWindow();
    settleWindow();
    for (const char* name : {"paint_grid", "spr_view_original", "spr_layer_add"}) {
        window->actionByName(name)->trigger();
    }
    settleWindow();
}

struct Scene
{
    const char* name;
    void (*arrange)(MainWindow* window, const FamilyDocument* document);
};

const Scene scenes[] = {
    {"code", showProblem}, {"folding", showFolds},   {"completion", showWords},
    {"find", showMatches}, {"sprites", showSprites}, {"stage", showStage},
    {"paint", showPaint},
};

}  // namespace

QStringList pictureScenes()
{
    QStringList names;
    for (const Scene& scene : scenes) {
        names.append(QLatin1String(scene.name));
    }
    return names;
}

void arrangeScene(MainWindow* window, const QString& name)
{
    const FamilyDocument* document = openMostTelling(window);
    const auto found = std::find_if(std::begin(scenes), std::end(scenes), [&](const Scene& scene) {
        return name == QLatin1String(scene.name);
    });
    if (document) {
        // Without the stage, the text has all the space.
        window->actionByName("view_stage")->trigger();
        settleWindow();
        (found == std::end(scenes) ? scenes : found)->arrange(window, document);
    }
}

void settleWindow()
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < SettleTime) {
        QCoreApplication::processEvents();
        QThread::msleep(Step);
    }
}

}  // namespace App
