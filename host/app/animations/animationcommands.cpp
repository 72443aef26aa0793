#include "app/animations/animationcommands.h"

#include "app/window/editorregistry.h"
#include "app/window/jumps.h"
#include "app/window/partlist.h"
#include "app/window/windowservices.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/nodes/animationnode.h"
#include "operations/animationedits.h"
#include "operations/check/uses.h"

#include <zorv/code/codedoc/animations.h>
#include <zorv/editors/organizer/organizereditor.h>

#include <QAbstractItemView>
#include <algorithm>

namespace App {

using Family::AnimationNode;
using Family::FamilyAnimations;
using Zorv::OrganizerEditor;

namespace {

const QString ListName = QStringLiteral("org_list");

}  // namespace

AnimationCommands::AnimationCommands(const WindowServices& services)
    : QObject(services.window), m_services(services), m_organizer(new OrganizerEditor(this)),
      m_list(services.window->findChild<QAbstractItemView*>(ListName))
{
    services.editors->addPanel(m_organizer);
    connect(m_organizer, &OrganizerEditor::rowActivated, this, &AnimationCommands::requestRow);
    connect(m_organizer, &OrganizerEditor::currentRowChanged, services.parts,
            &PartList::updateSoon);
    // The edits moved the text cursor to the old place of the animations.
    connect(m_organizer, &OrganizerEditor::selectionMoved, this,
            [this] { requestRow(m_organizer->currentRow()); });
}

QAbstractItemView* AnimationCommands::list() const
{
    return m_list;
}

QVector<PanelPlace> AnimationCommands::places()
{
    return {PanelPlace::of(
        m_list, {{Command::Delete, [this] { removeSelected(); }, [this] { return hasCurrent(); }},
                 {Command::SelectAll, [list = m_list] { list->selectAll(); }}})};
}

void AnimationCommands::showDocument(Family::FamilyDocument* document)
{
    m_document = document;
    showAnimations();
}

/// Other editors borrow the organizer for their lists and return it empty.
void AnimationCommands::updateState()
{
    if (!m_organizer->object()) {
        showAnimations();
    }
}

void AnimationCommands::showAnimations()
{
    const QObject* shown = m_organizer->object();
    if (!shown || qobject_cast<const Zorv::Animations*>(shown)) {
        m_organizer->setObject(m_document ? m_document->animations() : nullptr);
    }
}

bool AnimationCommands::hasList() const
{
    return m_document && m_organizer->object() == m_document->animations();
}

void AnimationCommands::followCursor(int line)
{
    if (!hasList() || m_document->isCodeBeingChanged()) {
        return;
    }
    const AnimationNode* animation = m_document->animations()->animationAt(line);
    const int row = animation ? m_document->animations()->indexOf(animation) : -1;
    if (row != m_organizer->currentRow()) {
        m_organizer->setCurrentRow(row);
    }
}

bool AnimationCommands::hasCurrent() const
{
    return hasList() && m_organizer->currentRow() >= 0;
}

void AnimationCommands::removeSelected()
{
    const auto removal = [this] {
        return hasList() ? Operations::removalOf(*m_document, m_organizer->selectedRows())
                         : Operations::Removal();
    };
    if (removal().names.isEmpty() || !m_services.mayRemove(removal)) {
        return;
    }
    const QVector<int> rows = m_organizer->selectedRows();
    Operations::removeAnimations(m_document->animations(), rows);
    m_organizer->setCurrentRow(std::min(rows.first(), m_document->animations()->count() - 1));
}

void AnimationCommands::requestRow(int row)
{
    if (const AnimationNode* animation =
            hasList() ? m_document->animations()->animation(row) : nullptr) {
        m_services.jumps->showPlace(m_document, animation->firstLine(), 0, 0);
    }
}

}  // namespace App
