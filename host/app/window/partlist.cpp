#include "app/window/partlist.h"

#include "app/actions/windowactions.h"
#include "app/session/gamesession.h"
#include "app/window/part.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"

#include <QTimer>

#include <algorithm>

namespace App {

using Family::FamilyDocument;
using Family::FamilyProject;

PartList::PartList(GameSession* session, WindowActions* actions, QObject* parent)
    : QObject(parent), m_session(session), m_actions(actions)
{
    connect(session, &GameSession::folderOpened, this, &PartList::showGame);
    connect(session, &GameSession::folderAboutToClose, this, &PartList::forgetGame);
    connect(session, &GameSession::projectOpened, this, &PartList::updateSoon);
    connect(session, &GameSession::projectAboutToClose, this, &PartList::forgetProject);
}

void PartList::add(Part* part)
{
    m_parts.append(part);
}

void PartList::begin()
{
    QVector<ActionRow> rows;
    for (Part* part : qAsConst(m_parts)) {
        rows += part->actions();
    }
    m_actions->add(rows);
    for (Part* part : qAsConst(m_parts)) {
        part->actionsMade();
    }
    showDocument(nullptr);
}

// Clear the views before what they show is destroyed.
void PartList::end()
{
    m_session->disconnect(this);
    m_document = nullptr;
    for (Part* part : qAsConst(m_parts)) {
        part->showDocument(nullptr);
        part->showProject(nullptr);
        part->showGame(nullptr);
    }
    m_parts.clear();
}

void PartList::showDocument(FamilyDocument* document)
{
    m_document = document;
    for (Part* part : qAsConst(m_parts)) {
        part->showDocument(document);
    }
    emit documentShown(document);
    update();
}

FamilyProject* PartList::project() const
{
    FamilyProject* project = projectOf(m_document);
    const QList<FamilyProject*> open = m_session->projects();
    return project || open.isEmpty() ? project : open.last();
}

void PartList::followCursor(int line)
{
    for (Part* part : qAsConst(m_parts)) {
        part->followCursor(line);
    }
}

void PartList::followRest(int line)
{
    for (Part* part : qAsConst(m_parts)) {
        part->followRest(line);
    }
}

void PartList::followLine(int line)
{
    for (Part* part : qAsConst(m_parts)) {
        part->followLine(line);
    }
}

void PartList::showGame()
{
    for (Part* part : qAsConst(m_parts)) {
        part->showGame(m_session->game());
    }
    updateSoon();
}

void PartList::forgetGame()
{
    for (Part* part : qAsConst(m_parts)) {
        part->showGame(nullptr);
    }
    updateSoon();
}

void PartList::forgetProject(FamilyProject* project)
{
    for (Part* part : qAsConst(m_parts)) {
        part->forgetProject(project);
    }
    if (m_shown == project) {
        showProject(nullptr);
    }
    // The project is destroyed after this call; update when it is gone.
    updateSoon();
}

void PartList::showProject(FamilyProject* project)
{
    m_shown = project;
    for (Part* part : qAsConst(m_parts)) {
        part->showProject(project);
    }
}

/// Reading a file reports thousands of rows one by one.
void PartList::updateSoon()
{
    if (!m_isUpdatePending) {
        m_isUpdatePending = true;
        QTimer::singleShot(0, this, &PartList::update);
    }
}

void PartList::update()
{
    m_isUpdatePending = false;
    if (m_parts.isEmpty()) {
        return;
    }
    showProject(project());
    for (Part* part : qAsConst(m_parts)) {
        part->updateState();
    }
    m_actions->update();
    emit updated();
}

void PartList::gameChanged()
{
    for (Part* part : qAsConst(m_parts)) {
        part->gameChanged();
    }
    update();
}

bool PartList::mayEnd(const std::function<void()>& then) const
{
    return std::all_of(m_parts.begin(), m_parts.end(),
                       [&then](Part* part) { return part->mayEnd(then); });
}

QVector<PanelPlace> PartList::places()
{
    QVector<PanelPlace> places;
    for (Part* part : qAsConst(m_parts)) {
        places += part->places();
    }
    return places;
}

void PartList::reconfig()
{
    for (Part* part : qAsConst(m_parts)) {
        part->reconfig();
    }
}

void PartList::retranslate()
{
    for (Part* part : qAsConst(m_parts)) {
        part->retranslate();
    }
}

}  // namespace App
