#pragma once

#include "app/window/panelplace.h"

#include <QObject>
#include <QVector>

#include <functional>

namespace Family {
class FamilyDocument;
class FamilyProject;
}  // namespace Family

namespace App {

class GameSession;
class Part;
class WindowActions;

/// The parts of the window, and all that each of them is told.
///
/// It follows the session and is told what is in front. Many changes that come at once are told to
/// the parts once, when the event loop comes round again (`updateSoon()`).
class PartList : public QObject
{
    Q_OBJECT

public:
    /// Both outlive it.
    PartList(GameSession* session, WindowActions* actions, QObject* parent);

    /// Takes a part in, not owned. The order is that in which parts are told of things, and in
    /// which the keyboard goes round.
    void add(Part* part);

    /// All parts are there: makes their actions.
    void begin();

    /// Leaves all parts with nothing: they may die, and what they showed may.
    void end();

    /// @name The text in front, and its cursor; see `Part`
    /// @{
    void showDocument(Family::FamilyDocument* document);
    void followCursor(int line);
    void followLine(int line);
    void followRest(int line);
    Family::FamilyDocument* document() const { return m_document; }

    /// The project of the text in front, else the one opened last, else null.
    Family::FamilyProject* project() const;
    /// @}

    /// Tells all parts the state of things, at once or soon.
    void update();
    void updateSoon();

    /// Files of the game have other names or other contents.
    void gameChanged();

    /// Asks the parts; see `Part::mayEnd()`.
    bool mayEnd(const std::function<void()>& then) const;

    QVector<PanelPlace> places();
    void reconfig();
    void retranslate();

signals:
    void documentShown(Family::FamilyDocument* document);

    /// The parts know of all changes; what can be done with them may be something else.
    void updated();

private:
    void showGame();
    void forgetGame();
    void forgetProject(Family::FamilyProject* project);
    void showProject(Family::FamilyProject* project);

    GameSession* m_session;
    WindowActions* m_actions;
    QVector<Part*> m_parts;
    Family::FamilyDocument* m_document = nullptr;
    Family::FamilyProject* m_shown = nullptr;  ///< what the parts show; compared, not followed
    bool m_isUpdatePending = false;
};

}  // namespace App
