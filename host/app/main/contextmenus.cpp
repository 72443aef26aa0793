#include "app/main/contextmenus.h"

#include "app/animations/animationcommands.h"
#include "app/assets/spritepanel.h"
#include "app/code/codetexteditor.h"
#include "app/code/documenttabs.h"
#include "app/code/nodemodel.h"
#include "app/game/gametree.h"
#include "app/main/mainwindow.h"
#include "app/sounds/soundpanel.h"
#include "app/stage/stagecommands.h"
#include "app/stage/stagerenderer.h"
#include "app/stage/stageview.h"

#include <zorv/animation/thumbnails/spritelist.h>
#include <zorv/animation/timeline/timelinewidget.h>
#include <zorv/editors/framework/rowlist.h>
#include <zorv/graphics/graphicwork/graphicsworkspace.h>

#include <QAbstractItemView>
#include <QAction>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QTabBar>
#include <QTreeView>
#include <algorithm>

namespace App {

namespace {

/// Where a context menu opens when requested by keyboard.
QPoint placeForKeys(const QWidget* widget)
{
    if (const auto* view = qobject_cast<const QAbstractItemView*>(widget)) {
        return view->viewport()->mapTo(widget, view->visualRect(view->currentIndex()).bottomLeft());
    }
    if (const auto* tabs = qobject_cast<const QTabBar*>(widget)) {
        return tabs->tabRect(tabs->currentIndex()).bottomLeft();
    }
    return widget->rect().center();
}

}  // namespace

ContextMenus::ContextMenus(MainWindow* window) : QObject(window), m_window(window)
{
    const StageCommands* stage = window->stage();
    add(stage->workspace()->timeLine(),
        {"anim_play", "anim_stop", nullptr, "anim_prev_frame", "anim_next_frame", nullptr,
         "anim_frame_add", "anim_frame_delete", nullptr, "anim_onion_skin"});
    add(stage->view(),
        {"anim_play", "anim_stop", "anim_prev_frame", "anim_next_frame", nullptr,
         "anim_box_add_attack", "anim_box_add_collision", "anim_box_del", "anim_box_type",
         "stage_capture", nullptr, "anim_onion_skin", "view_rulers", "view_guide_lines",
         "view_attack_box", "view_collision_box", nullptr, "view_center_origin"});
    add(window->animations()->list(),
        {"anim_add", "anim_duplicate", "anim_delete", nullptr, "org_up", "org_down", "org_top",
         "org_bottom", nullptr, "org_auto"});
    add(window->gameTree(), {"new_file", "new_character", "new_stage", nullptr, "run", nullptr,
                             "save_all", "backup", nullptr, "close_project", "close_folder"});
    add(window->textEditor()->tree(),
        {"anim_add", nullptr, "code_definition", "code_references", "code_rename", nullptr,
         "code_fold", "code_fold_all", "code_unfold_all"});
    // These use the actions added by their commands.
    add(window->spritePanel()->list(), {});
    add(window->soundPanel()->list(), {});
    add(window->tabs()->bar(),
        {"save", "close_text", nullptr, "next_text", "previous_text", nullptr, "encoding"});
}

void ContextMenus::add(QWidget* widget, const QVector<const char*>& actions)
{
    if (widget) {
        widget->installEventFilter(this);
        m_places.append({widget, actions});
    }
}

bool ContextMenus::eventFilter(QObject* watched, QEvent* event)
{
    const auto place = std::find_if(m_places.cbegin(), m_places.cend(),
                                    [watched](const Place& p) { return p.widget == watched; });
    if (place == m_places.cend()) {
        return false;
    }
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        return key->key() == Qt::Key_F10 && key->modifiers() == Qt::ShiftModifier &&
               open(*place, nullptr);
    }
    if (event->type() == QEvent::ContextMenu) {
        const auto* asked = static_cast<QContextMenuEvent*>(event);
        const QPoint pointer = place->widget->mapFromGlobal(asked->globalPos());
        return open(*place, asked->reason() == QContextMenuEvent::Mouse ? &pointer : nullptr);
    }
    return false;
}

/// The right button ends drawing boxes; it must not open a menu then.
bool ContextMenus::open(const Place& place, const QPoint* pointer)
{
    const StageCommands* stage = m_window->stage();
    if (place.widget == stage->view() &&
        stage->renderer()->clickMode() != StageRenderer::PositioningMode) {
        return false;
    }
    auto* tabs = qobject_cast<QTabBar*>(place.widget);
    if (tabs && pointer && tabs->tabAt(*pointer) >= 0) {
        tabs->setCurrentIndex(tabs->tabAt(*pointer));
    }
    const CodeTextEditor* text = m_window->textEditor();
    const int line =
        place.widget == text->tree() ? text->nodes()->lineNo(text->tree()->currentIndex()) : -1;
    if (line >= 0) {
        // A right click does not move the cursor, but the menu is for the clicked row.
        m_window->moveCursor(line);
    }
    auto* menu = new QMenu(place.widget);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const char* name : place.actions) {
        QAction* action = name ? m_window->actionByName(name) : menu->addSeparator();
        if (action && name) {
            menu->addAction(action);
        }
    }
    // The widget's own actions come last.
    menu->addSeparator();
    for (QAction* own : place.widget->actions()) {
        if (!menu->actions().contains(own)) {
            menu->addAction(own);
        }
    }
    menu->popup(place.widget->mapToGlobal(pointer ? *pointer : placeForKeys(place.widget)));
    return true;
}

}  // namespace App
