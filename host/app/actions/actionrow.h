#pragma once

#include <QKeySequence>
#include <QList>
#include <QVector>

#include <functional>

namespace App {

/// The default shortcuts of an action: a standard key, or a text in Qt's portable form with "; "
/// between several, or none.
class FirstKeys
{
public:
    FirstKeys() = default;
    FirstKeys(const char* portable) : m_portable(portable) {}
    FirstKeys(QKeySequence::StandardKey key) : m_standard(key) {}

    QList<QKeySequence> keys() const;

private:
    const char* m_portable = nullptr;
    QKeySequence::StandardKey m_standard = QKeySequence::UnknownKey;
};

/// One action of the window: a row in the table of the part that does the work.
struct ActionRow
{
    /// A `Switch` is checkable: `QAction::isChecked()` is its state.
    enum Kind { Button, Switch };

    const char* name;   ///< object name of the action
    const char* place;  ///< menu and section, as in "file.save"; see `menuTable()`
    const char* text;   ///< in the translation context "App::Actions"
    FirstKeys keys;
    std::function<void()> run;
    std::function<bool()> isAllowed = {};  ///< no function: always; called after each change
    const char* area = nullptr;            ///< where it applies; null: everywhere
    Kind kind = Button;
    const char* picture = nullptr;  ///< name in ":/icons/icons"; null: same as `name`
};

/// Makes the functions of a row from member functions of an object. The object must outlive the
/// row.
template <typename Owner>
class Members
{
public:
    explicit Members(Owner* owner) : m_owner(owner) {}

    template <typename Class>
    std::function<void()> operator()(void (Class::*work)()) const
    {
        return [owner = m_owner, work] { (owner->*work)(); };
    }

    template <typename Class>
    std::function<bool()> operator()(bool (Class::*condition)() const) const
    {
        return [owner = m_owner, condition] { return (owner->*condition)(); };
    }

private:
    Owner* m_owner;
};

/// One menu: a row of the table. A separator divides the actions of two sections.
struct MenuRow
{
    const char* name;
    const char* text;      ///< in the translation context "App::Menus"
    const char* sections;  ///< section names, separated by spaces; "+" at the end of a name: no
                           ///< separator after it
    const char* place =
        nullptr;  ///< for a submenu: the section of another menu that contains it; null for none
};

/// In display order. A submenu comes after the menu that contains it.
const QVector<MenuRow>& menuTable();

}  // namespace App
