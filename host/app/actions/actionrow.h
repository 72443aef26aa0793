#pragma once

#include <QKeySequence>
#include <QList>
#include <QVector>

#include <functional>

namespace App {

/// The keys that an action has at first: a standard key, or a text in the portable form, with
/// "; " between several; or none.
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

/// One action of the window: a row of a table, which the part that does the work has.
struct ActionRow
{
    /// One that is on or off tells it by `QAction::isChecked()`.
    enum Kind { Button, Switch };

    const char* name;   ///< the object name of the action
    const char* place;  ///< menu and section of it, as in "file.save"; see `menuTable()`
    const char* text;   ///< in the context "App::Actions"
    FirstKeys keys;
    std::function<void()> run;
    std::function<bool()> isAllowed = {};  ///< none for always; asked after each change
    const char* area = nullptr;            ///< where it applies; null for everywhere
    Kind kind = Button;
    const char* picture = nullptr;  ///< of ":/icons/icons"; null for the one of its name
};

/// Makes what a row calls of members of an object, which must outlive the row.
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

/// One menu: a row of the table. Between the actions of two of its sections stands a line.
struct MenuRow
{
    const char* name;
    const char* text;      ///< in the context "App::Menus"
    const char* sections;  ///< their names, with blanks between; "+" for no line behind one
    const char* place =
        nullptr;  ///< of a menu within another one, a section of that; null for none
};

/// In the order in which they are shown, each behind the one that it stands in.
const QVector<MenuRow>& menuTable();

}  // namespace App
