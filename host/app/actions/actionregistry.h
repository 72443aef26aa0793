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

/// What is known of an action when it comes into the registry.
struct ActionInfo
{
    QString name;       ///< of the program, and of its setting "shortcut_" + name
    ActionText text;    ///< a text of none leaves what the action has
    QStringList areas;  ///< where it can be enabled; empty for everywhere
    QList<QKeySequence> defaultKeys;
    bool waitsForOwner = false;  ///< disabled until `ActionRegistry::setAllowed()`
    QString picture = {};        ///< of ":/icons/icons"; empty for the one of its name
};

/// Two actions that can be enabled at the same time and have one key, or of which the key of
/// one begins that of the other: neither would work.
struct KeyClash
{
    QString first;
    QString second;
    QKeySequence key;
};

/// Every action of the program, by name: those of the menus, of the editors, and the switches
/// of panels and bars.
///
/// It gives them texts, icon (":/icons/icons/PICTURE.png", where there is one), keys and enabled
/// state, and does not own them: an action that dies is forgotten. A key that the person has
/// chosen is kept as the setting "shortcut_" + name, in the portable form, empty for none. The
/// host (`Zorv::Interface`) must be installed.
class ActionRegistry : public QObject
{
    Q_OBJECT

public:
    explicit ActionRegistry(QObject* parent = nullptr);
    ~ActionRegistry() override;

    /// Takes an action in. One that has the name already is forgotten, and is
    /// seen no more. Gives the action's gate, which is a child of it.
    AreaGate* add(QAction* action, const ActionInfo& info);

    /// The names, in the order in which the actions came.
    QStringList names() const;

    /// Null for an unknown name.
    QAction* action(const QString& name) const;

    /// The text for a list: without access key and dots.
    QString text(const QString& name) const;

    /// The titles from the menu bar down to where the action stands, joined by
    /// " > "; empty for an action that is in no menu.
    QString menuPath(const QString& name) const;

    /// Where the action stands, from the menu bar down; empty for one that is in no menu.
    QVector<int> menuPlace(const QString& name) const;

    /// False for an action of a menu that is hidden, or within one.
    bool isMenuVisible(const QString& name) const;

    /// The areas in which it can be enabled; none is everywhere.
    QStringList areas(const QString& name) const;

    /// @name Keys
    /// @{
    QList<QKeySequence> keys(const QString& name) const;
    QList<QKeySequence> defaultKeys(const QString& name) const;

    /// True if the person has chosen the keys.
    bool isChosen(const QString& name) const;

    /// Gives an action one key, or with an empty one none, and keeps that.
    void setShortcut(const QString& name, const QKeySequence& key);

    /// Back to the default keys.
    void resetShortcut(const QString& name);
    void resetAllShortcuts();

    /// Every two that clash, each pair once.
    QVector<KeyClash> clashes() const;

    /// The actions that `name` would clash with if it had the key.
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

    /// Puts something behind the text of an action, as in "Undo: Move box"; empty for nothing.
    void setDetail(const QString& name, const QString& detail);

    /// Gives all actions their texts in the present language.
    void retranslate();

signals:
    /// Actions came or went, or keys or texts of some have changed. Enabled states do not
    /// count: an action tells of its own.
    void changed();

private:
    struct Private;
    std::unique_ptr<Private> d;
};

}  // namespace App
