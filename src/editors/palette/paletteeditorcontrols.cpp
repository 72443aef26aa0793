#include "editors/framework/editortools_p.h"
#include "editors/palette/paletteeditor_p.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QSlider>

namespace Zorv {

namespace {

using namespace ToolKind;

const char* const areas[] = {"sprites", "animations", nullptr};

const char* const always = nullptr;
const char* const onPalette = SIGNAL(enabled(bool));

const EditorTool table[] = {
    {"pal_clear", Action, 28, always, SLOT(clear())},
    {"pal_clear_unused", Action, 29, always, SLOT(clearUnused())},
    {"pal_add", Action, 30, always, SLOT(add())},
    {"pal_delete", Action, 31, onPalette, SLOT(del())},
    {"pal_delete_duplicates", Action, 32, onPalette, SLOT(delDupl())},
    {"pal_open", Action, 33, onPalette, SLOT(open())},
    {"pal_save", Action, 34, onPalette, SLOT(save())},
    {"pal_remap", Action, 35, onPalette, SLOT(remap())},
    {"pal_undo", Action, 36, onPalette, SLOT(undo())},
    {"pal_redo", Action, 37, onPalette, SLOT(redo())},
    {"pal_switch_color", Action, 38, onPalette, SLOT(switchColor())},
    {"pal_set_color", Action, 39, onPalette, SLOT(setColor())},
    {"pal_apply_sprite", Action, 40, onPalette, SLOT(setSprPal())},
    {"pal_sel", Slider, NoText, always, SLOT(selPosChanged(int)), SIGNAL(setSelPos(int))},
    {"pal_sel_lb", Label, NoText, always, nullptr, SIGNAL(setPosText(QString))},
    {"pal_prev", Action, 41, onPalette, SLOT(prevPal())},
    {"pal_next", Action, 42, onPalette, SLOT(nextPal())},
};

}  // namespace

void PaletteEditorPrivate::publish()
{
    EditorTools tools(this);
    tools.publish(table, areas);
    tools.publishOwn("pal_view", view, nullptr, areas);
    slider = tools.widget<QSlider>("pal_sel");
    for (const EditorTool& tool : table) {
        if (tool.kind == Action) {
            view->addAction(tools.action(tool.name));
        }
    }
    view->installEventFilter(this);
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

/// Installed on the grid only. `watched` is not cast: during destruction it is no longer a
/// PaletteWidget. A plain right click chooses a colour, as on the canvas.
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
