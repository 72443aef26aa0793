#include "app/references/referencecommands.h"

#include "app/references/placemarks.h"
#include "app/references/referencepanel.h"
#include "app/references/renamedialog.h"
#include "app/session/gamesession.h"
#include "app/window/jumps.h"
#include "app/window/partlist.h"
#include "app/window/statusfields.h"
#include "app/window/windowservices.h"
#include "family/familydocument.h"
#include "family/meaning/reference.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/editors/code/codeeditor.h>

#include <QDir>
#include <QTextBlock>

// The index of names is created on the first request and brought up to date before each use:
// modified texts are passed to it, and texts saved or closed since are taken back so that their
// files count again. Updating shows progress and processes events. If the game is closed or
// replaced meanwhile, `m_index` differs from the copy held by the caller, which then gives up.
//
// The marks in the text are computed from the list of uses for the document in front.

namespace App {

using Family::FamilyDocument;
using Operations::NameUse;
using Operations::ReferenceIndex;
using Operations::Subject;

ReferenceCommands::ReferenceCommands(const WindowServices& services, Zorv::CodeEditor* editor)
    : QObject(services.window), m_services(services), m_editor(editor), m_panel(new ReferencePanel),
      m_marks(new PlaceMarks(editor))
{
    connect(m_panel, &ReferencePanel::useRequested, this, &ReferenceCommands::open);
}

ReferenceCommands::~ReferenceCommands() = default;

QVector<ActionRow> ReferenceCommands::actions()
{
    const Members<ReferenceCommands> on(this);
    const auto hasText = on(&ReferenceCommands::hasText);
    // clang-format off
    return {
        {"code_references",  "code.write", QT_TRANSLATE_NOOP("App::Actions", "Find reference&s"),        "Shift+F12", on(&ReferenceCommands::findReferences), hasText, "code"},
        {"code_rename",      "code.write", QT_TRANSLATE_NOOP("App::Actions", "&Rename everywhere..."),   "Shift+F2",  on(&ReferenceCommands::rename),         hasText, "code"},
        {"code_rename_undo", "edit.undo",  QT_TRANSLATE_NOOP("App::Actions", "Ta&ke the rename back"),  {},          on(&ReferenceCommands::undoRename),     on(&ReferenceCommands::canUndoRename)},
    };
    // clang-format on
}

bool ReferenceCommands::hasText() const
{
    return m_services.parts->document() && m_services.session->game();
}

bool ReferenceCommands::canUndoRename() const
{
    return !m_last.isEmpty() && m_services.session->game();
}

/// Names and renames of another game do not apply here.
void ReferenceCommands::showGame(Family::FamilyParentProject*)
{
    m_index.reset();
    m_texts.clear();
    m_last = RenameAct();
    m_marks->setPlaces({});
    if (m_panel) {
        m_panel->forget();
    }
}

void ReferenceCommands::showDocument(FamilyDocument*)
{
    mark();
}

/// The cursors must not outlive their texts.
void ReferenceCommands::forgetProject(Family::FamilyProject*)
{
    m_marks->setPlaces({});
}

QVector<PanelPlace> ReferenceCommands::places()
{
    return {PanelPlace::of(m_panel)};
}

/// The name in the cursor's line: a line has at most one.
Subject ReferenceCommands::subjectAtCursor() const
{
    const FamilyDocument* document = m_services.parts->document();
    const Family::FamilyProject* project = document ? projectOf(document) : nullptr;
    if (!project || project->fileName().isEmpty()) {
        return {};
    }
    const Family::LineName name =
        Family::nameOfLine(document, m_editor->textCursor().blockNumber());
    return name.isNone() ? Subject() : Subject::of(QDir::cleanPath(project->fileName()), name);
}

/// Modified texts replace their files in the index.
void ReferenceCommands::handOverTexts()
{
    QHash<QString, std::shared_ptr<const Family::SourceText>> texts;
    const QList<FamilyDocument*> documents = m_services.session->modifiedDocuments();
    for (const FamilyDocument* document : documents) {
        if (!document->fileName().isEmpty()) {
            texts.insert(QDir::cleanPath(document->fileName()),
                         std::make_shared<const Family::SourceText>(document));
        }
    }
    for (const QString& path : qAsConst(m_texts)) {
        if (!texts.contains(path)) {
            m_index->setText(path, nullptr);
        }
    }
    m_texts.clear();
    for (auto it = texts.cbegin(); it != texts.cend(); ++it) {
        m_index->setText(it.key(), it.value());
        m_texts.insert(it.key());
    }
}

/// Null if the user cancels, or if the game was closed meanwhile.
ReferenceCommands::IndexPtr ReferenceCommands::bringUpToDate()
{
    if (!m_index) {
        m_index = std::make_shared<ReferenceIndex>(m_services.session->game()->absolutePath());
    }
    const IndexPtr index = m_index;
    handOverTexts();
    return index->update() && index == m_index ? index : nullptr;
}

void ReferenceCommands::findReferences()
{
    const Subject subject = subjectAtCursor();
    if (subject.isNone()) {
        m_services.status->showPassing(tr("There is no name in this line."));
        return;
    }
    showUses(subject);
}

void ReferenceCommands::showUses(const Subject& subject)
{
    const IndexPtr index = bringUpToDate();
    if (!index || !m_panel) {
        return;
    }
    QVector<NameUse> uses = index->usesOf(subject);
    index->addTexts(&uses);
    m_panel->showUses(tr("%1 '%2': places %3", "kind, name, number")
                          .arg(Family::nameKindTitle(subject.kind), subject.shown(),
                               QString::number(uses.size())),
                      uses, index->gameFolder());
    mark();
    bringForward(m_panel);
}

void ReferenceCommands::mark()
{
    QVector<QTextCursor> places;
    FamilyDocument* document = m_services.parts->document();
    const QString path = document ? QDir::cleanPath(document->fileName()) : QString();
    for (const NameUse& use : m_panel ? m_panel->uses() : QVector<NameUse>()) {
        const QTextBlock block =
            document && use.path == path ? document->findBlockByNumber(use.line - 1) : QTextBlock();
        if (use.line > 0 && block.isValid() && use.column - 1 + use.length < block.length()) {
            QTextCursor place(block);
            place.setPosition(block.position() + use.column - 1);
            place.setPosition(place.position() + use.length, QTextCursor::KeepAnchor);
            places.append(place);
        }
    }
    m_marks->setPlaces(places);
}

void ReferenceCommands::open(const NameUse& use)
{
    if (!m_services.jumps->openFile(use.path) || use.line == 0) {
        return;
    }
    FamilyDocument* document = m_services.parts->document();
    if (document && QDir::cleanPath(document->fileName()) == use.path) {
        m_services.jumps->showPlace(document, use.line - 1, use.column - 1, use.length);
    }
}

void ReferenceCommands::rename()
{
    const Subject subject = subjectAtCursor();
    if (subject.isNone()) {
        m_services.status->showPassing(tr("There is no name in this line."));
        return;
    }
    const IndexPtr index = bringUpToDate();
    if (!index) {
        return;
    }
    const QPointer<ReferenceCommands> self(this);
    const auto plan = [&](const QString& name) {
        return planRename(*index, subject, name, unsavedPaths(*m_services.session));
    };
    RenameDialog dialog(subject, index->gameFolder(), plan, m_services.window);
    // While the dialog is open, files can change and the game can be closed.
    if (dialog.exec() != QDialog::Accepted || !self || index != m_index) {
        return;
    }
    RenameAct act(dialog.plan(), index->gameFolder());
    finish(&act, tr("Rename '%1' to '%2'").arg(act.oldName(), act.name()));
}

void ReferenceCommands::undoRename()
{
    RenameAct back = m_last.reversed();
    const QStringList unsaved = back.unsavedFiles(*m_services.session);
    if (!unsaved.isEmpty()) {
        Zorv::Dialogs::instance()->warning(
            tr("Rename"), tr("These files have changes that are not saved: %1. Save them first, or "
                             "take the rename back in each of them by Undo.")
                              .arg(unsaved.join(QLatin1String(", "))));
        return;
    }
    finish(&back, tr("Rename '%1' to '%2'").arg(back.oldName(), back.name()));
}

void ReferenceCommands::finish(RenameAct* act, const QString& title)
{
    QString error;
    const bool isDone = act->run(m_services.session, title, &error);
    if (isDone) {
        m_last = *act;
        m_services.status->showPassing(
            tr("'%1' is called '%2' now.").arg(act->oldName(), act->name()));
    }
    if (m_panel) {
        m_panel->forget();
    }
    m_marks->setPlaces({});
    m_services.parts->gameChanged();
    m_services.parts->updateSoon();
    if (!error.isEmpty()) {
        Zorv::Dialogs::instance()->error(tr("Rename"), error);
    }
}

}  // namespace App
