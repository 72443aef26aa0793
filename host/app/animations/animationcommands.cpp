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

#include <zorv/editors/organizer/organizereditor.h>

#include <QAbstractItemView>
#include <QTextBlock>
#include <algorithm>

namespace App {

using Family::AnimationNode;
using Family::FamilyAnimations;
using Zorv::OrganizerEditor;

namespace {

const QString ListName = QStringLiteral("org_list");

// The first number of a list without numbers is 0.
const QString BelowFirst = QStringLiteral("-1");

QString newIdentifier(const FamilyAnimations* list)
{
    qint64 highest = -1;
    for (int i = 0; i < list->count(); ++i) {
        bool isNumber = false;
        const qint64 number = list->animation(i)->identifier().toLongLong(&isNumber);
        highest = isNumber ? std::max(highest, number) : highest;
    }
    return Operations::freeIdentifier(list, highest < 0 ? BelowFirst : QString::number(highest));
}

// A new animation starts on a line of its own, with an empty one above it.
int lineEndsBeforeNew(const Family::FamilyDocument* document)
{
    const QTextBlock last = document->lastBlock();
    const bool isAtStart = !last.previous().isValid();
    if (last.length() > 1) {
        return 2;
    }
    return isAtStart || last.previous().length() == 1 ? 0 : 1;
}

}  // namespace

AnimationCommands::AnimationCommands(const WindowServices& services)
    : QObject(services.window), m_services(services), m_organizer(new OrganizerEditor(this)),
      m_list(services.window->findChild<QAbstractItemView*>(ListName))
{
    services.editors->addPanel(m_organizer);
    connect(m_organizer, &OrganizerEditor::rowActivated, this, &AnimationCommands::requestRow);
    connect(m_organizer, &OrganizerEditor::currentRowChanged, services.parts,
            &PartList::updateSoon);
    // Edits have taken the cursor of the text to where the animations were.
    connect(m_organizer, &OrganizerEditor::selectionMoved, this,
            [this] { requestRow(m_organizer->currentRow()); });
}

QVector<ActionRow> AnimationCommands::actions()
{
    const Members<AnimationCommands> on(this);
    // clang-format off
    return {
        {"animation_add",       "anim.list", QT_TRANSLATE_NOOP("App::Actions", "&Add"),       "Ctrl+Shift+A", on(&AnimationCommands::addNew),           on(&AnimationCommands::hasText),    nullptr, ActionRow::Button, "anim_add"},
        {"animation_duplicate", "anim.list", QT_TRANSLATE_NOOP("App::Actions", "&Duplicate"), "Ctrl+Shift+D", on(&AnimationCommands::duplicateCurrent), on(&AnimationCommands::hasCurrent), nullptr, ActionRow::Button, "anim_duplicate"},
        {"animation_remove",    "anim.list", QT_TRANSLATE_NOOP("App::Actions", "&Remove"),    "Ctrl+Shift+R", on(&AnimationCommands::removeSelected),   on(&AnimationCommands::hasCurrent), nullptr, ActionRow::Button, "anim_remove"},
    };
    // clang-format on
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
    m_organizer->setObject(document ? document->animations() : nullptr);
}

void AnimationCommands::followCursor(int line)
{
    if (!m_document || m_document->isCodeBeingChanged()) {
        return;
    }
    const AnimationNode* animation = m_document->animations()->animationAt(line);
    const int row = animation ? m_document->animations()->indexOf(animation) : -1;
    if (row != m_organizer->currentRow()) {
        m_organizer->setCurrentRow(row);
    }
}

bool AnimationCommands::hasText() const
{
    return m_document;
}

bool AnimationCommands::hasCurrent() const
{
    return m_document && m_organizer->currentRow() >= 0;
}

void AnimationCommands::addNew()
{
    if (!m_document) {
        return;
    }
    FamilyAnimations* list = m_document->animations();
    list->beginChange(tr("Add animation"));
    for (int ends = lineEndsBeforeNew(m_document); ends > 0; --ends) {
        m_document->insert(QStringLiteral("\n"));
    }
    list->add(newIdentifier(list));
    list->endChange();
    requestIdentifier(list->count() - 1);
}

void AnimationCommands::duplicateCurrent()
{
    if (!hasCurrent()) {
        return;
    }
    const int row = m_organizer->currentRow();
    FamilyAnimations* list = m_document->animations();
    const QString identifier = Operations::freeIdentifier(list, list->animation(row)->identifier());
    if (list->duplicateAnimation(row, identifier)) {
        requestIdentifier(row + 1);
    }
}

void AnimationCommands::removeSelected()
{
    const auto removal = [this] {
        return m_document ? Operations::removalOf(*m_document, m_organizer->selectedRows())
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
            m_document ? m_document->animations()->animation(row) : nullptr) {
        m_services.jumps->showPlace(m_document, animation->firstLine(), 0, 0);
    }
}

void AnimationCommands::requestIdentifier(int row)
{
    const AnimationNode* animation = m_document->animations()->animation(row);
    if (!animation) {
        return;
    }
    const QString identifier = animation->identifier();
    const int keyword = animation->block().text().indexOf(QLatin1String("animation"));
    const int column =
        animation->block().text().indexOf(identifier, keyword + QLatin1String("animation").size());
    m_services.jumps->showPlace(m_document, animation->firstLine(), std::max(column, 0),
                                column < 0 ? 0 : identifier.size());
}

}  // namespace App
