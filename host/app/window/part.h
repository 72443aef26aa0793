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
/// The window notifies its parts of what to show, one after the other (`PartList`). A part
/// overrides only what it needs. A part must not keep what it is given beyond the next call: before
/// a project is destroyed, its parts are given another one, or none.
class Part
{
public:
    virtual ~Part() = default;

    /// What the user can do with the part: rows for the menus, the action search and the shortcut
    /// dialog. Called once.
    virtual QVector<ActionRow> actions() { return {}; }

    /// The actions of all parts exist now.
    virtual void actionsMade() {}

    /// The open game, or null.
    virtual void showGame(Family::FamilyParentProject*) {}

    /// The current project, or null. Also called after each change of the project: its files may be
    /// different ones.
    virtual void showProject(Family::FamilyProject*) {}

    /// The current text, or null.
    virtual void showDocument(Family::FamilyDocument*) {}

    /// The cursor of the current text moved, within a line or to another one. Lines count from 0.
    virtual void followCursor(int line) { Q_UNUSED(line) }

    /// The cursor is on another line, or another text is in front.
    virtual void followLine(int line) { Q_UNUSED(line) }

    /// The cursor has come to rest. Use this for slow work: a jump passes through other lines
    /// first.
    virtual void followRest(int line) { Q_UNUSED(line) }

    /// Files of the game were renamed or changed.
    virtual void gameChanged() {}

    /// A project is about to close. Called before `showProject()` with another one.
    virtual void forgetProject(Family::FamilyProject*) {}

    /// False if something that is running prevents closing. The user is asked what to do; `then` is
    /// called when nothing prevents it any more.
    virtual bool mayEnd(const std::function<void()>& then)
    {
        Q_UNUSED(then)
        return true;
    }

    /// Places that can get the focus, in the order of the panel-switching key.
    virtual QVector<PanelPlace> places() { return {}; }

    /// Updates everything else the part shows, such as states and titles. Called after any change.
    virtual void updateState() {}

    /// Settings, or the language, have changed.
    virtual void reconfig() {}
    virtual void retranslate() {}
};

}  // namespace App
