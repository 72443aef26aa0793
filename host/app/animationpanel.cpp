#include "app/animationpanel.h"

#include "app/animationrows.h"
#include "app/look/language.h"
#include "app/undostep.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/nodes/animationnode.h"
#include "operations/animationedits.h"

#include <QKeyEvent>
#include <QTextBlock>

#include <algorithm>

namespace App {

using Family::AnimationNode;
using Family::FamilyAnimations;
using Zorv::CodeNode;

namespace {

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
    return freeIdentifier(list, highest < 0 ? BelowFirst : QString::number(highest));
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

const CodeNode* animationAt(const Family::FamilyDocument* document, int line)
{
    const QTextBlock block = document->findBlockByNumber(line);
    const CodeNode* node = document->nodeInBlock(block);
    if (!node) {
        node = document->nodeBefore(block);
    }
    return node->type() == CodeNode::Animation
               ? node
               : node->previous(CodeNode::Animation, CodeNode::StopAtCode);
}

}  // namespace

AnimationPanel::AnimationPanel(QWidget* parent) : QListView(parent), m_rows(new AnimationRows(this))
{
    followLanguage(this, [this] { setAccessibleName(tr("Animations of the text")); });
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setUniformItemSizes(true);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    setDropIndicatorShown(true);
    setModel(m_rows);
    connect(m_rows, &AnimationRows::rowsDropped, this, &AnimationPanel::selectRows);
    connect(m_rows, &QAbstractItemModel::rowsInserted, this, &AnimationPanel::stateChanged);
    connect(m_rows, &QAbstractItemModel::rowsRemoved, this, &AnimationPanel::stateChanged);
    connect(this, &QListView::activated, this,
            [this](const QModelIndex& index) { requestRow(index.row()); });
}

void AnimationPanel::setDocument(Family::FamilyDocument* document)
{
    if (document != m_document) {
        m_document = document;
        m_rows->setAnimations(document ? document->animations() : nullptr);
        emit stateChanged();
    }
}

void AnimationPanel::followCursor(int line)
{
    if (!m_document || m_document->isCodeBeingChanged()) {
        return;
    }
    const auto* animation = static_cast<const AnimationNode*>(animationAt(m_document, line));
    const int row = animation ? m_document->animations()->indexOf(animation) : -1;
    if (row < 0) {
        selectionModel()->clear();
    } else if (row != currentIndex().row()) {
        selectRows(row, 1);
    }
}

int AnimationPanel::count() const
{
    return m_rows->rowCount();
}

void AnimationPanel::addNew()
{
    if (!m_document) {
        return;
    }
    FamilyAnimations* list = m_document->animations();
    {
        const UndoStep step(m_document->animations(), currentIndex().row(), tr("Add animation"));
        for (int ends = lineEndsBeforeNew(m_document); ends > 0; --ends) {
            m_document->insert(QStringLiteral("\n"));
        }
        list->add(newIdentifier(list));
    }
    requestIdentifier(list->count() - 1);
}

void AnimationPanel::duplicateCurrent()
{
    const int row = currentIndex().row();
    if (!m_document || row < 0) {
        return;
    }
    FamilyAnimations* list = m_document->animations();
    bool isDone = false;
    {
        const UndoStep step(m_document->animations(), row, tr("Duplicate animation"));
        isDone =
            list->duplicateAnimation(row, freeIdentifier(list, list->animation(row)->identifier()));
    }
    if (isDone) {
        requestIdentifier(row + 1);
    }
}

void AnimationPanel::removeSelected()
{
    const QVector<int> places = selectedPlaces();
    if (!m_document || places.isEmpty()) {
        return;
    }
    {
        const UndoStep step(m_document->animations(), currentIndex().row(),
                            tr("Remove animations"));
        Family::removeAnimations(m_document->animations(), places);
    }
    const int next = std::min(*std::min_element(places.begin(), places.end()), count() - 1);
    if (next >= 0) {
        selectRows(next, 1);
    }
}

void AnimationPanel::moveUp()
{
    moveCurrent(-1);
}

void AnimationPanel::moveDown()
{
    moveCurrent(1);
}

void AnimationPanel::sortAll()
{
    if (m_document) {
        const UndoStep step(m_document->animations(), currentIndex().row(), tr("Sort animations"));
        m_document->animations()->autoOrganize();
    }
}

void AnimationPanel::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Delete)) {
        removeSelected();
        return;
    }
    QListView::keyPressEvent(event);
}

void AnimationPanel::selectionChanged(const QItemSelection& selected,
                                      const QItemSelection& deselected)
{
    QListView::selectionChanged(selected, deselected);
    emit stateChanged();
}

void AnimationPanel::moveCurrent(int distance)
{
    const int row = currentIndex().row();
    const int target = row + distance;
    if (!m_document || row < 0 || target < 0 || target >= count()) {
        return;
    }
    {
        const UndoStep step(m_document->animations(), row, tr("Move animation"));
        moveAnimation(m_document->animations(), row, target);
    }
    requestRow(target);
    selectRows(target, 1);
}

void AnimationPanel::selectRows(int first, int count)
{
    const QModelIndex top = m_rows->index(first, 0);
    selectionModel()->setCurrentIndex(top, QItemSelectionModel::NoUpdate);
    selectionModel()->select(QItemSelection(top, m_rows->index(first + count - 1, 0)),
                             QItemSelectionModel::ClearAndSelect);
    scrollTo(top);
}

void AnimationPanel::requestRow(int row)
{
    if (m_document && row >= 0 && row < count()) {
        emit lineRequested(m_document->animations()->animation(row)->firstLine(), 0, 0);
    }
}

void AnimationPanel::requestIdentifier(int row)
{
    if (row < 0 || row >= count()) {
        return;
    }
    const AnimationNode* animation = m_document->animations()->animation(row);
    const QString identifier = animation->identifier();
    const int keyword = animation->block().text().indexOf(QLatin1String("animation"));
    const int column =
        animation->block().text().indexOf(identifier, keyword + QLatin1String("animation").size());
    emit lineRequested(animation->firstLine(), std::max(column, 0),
                       column < 0 ? 0 : identifier.size());
}

QVector<int> AnimationPanel::selectedPlaces() const
{
    QVector<int> places;
    const QModelIndexList rows = selectionModel()->selectedIndexes();
    for (const QModelIndex& index : rows) {
        places.append(index.row());
    }
    return places;
}

}  // namespace App
