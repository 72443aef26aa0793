#include "app/nodepanel.h"

#include "app/look/language.h"
#include "app/nodemodel.h"

#include <QTimer>

namespace App {

namespace {

// A cursor that runs with a key held down is followed now and then.
constexpr int FollowWait = 60;

}  // namespace

NodePanel::NodePanel(QWidget* parent)
    : QTreeView(parent), m_nodes(new NodeModel(this)), m_follow(new QTimer(this))
{
    followLanguage(this, [this] { setAccessibleName(tr("Nodes of the text")); });
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_nodes->setActive(false);
    setModel(m_nodes);
    m_follow->setSingleShot(true);
    m_follow->setInterval(FollowWait);
    connect(m_follow, &QTimer::timeout, this, &NodePanel::selectLine);
    connect(m_nodes, &NodeModel::refreshed, this, &NodePanel::selectLine);
    connect(this, &QTreeView::clicked, this, &NodePanel::requestLine);
    connect(this, &QTreeView::activated, this, &NodePanel::requestLine);
}

void NodePanel::setDocument(Family::FamilyDocument* document)
{
    m_line = -1;
    m_nodes->setDocument(document);
}

void NodePanel::followCursor(int line)
{
    m_line = line;
    if (isVisible() && !m_follow->isActive()) {
        m_follow->start();
    }
}

void NodePanel::showEvent(QShowEvent* event)
{
    QTreeView::showEvent(event);
    m_nodes->setActive(true);
    selectLine();
}

void NodePanel::hideEvent(QHideEvent* event)
{
    m_nodes->setActive(false);
    QTreeView::hideEvent(event);
}

void NodePanel::selectLine()
{
    if (m_line < 0 || m_nodes->isStale()) {
        return;
    }
    const QModelIndex index = m_nodes->indexOfLine(m_line);
    if (index.isValid() && index != currentIndex()) {
        setCurrentIndex(index);
        scrollTo(index);
    }
}

void NodePanel::requestLine(const QModelIndex& index)
{
    const QPersistentModelIndex row(index);
    m_nodes->refresh();
    const int line = m_nodes->lineOf(row);
    if (line >= 0) {
        emit lineRequested(line);
    }
}

}  // namespace App
