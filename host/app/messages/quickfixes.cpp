#include "app/messages/quickfixes.h"

#include "app/messages/messagepanel.h"
#include "app/messages/problemmodel.h"
#include "app/messages/problemwatch.h"
#include "app/session/gamesession.h"
#include "app/window/jumps.h"
#include "app/window/partlist.h"
#include "app/window/statusfields.h"
#include "app/window/windowservices.h"
#include "family/assets/soundfile.h"
#include "family/assets/spritecollection.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"
#include "operations/check/backgroundcheck.h"

#include <zorv/code/codecs/filetext.h>
#include <zorv/core/dialogs/dialogs.h>
#include <zorv/core/filesystemarchive.h>
#include <zorv/editors/code/codeeditor.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QMenu>

#include <algorithm>

// A fix is computed from the results of the check, so the check must have caught up with all edits
// first (`ProblemWatch::settle()`). A fix holds positions in a text or names of a file. Before it
// is applied, its file and project are opened, and the text is compared: if it has changed
// meanwhile, nothing is done and a message asks to try again.

namespace App {

using Family::FamilyDocument;
using Family::FamilyProject;
using Operations::Fix;

QuickFixes::QuickFixes(const WindowServices& services, ProblemWatch* problems, MessagePanel* panel,
                       Zorv::CodeEditor* editor)
    : QObject(services.window), m_services(services), m_problems(problems), m_panel(panel),
      m_editor(editor)
{
    panel->installEventFilter(this);
    panel->viewport()->installEventFilter(this);
    editor->installEventFilter(this);
    editor->viewport()->installEventFilter(this);
}

QVector<ActionRow> QuickFixes::actions()
{
    const Members<QuickFixes> on(this);
    return {{"code_fix", "code.write", QT_TRANSLATE_NOOP("App::Actions", "&Quick fix..."),
             "Alt+Return", on(&QuickFixes::offer), on(&QuickFixes::isOfUse)}};
}

bool QuickFixes::isOfUse() const
{
    return m_services.parts->document() || m_panel->currentIndex().isValid();
}

QString QuickFixes::textOf(const QString& path) const
{
    if (const FamilyDocument* document = m_problems->documentOf(m_problems->nameOf(path))) {
        return document->text();
    }
    Zorv::FileText file;
    QString error;
    file.read(*Zorv::FileSystemArchive::instance(), path, -1, &error);
    return file.text;
}

Operations::FixSource QuickFixes::source() const
{
    return {m_problems->check()->folder(), m_problems->check()->projects(),
            [this](const QString& path) { return textOf(path); }};
}

/// Call only when everything has been checked (`settle()`): otherwise the index could be out of
/// date.
QVector<Fix> QuickFixes::fixesOf(const Family::Problems& problems) const
{
    const Operations::FixSource known = source();
    QVector<Fix> fixes;
    for (const Family::Problem& problem : problems) {
        fixes += Operations::fixesOf(problem, known);
    }
    return fixes;
}

QVector<Fix> QuickFixes::fixesOfMessage() const
{
    const Family::Problem* asked = m_panel->problems()->problemAt(m_panel->currentIndex().row());
    if (!asked) {
        return {};
    }
    const Family::Problem problem = *asked;
    const bool isThere = m_problems->settle() &&
                         m_problems->check()->problems().value(problem.file).contains(problem);
    return isThere ? fixesOf({problem}) : QVector<Fix>();
}

/// Fixes for the problem under the cursor come first.
QVector<Fix> QuickFixes::fixesOfLine() const
{
    const FamilyDocument* document = m_services.parts->document();
    if (!document || !m_problems->settle()) {
        return {};
    }
    const QTextCursor cursor = m_editor->textCursor();
    const int line = cursor.blockNumber() + 1;
    const int column = cursor.positionInBlock() + 1;
    const Family::Problems all =
        m_problems->check()->problems().value(m_problems->nameOf(document));
    Family::Problems here;
    std::copy_if(all.begin(), all.end(), std::back_inserter(here),
                 [line](const Family::Problem& problem) { return problem.line == line; });
    std::stable_partition(here.begin(), here.end(), [column](const Family::Problem& problem) {
        return problem.column <= column && column <= problem.column + problem.length;
    });
    return fixesOf(here);
}

void QuickFixes::fill(QMenu* menu, const QVector<Fix>& fixes)
{
    for (const Fix& fix : fixes) {
        QString title = fix.title;
        menu->addAction(title.replace(QLatin1Char('&'), QLatin1String("&&")), this,
                        [this, fix] { apply(fix); });
    }
}

void QuickFixes::offer()
{
    const bool isMessage = m_panel->hasFocus();
    const QVector<Fix> fixes = isMessage ? fixesOfMessage() : fixesOfLine();
    if (fixes.isEmpty()) {
        m_services.status->showPassing(tr("There is no quick fix here."));
        return;
    }
    const QWidget* widget = isMessage ? m_panel->viewport() : m_editor->viewport();
    const QRect place =
        isMessage ? m_panel->visualRect(m_panel->currentIndex()) : m_editor->cursorRect();
    auto* menu = new QMenu(m_services.window);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fill(menu, fixes);
    menu->setActiveAction(menu->actions().first());
    menu->popup(widget->mapToGlobal(place.bottomLeft()));
}

void QuickFixes::openMessageMenu(const QPoint& place)
{
    auto* menu = new QMenu(m_panel);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fill(menu, fixesOfMessage());
    menu->addSeparator();
    menu->addAction(tr("&Go to"), m_panel,
                    [this] { emit m_panel->activated(m_panel->currentIndex()); });
    menu->addAction(tr("&Copy"), m_panel, [this] {
        QApplication::clipboard()->setText(m_panel->currentIndex().data().toString());
    });
    menu->popup(place);
}

void QuickFixes::openTextMenu(const QPoint& place)
{
    QMenu* menu = m_editor->createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QVector<Fix> fixes = fixesOfLine();
    QAction* first = menu->actions().value(0);
    for (const Fix& fix : fixes) {
        QString title = fix.title;
        auto* action = new QAction(title.replace(QLatin1Char('&'), QLatin1String("&&")), menu);
        connect(action, &QAction::triggered, this, [this, fix] { apply(fix); });
        menu->insertAction(first, action);
    }
    if (!fixes.isEmpty()) {
        menu->insertSeparator(first);
    }
    menu->popup(place);
}

bool QuickFixes::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ContextMenu) {
        return false;
    }
    const auto* asked = static_cast<QContextMenuEvent*>(event);
    const bool isMouse = asked->reason() == QContextMenuEvent::Mouse;
    if (watched == m_panel->viewport() || watched == m_panel) {
        if (isMouse) {
            m_panel->setCurrentIndex(
                m_panel->indexAt(m_panel->viewport()->mapFromGlobal(asked->globalPos())));
        }
        if (m_panel->currentIndex().isValid()) {
            const QRect row = m_panel->visualRect(m_panel->currentIndex());
            openMessageMenu(isMouse ? asked->globalPos()
                                    : m_panel->viewport()->mapToGlobal(row.bottomLeft()));
        }
        return true;
    }
    if (isMouse && !m_editor->textCursor().hasSelection()) {
        m_editor->setTextCursor(
            m_editor->cursorForPosition(m_editor->viewport()->mapFromGlobal(asked->globalPos())));
    }
    openTextMenu(isMouse ? asked->globalPos()
                         : m_editor->viewport()->mapToGlobal(m_editor->cursorRect().bottomLeft()));
    return true;
}

void QuickFixes::tell(const QString& text) const
{
    Zorv::Dialogs::instance()->warning(tr("Quick fix"), text);
}

void QuickFixes::apply(const Fix& fix)
{
    switch (fix.kind) {
    case Fix::Text:
        applyToText(fix);
        break;
    case Fix::File:
        makeFile(fix);
        break;
    case Fix::Sprite:
    case Fix::Sound:
        applyToAssets(fix);
        break;
    }
    m_problems->updateState();
}

/// Opens the file and its project if necessary.
void QuickFixes::applyToText(const Fix& fix)
{
    const QString name = m_problems->nameOf(fix.path);
    if (!m_problems->documentOf(name) && !m_services.jumps->openFile(fix.path)) {
        return;
    }
    m_problems->updateState();
    FamilyDocument* document = m_problems->documentOf(name);
    if (!document || !Operations::applyText(fix, document)) {
        tell(tr("%1 has changed meanwhile. Try again.").arg(name));
        return;
    }
    const int last = fix.changes.first().position + fix.changes.first().text.size();
    const QTextBlock block = document->findBlock(fix.cursor < 0 ? last : fix.cursor);
    const int position = fix.cursor < 0 ? last : fix.cursor;
    m_services.jumps->showPlace(document, block.blockNumber(), position - block.position(), 0);
}

FamilyProject* QuickFixes::openProject(const QString& mainFile) const
{
    for (FamilyProject* project : m_services.session->projects()) {
        if (QDir::cleanPath(project->fileName()) == mainFile) {
            return project;
        }
    }
    return nullptr;
}

void QuickFixes::makeFile(const Fix& fix)
{
    QString error;
    if (!Operations::makeFile(fix, &error)) {
        tell(error);
        return;
    }
    if (FamilyProject* project = openProject(fix.mainFile)) {
        project->loadFiles();
    }
    m_services.parts->gameChanged();
    m_services.status->showPassing(tr("%1 was created.").arg(m_problems->nameOf(fix.path)));
}

void QuickFixes::applyToAssets(const Fix& fix)
{
    if (!openProject(fix.mainFile) && !m_services.jumps->openFile(fix.mainFile)) {
        return;
    }
    const FamilyProject* project = openProject(fix.mainFile);
    Family::SpriteCollection* sprites = project ? project->sprites() : nullptr;
    Family::SoundFile* sounds = project ? project->sounds() : nullptr;
    const bool isAdded = fix.kind == Fix::Sprite
                             ? sprites && Operations::addPlaceholder(fix.id, sprites)
                             : sounds && Operations::addSilence(fix.id, sounds);
    if (!isAdded) {
        tell(tr("%1 cannot take %2. Open it, and look at what it has.")
                 .arg(m_problems->nameOf(fix.path), fix.id.text()));
    }
}

}  // namespace App
