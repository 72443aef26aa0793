#include "app/actions/actionlist.h"

#include "app/actions/actionregistry.h"
#include "app/actions/wordmatch.h"

#include <QAction>
#include <QIcon>

#include <algorithm>

namespace App {

ActionList::ActionList(const ActionRegistry* registry, QObject* parent)
    : QAbstractTableModel(parent), m_registry(registry)
{
    connect(registry, &ActionRegistry::changed, this, &ActionList::fill);
    connect(registry, &QObject::destroyed, this, &ActionList::fill);
    fill();
}

void ActionList::setFilter(const QString& typed)
{
    m_typed = typed;
    fill();
}

void ActionList::setOnlyWithKeys(bool isOnly)
{
    m_isOnlyWithKeys = isOnly;
    fill();
}

QString ActionList::name(int row) const
{
    return m_names.value(row);
}

bool ActionList::isOffered(const QString& name) const
{
    return m_registry->action(name)->isVisible() && m_registry->isMenuVisible(name) &&
           !(m_isOnlyWithKeys && m_registry->keys(name).isEmpty());
}

void ActionList::fill()
{
    struct Found
    {
        QString name;
        int score;
        QVector<int> place;
    };
    QVector<Found> found;
    const QStringList names = m_registry ? m_registry->names() : QStringList();
    for (const QString& name : names) {
        const int score = matchWords(m_typed, m_registry->text(name), m_registry->menuPath(name));
        if (score >= 0 && isOffered(name)) {
            found.append({name, score, m_registry->menuPlace(name)});
        }
    }
    // Equal scores: in menu order.
    std::stable_sort(found.begin(), found.end(), [](const Found& a, const Found& b) {
        return a.score != b.score ? a.score > b.score : a.place < b.place;
    });
    beginResetModel();
    m_names.clear();
    for (const Found& each : qAsConst(found)) {
        m_names.append(each.name);
    }
    endResetModel();
}

const QAction* ActionList::action(const QModelIndex& index) const
{
    return m_registry && index.isValid() ? m_registry->action(name(index.row())) : nullptr;
}

int ActionList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_names.size();
}

int ActionList::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant ActionList::data(const QModelIndex& index, int role) const
{
    const QAction* found = action(index);
    if (!found) {
        return {};
    }
    if (role == Qt::ToolTipRole) {
        return found->toolTip();
    }
    if (role == Qt::DecorationRole && index.column() == LabelColumn) {
        return found->icon();
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (index.column()) {
    case LabelColumn:
        return m_registry->text(name(index.row()));
    case MenuColumn:
        return m_registry->menuPath(name(index.row()));
    default:
        return QKeySequence::listToString(found->shortcuts(), QKeySequence::NativeText);
    }
}

QVariant ActionList::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case LabelColumn:
        return tr("Action");
    case MenuColumn:
        return tr("Menu");
    default:
        return tr("Keys");
    }
}

Qt::ItemFlags ActionList::flags(const QModelIndex& index) const
{
    const QAction* found = action(index);
    if (!found) {
        return Qt::NoItemFlags;
    }
    return Qt::ItemIsSelectable | Qt::ItemNeverHasChildren |
           (found->isEnabled() ? Qt::ItemIsEnabled : Qt::NoItemFlags);
}

}  // namespace App
