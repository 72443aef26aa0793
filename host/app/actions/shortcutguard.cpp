#include "app/actions/shortcutguard.h"

#include "app/actions/actionregistry.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QKeySequenceEdit>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>

#include <algorithm>

namespace App {

namespace {

// These shortcuts leave a panel, so they must work in its fields too.
const QStringList waysOut{QStringLiteral("next_panel"), QStringLiteral("previous_panel")};

bool isTextEdit(const QWidget* widget)
{
    const auto* plain = qobject_cast<const QPlainTextEdit*>(widget);
    const auto* rich = qobject_cast<const QTextEdit*>(widget);
    return (plain && !plain->isReadOnly()) || (rich && !rich->isReadOnly());
}

bool isField(const QWidget* widget)
{
    const auto* line = qobject_cast<const QLineEdit*>(widget);
    const auto* spin = qobject_cast<const QAbstractSpinBox*>(widget);
    const auto* combo = qobject_cast<const QComboBox*>(widget);
    return (line && !line->isReadOnly()) || (spin && !spin->isReadOnly()) ||
           (combo && combo->isEditable()) || qobject_cast<const QKeySequenceEdit*>(widget) ||
           isTextEdit(widget);
}

/// True for keys that write or move the cursor in a text.
bool isTyping(const QKeyEvent& key)
{
    const bool isPlain =
        !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    const bool isFunctionKey = key.key() >= Qt::Key_F1 && key.key() <= Qt::Key_F35;
    return isPlain && !isFunctionKey;
}

/// A character typed with Shift has the modifier in the event, but not in the shortcut.
bool startsWith(const QKeySequence& sequence, int key)
{
    return !sequence.isEmpty() &&
           (sequence[0] == key || sequence[0] == (key & ~int(Qt::ShiftModifier)));
}

}  // namespace

ShortcutGuard::ShortcutGuard(QMainWindow* window, const ActionRegistry* registry)
    : QObject(window), m_window(window), m_registry(registry)
{
    qApp->installEventFilter(this);
}

bool ShortcutGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && watched->isWidgetType()) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (isForField(static_cast<QWidget*>(watched), *key)) {
            // Accepting a ShortcutOverride makes Qt send a key press instead of triggering a
            // shortcut.
            key->accept();
            return true;
        }
    }
    return false;
}

bool ShortcutGuard::isForField(const QWidget* widget, const QKeyEvent& key) const
{
    return isField(widget) && isKeyOfAction(key) && (!isWorkspaceText(widget) || isTyping(key));
}

bool ShortcutGuard::isWorkspaceText(const QWidget* widget) const
{
    return isTextEdit(widget) && m_window->centralWidget() &&
           m_window->centralWidget()->isAncestorOf(widget);
}

bool ShortcutGuard::isKeyOfAction(const QKeyEvent& key) const
{
    const int pressed = key.key() | int(key.modifiers() & ~Qt::KeypadModifier);
    const QStringList names = m_registry->names();
    return std::any_of(names.begin(), names.end(), [&](const QString& name) {
        const QList<QKeySequence> keys = m_registry->keys(name);
        return !waysOut.contains(name) &&
               std::any_of(keys.begin(), keys.end(), [pressed](const QKeySequence& sequence) {
                   return startsWith(sequence, pressed);
               });
    });
}

}  // namespace App
