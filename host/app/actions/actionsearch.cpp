#include "app/actions/actionsearch.h"

#include "app/actions/actionlist.h"
#include "app/actions/actionregistry.h"
#include "app/look/language.h"

#include <QAction>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTreeView>
#include <QVBoxLayout>

namespace App {

namespace {

const QSize FirstSize(560, 380);

}  // namespace

ActionSearch::ActionSearch(ActionRegistry* registry, QWidget* parent)
    : QDialog(parent), m_registry(registry), m_list(new ActionList(registry, this)),
      m_field(new QLineEdit), m_view(new QTreeView)
{
    m_field->setClearButtonEnabled(true);
    m_field->installEventFilter(this);
    makeView();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_field);
    layout->addWidget(m_view);
    resize(FirstSize);
    followLanguage(this, [this] {
        setWindowTitle(tr("Find action"));
        m_field->setPlaceholderText(tr("Type a part of what you want to do"));
        m_field->setAccessibleName(tr("Find action"));
        m_view->setAccessibleName(tr("Actions"));
    });
    connect(m_field, &QLineEdit::textChanged, this, &ActionSearch::filter);
    connect(m_view, &QTreeView::activated, this, &ActionSearch::choose);
    filter({});
    m_field->setFocus();
}

void ActionSearch::makeView()
{
    m_view->setModel(m_list);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAllColumnsShowFocus(true);
    // The focus stays in the field.
    m_view->setFocusPolicy(Qt::NoFocus);
    m_view->header()->hide();
    m_view->header()->setStretchLastSection(false);
    m_view->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_view->header()->setSectionResizeMode(ActionList::KeyColumn, QHeaderView::Stretch);
}

void ActionSearch::filter(const QString& typed)
{
    m_list->setFilter(typed);
    m_view->setCurrentIndex(m_list->index(firstEnabledRow(0, 1), 0));
}

/// The first enabled row, starting at `from`; -1 if there is none.
int ActionSearch::firstEnabledRow(int from, int step) const
{
    for (int row = from; row >= 0 && row < m_list->rowCount(); row += step) {
        if (m_list->flags(m_list->index(row, 0)) & Qt::ItemIsEnabled) {
            return row;
        }
    }
    return -1;
}

bool ActionSearch::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_field || event->type() != QEvent::KeyPress) {
        return QDialog::eventFilter(watched, event);
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    const int current = m_view->currentIndex().row();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        choose(m_view->currentIndex());
        return true;
    }
    if (key == Qt::Key_Down || key == Qt::Key_Up) {
        const int step = key == Qt::Key_Down ? 1 : -1;
        const int row = firstEnabledRow(current + step, step);
        if (row >= 0) {
            m_view->setCurrentIndex(m_list->index(row, 0));
        }
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void ActionSearch::choose(const QModelIndex& index)
{
    QAction* action = m_registry->action(m_list->name(index.row()));
    if (!index.isValid() || !action || !action->isEnabled()) {
        return;
    }
    accept();
    // Triggered later: the action may open a dialog, and expects the focus where it was before this
    // one.
    QMetaObject::invokeMethod(action, &QAction::trigger, Qt::QueuedConnection);
}

void searchActions(ActionRegistry* registry, QWidget* window)
{
    auto* dialog = new ActionSearch(registry, window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

}  // namespace App
