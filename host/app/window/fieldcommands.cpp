#include "app/window/fieldcommands.h"

#include <zorv/core/projectfile.h>

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTextEdit>

namespace App {

namespace {

// Line edits and text edits both have these slots, but no common base class declares them.
const struct
{
    Command command;
    const char* slot;
} slotTable[] = {
    {Command::Undo, "undo"}, {Command::Redo, "redo"},   {Command::Cut, "cut"},
    {Command::Copy, "copy"}, {Command::Paste, "paste"}, {Command::SelectAll, "selectAll"},
};

/// Inside a spin box or combo box, the line edit has the focus.
QWidget* fieldOf(QWidget* widget)
{
    if (qobject_cast<QAbstractSpinBox*>(widget) || qobject_cast<QComboBox*>(widget)) {
        return widget->findChild<QLineEdit*>();
    }
    const bool isField = qobject_cast<QLineEdit*>(widget) ||
                         qobject_cast<QPlainTextEdit*>(widget) || qobject_cast<QTextEdit*>(widget);
    return isField ? widget : nullptr;
}

bool isReadOnly(const QWidget* field)
{
    return field->property("readOnly").toBool();
}

void removeSelection(QWidget* field)
{
    if (auto* line = qobject_cast<QLineEdit*>(field)) {
        line->insert(QString());
    } else if (auto* text = qobject_cast<QPlainTextEdit*>(field)) {
        text->textCursor().removeSelectedText();
    } else if (auto* rich = qobject_cast<QTextEdit*>(field)) {
        rich->textCursor().removeSelectedText();
    }
}

}  // namespace

CommandRows fieldCommands(QWidget* widget)
{
    const QPointer<QWidget> field = fieldOf(widget);
    if (!field) {
        return {};
    }
    const bool canWrite = !isReadOnly(field);
    CommandRows rows;
    for (const auto& row : slotTable) {
        const bool reads = row.command == Command::Copy || row.command == Command::SelectAll;
        rows.append({row.command,
                     [field, slot = row.slot] {
                         if (field) {
                             QMetaObject::invokeMethod(field, slot);
                         }
                     },
                     [allowed = canWrite || reads] { return allowed; }});
    }
    rows.append(
        {Command::Delete, [field] { removeSelection(field); }, [canWrite] { return canWrite; }});
    return rows;
}

CommandRows historyCommands(const std::function<Zorv::ProjectFile*()>& file)
{
    return {
        {Command::Undo, [file] { file()->undo(); }, [file] { return file() && file()->canUndo(); },
         [file] { return file()->undoTitle(); }},
        {Command::Redo, [file] { file()->redo(); }, [file] { return file() && file()->canRedo(); },
         [file] { return file()->redoTitle(); }}};
}

}  // namespace App
