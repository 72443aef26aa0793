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

/// The parts of the window; passes every notification on to them.
///
/// It follows the session, and is notified of what is in front. Changes in quick succession are
/// merged into one notification on the next turn of the event loop (`updateSoon()`).
class PartList : public QObject
{
    Q_OBJECT

public:
    /// Both outlive it.
    PartList(GameSession* session, WindowActions* actions, QObject* parent);

    /// Adds a part; does not own it. Parts are notified in this order, and the panel-switching key
    /// visits them in this order.
    void add(Part* part);

    /// Call after all parts were added: makes their actions.
    void begin();

    /// Clears all parts: they, and what they showed, may be destroyed afterwards.
    void end();

    /// @name The text in front, and its cursor; see `Part`
    /// @{
    void showDocument(Family::FamilyDocument* document);
    void followCursor(int line);
    void followLine(int line);
    void followRest(int line);
    Family::FamilyDocument* document() const { return m_document; }

    /// The project of the current text, else the one opened last, else null.
    Family::FamilyProject* project() const;
    /// @}

    /// Notifies all parts of the current state, at once or on the next turn of the event loop.
    void update();
    void updateSoon();

    /// Files of the game were renamed or changed.
    void gameChanged();

    /// Asks the parts; see `Part::mayEnd()`.
    bool mayEnd(const std::function<void()>& then) const;

    QVector<PanelPlace> places();
    void reconfig();
    void retranslate();

signals:
    void documentShown(Family::FamilyDocument* document);

    /// All parts are up to date; the actions available for them may have changed.
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
    Family::FamilyProject* m_shown = nullptr;  ///< only compared, never dereferenced
    bool m_isUpdatePending = false;
};

}  // namespace App
