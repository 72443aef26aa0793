#pragma once

#include "app/actions/actiontext.h"

#include <QKeySequence>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <QVector>

#include <memory>

class QAction;
class QMenu;

namespace App {

class ActiveAreas;
class AreaGate;

/// Describes an action when it is registered.
struct ActionInfo
{
    QString name;       ///< internal name, also in its setting "shortcut_" + name
    ActionText text;    ///< an empty `ActionText` keeps the action's own text
    QStringList areas;  ///< where it can be enabled; empty: everywhere
    QList<QKeySequence> defaultKeys;
    bool waitsForOwner = false;  ///< disabled until `ActionRegistry::setAllowed()`
    QString picture = {};        ///< name in ":/icons/icons"; empty: same as `name`
};

/// Two actions that can be enabled at the same time and have the same shortcut, or where one
/// shortcut is the beginning of the other. Neither would work.
struct KeyClash
{
    QString first;
    QString second;
    QKeySequence key;
};

/// All actions of the program by name: menu actions, editor actions, and the switches of panels and
/// tool bars.
///
/// The registry sets their text, icon (":/icons/icons/PICTURE.png", if it exists), shortcuts and
/// enabled state. It does not own them: a destroyed action is removed. A shortcut chosen by the
/// user is stored as the setting "shortcut_" + name, in Qt's portable text form; empty means no
/// shortcut. The host (`Zorv::Interface`) must be installed.
class ActionRegistry : public QObject
{
    Q_OBJECT

public:
    explicit ActionRegistry(QObject* parent = nullptr);
    ~ActionRegistry() override;

    /// Registers an action. It replaces an action of the same name, which is hidden. Returns the
    /// action's gate, a child of the action.
    AreaGate* add(QAction* action, const ActionInfo& info);

    /// The names, in the order of registration.
    QStringList names() const;

    /// Null for an unknown name.
    QAction* action(const QString& name) const;

    /// The label for a list: without access key and "...".
    QString text(const QString& name) const;

    /// The menu titles from the menu bar down to the action, joined by " > "; empty for an action
    /// without a menu.
    QString menuPath(const QString& name) const;

    /// The indexes from the menu bar down to the action; empty for an action without a menu.
    QVector<int> menuPlace(const QString& name) const;

    /// False if its menu, or a menu around it, is hidden.
    bool isMenuVisible(const QString& name) const;

    /// The areas where it can be enabled; empty means everywhere.
    QStringList areas(const QString& name) const;

    /// @name Keys
    /// @{
    QList<QKeySequence> keys(const QString& name) const;
    QList<QKeySequence> defaultKeys(const QString& name) const;

    /// True if the user chose the shortcuts.
    bool isChosen(const QString& name) const;

    /// Sets one shortcut, or none if empty, and stores it in the settings.
    void setShortcut(const QString& name, const QKeySequence& key);

    /// Restores the default shortcuts.
    void resetShortcut(const QString& name);
    void resetAllShortcuts();

    /// All pairs of actions that clash, each pair once.
    QVector<KeyClash> clashes() const;

    /// The actions that `name` would clash with if it had this shortcut.
    QStringList clashesOf(const QString& name, const QKeySequence& key) const;
    /// @}

    /// @name What is enabled
    ///
    /// An action is enabled while one of its areas is active and its owner allows it.
    /// @{
    void setActiveAreas(const QSet<QString>& areas);
    const ActiveAreas* activeAreas() const;
    void setAllowed(const QString& name, bool isAllowed);
    /// @}

    /// Appends a detail to the text of an action, as in "Undo: Move box"; empty removes it.
    void setDetail(const QString& name, const QString& detail);

    /// Sets the texts of all actions in the current language.
    void retranslate();

signals:
    /// Actions were added or removed, or texts or shortcuts changed. Not sent for enabled states:
    /// actions have a signal for that.
    void changed();

private:
    struct Private;
    std::unique_ptr<Private> d;
};

}  // namespace App
