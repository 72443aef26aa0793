#pragma once

#include "app/actions/actionrow.h"
#include "app/window/panelplace.h"

#include <functional>

namespace Family {
class FamilyDocument;
class FamilyParentProject;
class FamilyProject;
}  // namespace Family

namespace App {

/// A part of the window: a panel, a view, or commands without a widget.
///
/// The window tells all of its parts what they have to show, each in its turn (`PartList`). A part
/// that has no use for an operation leaves it as it is here. Parts keep none of what they are given
/// beyond the next call: before a project dies its parts are shown another one, or none.
class Part
{
public:
    virtual ~Part() = default;

    /// What the person can do with the part, asked for once: rows for the menus, the finder and
    /// the dialog of keys.
    virtual QVector<ActionRow> actions() { return {}; }

    /// All actions of all parts are there.
    virtual void actionsMade() {}

    /// The game that is open, or null.
    virtual void showGame(Family::FamilyParentProject*) {}

    /// The project in front, or null. Called after each change: its files can be others.
    virtual void showProject(Family::FamilyProject*) {}

    /// The text in front, or null.
    virtual void showDocument(Family::FamilyDocument*) {}

    /// The cursor of the text in front has moved, in or to a line, counted from 0.
    virtual void followCursor(int line) { Q_UNUSED(line) }

    /// The cursor has come to another line, or another text to the front.
    virtual void followLine(int line) { Q_UNUSED(line) }

    /// The cursor stands still: a jump takes it through other lines.
    virtual void followRest(int line) { Q_UNUSED(line) }

    /// Files of the game have other names or other contents.
    virtual void gameChanged() {}

    /// A project is about to close. Called in front of `showProject()` with another one.
    virtual void forgetProject(Family::FamilyProject*) {}

    /// False if something that goes on keeps the work from being closed. The person is asked what
    /// to do; `then` is called when nothing is in the way any more.
    virtual bool mayEnd(const std::function<void()>& then)
    {
        Q_UNUSED(then)
        return true;
    }

    /// Where the keyboard can go, in the order of the keys.
    virtual QVector<PanelPlace> places() { return {}; }

    /// What the part shows besides, after anything has changed: states, titles.
    virtual void updateState() {}

    /// Settings have changed; the language has.
    virtual void reconfig() {}
    virtual void retranslate() {}
};

}  // namespace App
