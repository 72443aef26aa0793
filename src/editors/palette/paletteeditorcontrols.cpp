#include "core/interface.h"
#include "editors/framework/ownwidgetcontrol.h"
#include "editors/framework/toolbuttoncontrol.h"
#include "editors/framework/widgetcontrol.h"
#include "editors/palette/paletteeditor_p.h"
#include "text/zorvtranslator.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QSlider>

namespace Zorv {

namespace {

const char* const areas[] = {"sprites", "animations", nullptr};

enum Kind { Action, Slider, Label, View };

/// In the order in which they are published.
const struct Tool
{
    const char* name;
    Kind kind;
    unsigned textId;
    const char* slot;
    bool isSwitched;  // by `enabled()`
} tools[] = {
    {"pal_clear", Action, 28, SLOT(clear()), false},
    {"pal_clear_unused", Action, 29, SLOT(clearUnused()), false},
    {"pal_add", Action, 30, SLOT(add()), false},
    {"pal_delete", Action, 31, SLOT(del()), true},
    {"pal_delete_duplicates", Action, 32, SLOT(delDupl()), true},
    {"pal_open", Action, 33, SLOT(open()), true},
    {"pal_save", Action, 34, SLOT(save()), true},
    {"pal_remap", Action, 35, SLOT(remap()), true},
    {"pal_undo", Action, 36, SLOT(undo()), true},
    {"pal_redo", Action, 37, SLOT(redo()), true},
    {"pal_switch_color", Action, 38, SLOT(switchColor()), true},
    {"pal_set_color", Action, 39, SLOT(setColor()), true},
    {"pal_apply_sprite", Action, 40, SLOT(setSprPal()), true},
    {"pal_sel", Slider, 0, SLOT(selPosChanged(int)), false},
    {"pal_sel_lb", Label, 0, nullptr, false},
    {"pal_prev", Action, 41, SLOT(prevPal()), true},
    {"pal_next", Action, 42, SLOT(nextPal()), true},
    {"pal_view", View, 0, nullptr, false},
};

}  // namespace

void PaletteEditorPrivate::publish()
{
    for (const Tool& tool : tools) {
        const QString name = QString::fromLatin1(tool.name);
        if (tool.kind == Action) {
            publishAction(tool.name, tool.textId, tool.slot, tool.isSwitched);
        } else if (tool.kind == View) {
            OwnWidgetControl control(view, this);
            control.setAreas(areas);
            host->addControl(name, control);
        } else {
            const bool isSlider = tool.kind == Slider;
            WidgetControl control(
                isSlider ? WidgetControl::Slider : WidgetControl::Label, 0, this, tool.slot,
                isSlider ? SIGNAL(setSelPos(int)) : SIGNAL(setPosText(QString)), nullptr);
            control.setAreas(areas);
            QObject* made = host->addControl(name, control);
            slider = isSlider ? qobject_cast<QSlider*>(made) : slider.data();
        }
    }
    view->installEventFilter(this);
}

void PaletteEditorPrivate::publishAction(const char* name, unsigned textId, const char* slot,
                                         bool isSwitched)
{
    QAction* action = host->createAction(areas, QString::fromLatin1(name),
                                         ZorvTranslator::instance(), textId, nullptr, this, slot,
                                         isSwitched ? SIGNAL(enabled(bool)) : nullptr, nullptr);
    if (action) {
        host->addControl(QString::fromLatin1(name), ToolButtonControl(action));
        view->addAction(action);
    }
}

void PaletteEditorPrivate::retranslate()
{
    if (view) {
        view->setAccessibleName(editor->displayName());
    }
    if (slider) {
        slider->setAccessibleName(editor->displayName());
    }
}

/// Of the grid alone. Its last events come when it is no grid any more, so only the kind is looked
/// at. The right button is a choice of colours, as it is on the canvas.
bool PaletteEditorPrivate::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ContextMenu) {
        return QObject::eventFilter(watched, event);
    }
    const auto* request = static_cast<QContextMenuEvent*>(event);
    if (request->reason() != QContextMenuEvent::Mouse ||
        (request->modifiers() & Qt::ControlModifier)) {
        QMenu::exec(view->actions(), request->globalPos(), nullptr, view);
    }
    return true;
}

}  // namespace Zorv
