#include "app/main/windowstate.h"

#include "app/code/documenttabs.h"
#include "app/controls/controlplacer.h"
#include "app/main/mainwindow.h"
#include "app/session/gamesession.h"
#include "app/stage/stagecommands.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"

#include <zorv/core/interface.h>

#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QLayout>
#include <QScreen>
#include <QStyle>

namespace App {

using Family::FamilyDocument;

namespace {

const QString GeometryKey = QStringLiteral("window_geometry");
const QString PanelsKey = QStringLiteral("window_panels");
const QString GameKey = QStringLiteral("last_game");
const QString TextsKey = QStringLiteral("open_texts");
const QString FrontKey = QStringLiteral("front_text");

constexpr QSize UsualSize(1280, 800);
constexpr int RoomOfAllPanels = 450;  // pixels; with less, some panels are hidden at first
constexpr int PanelsVersion = 6;      // increase when panels are added or removed

QVariant setting(const QString& key)
{
    return Zorv::Interface::instance()->option(key);
}

void store(const QString& key, const QVariant& value)
{
    Zorv::Interface::instance()->setOption(key, value);
}

/// The space on the screen for a window without its frame.
QSize roomOf(const QWidget* window)
{
    const int title = window->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, window);
    const int border = window->style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    return window->screen()->availableSize() - QSize(2 * border, title + border);
}

/// Sizes of the panels at the first start; the middle gets the rest.
void giveRoom(QMainWindow* window)
{
    const auto dock = [window](const char* name) {
        return window->findChild<QDockWidget*>(QLatin1String(name));
    };
    window->layout()->invalidate();
    window->layout()->activate();  // at its new size
    window->resizeDocks({dock("projects"), dock("nodes")}, {240, 310}, Qt::Horizontal);
    window->resizeDocks({dock("projects"), dock("sprites")}, {280, 480}, Qt::Vertical);
    window->resizeDocks({dock("nodes"), dock("organizer")}, {420, 280}, Qt::Vertical);
    window->resizeDocks({dock("messages")}, {100}, Qt::Vertical);
}

QVariantMap stateOf(const DocumentTabs* tabs, const FamilyDocument* document)
{
    const Family::FamilyProject* project = projectOf(document);
    const TextPlace place = tabs->placeOf(document);
    return {{QStringLiteral("project"), project ? project->fileName() : QString()},
            {QStringLiteral("file"), document->fileName()},
            {QStringLiteral("line"), place.line},
            {QStringLiteral("column"), place.column},
            {QStringLiteral("top"), place.scroll}};
}

void restoreText(MainWindow* window, const QVariantMap& state)
{
    const QString project = state.value(QStringLiteral("project")).toString();
    const QString file = state.value(QStringLiteral("file")).toString();
    if (!QFileInfo(project).isFile() || !QFileInfo(file).isFile()) {
        return;
    }
    QString error;
    const Family::FamilyProject* opened = window->session()->openProject(project, &error);
    FamilyDocument* document = opened ? window->session()->document(file, opened, true) : nullptr;
    if (!document) {
        return;
    }
    window->showDocument(document);
    const int line = state.value(QStringLiteral("line")).toInt();
    const int column = state.value(QStringLiteral("column")).toInt();
    window->tabs()->setPlace(
        document, {line, column, line, column, state.value(QStringLiteral("top")).toInt()});
}

}  // namespace

void WindowState::save(const MainWindow* window)
{
    store(GeometryKey, window->saveGeometry());
    store(PanelsKey, window->saveState(PanelsVersion));
    window->stage()->keepPlace();
    store(GameKey, window->session()->folder());
    QVariantList texts;
    const DocumentTabs* tabs = window->tabs();
    for (int i = 0; i < tabs->count(); ++i) {
        texts.append(stateOf(tabs, tabs->documentAt(i)));
    }
    store(TextsKey, texts);
    store(FrontKey, tabs->currentIndex());
}

void WindowState::restoreShape(MainWindow* window)
{
    if (!window->restoreGeometry(setting(GeometryKey).toByteArray())) {
        const QSize room = roomOf(window);
        if (room.height() < RoomOfAllPanels) {
            for (const QString& name : {QStringLiteral("sprites"), QStringLiteral("sounds")}) {
                window->findChild<QDockWidget*>(name)->hide();
            }
            window->controls()->switchOff("thumbnails");
            window->controls()->updateVisibility();
        }
        window->layout()->activate();  // hidden panels need no space
        window->resize(UsualSize.boundedTo(room));
        giveRoom(window);
    }
    window->restoreState(setting(PanelsKey).toByteArray(), PanelsVersion);
}

void WindowState::restoreWork(MainWindow* window, const QString& otherwise)
{
    const QString last = setting(GameKey).toString();
    const bool isLast = !last.isEmpty() && QFileInfo(last).isDir() &&
                        (otherwise.isEmpty() || QDir(otherwise) == QDir(last));
    if (!isLast) {
        if (!otherwise.isEmpty()) {
            window->openPath(otherwise);
        }
        return;
    }
    if (!window->openPath(last)) {
        return;
    }
    const QVariantList texts = setting(TextsKey).toList();
    for (const QVariant& text : texts) {
        restoreText(window, text.toMap());
    }
    const int front = setting(FrontKey).toInt();
    if (front >= 0 && front < window->tabs()->count()) {
        window->tabs()->setCurrentIndex(front);
    }
}

}  // namespace App
