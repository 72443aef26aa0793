#include "editors/organizer/organizereditor.h"

#include "core/interface.h"
#include "core/organizableobject.h"
#include "editors/framework/editortools_p.h"
#include "editors/framework/widgetcontrol.h"
#include "editors/organizer/organizerrows_p.h"
#include "text/zorvtranslator.h"

#include <QCoreApplication>
#include <QDropEvent>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QListView>
#include <QPointer>

#include <algorithm>

namespace Zorv {

namespace {

constexpr unsigned PanelText = 158;
constexpr int FarStep = 10;
constexpr int ListRows = 10;

const char* const areas[] = {"all", nullptr};

const EditorTool tools[] = {
    {"org_up", ToolKind::Action, 159, SIGNAL(upEnabled(bool)), SLOT(moveUp())},
    {"org_down", ToolKind::Action, 160, SIGNAL(downEnabled(bool)), SLOT(moveDown())},
    {"org_up10", ToolKind::Action, 161, SIGNAL(upEnabled(bool)), SLOT(moveTenUp())},
    {"org_down10", ToolKind::Action, 162, SIGNAL(downEnabled(bool)), SLOT(moveTenDown())},
    {"org_top", ToolKind::Action, 163, SIGNAL(upEnabled(bool)), SLOT(moveToTop())},
    {"org_bottom", ToolKind::Action, 164, SIGNAL(downEnabled(bool)), SLOT(moveToBottom())},
    {"org_auto", ToolKind::Action, 165, SIGNAL(enabled(bool)), SLOT(organize())},
};

/// Moves each row as far as possible: not past the end, and not past another moved row.
QVector<int> placesAfter(const QVector<int>& rows, int distance, int count)
{
    QVector<int> places;
    places.reserve(rows.size());
    for (int i = 0; i < rows.size(); ++i) {
        const int lowest = count - rows.size() + i;
        places.append(std::clamp(rows[i] + distance, i, lowest));
    }
    return places;
}

}  // namespace

class OrganizerEditorPrivate
{
public:
    /// The state last reported by signals.
    struct State
    {
        int current = -1;
        bool canGoUp = false;
        bool canGoDown = false;
        bool canSort = false;
    };

    explicit OrganizerEditorPrivate(OrganizerEditor* editor) : q(editor), selection(&rows) {}

    void publish(Interface* host);
    void setUpView();
    void moveBy(int distance);
    void select(const QVector<int>& wanted);
    void showMoved(const QVector<int>& wanted);
    State state() const;
    void tellState();
    bool drop(QDropEvent* event);

    OrganizerEditor* q;
    OrganizerRows rows;
    QItemSelectionModel selection;
    QPointer<QListView> view;
    State told;
};

void OrganizerEditorPrivate::publish(Interface* host)
{
    EditorTools(q).publish(tools, areas);
    const ListViewControl list(ListRows, q, SLOT(itemDblClick(QModelIndex)),
                               WidgetControl::Reorderable);
    view = qobject_cast<QListView*>(host->addControl(QStringLiteral("org_list"), list));
    if (view) {
        setUpView();
    }
}

void OrganizerEditorPrivate::setUpView()
{
    // Otherwise every change of a long list measures the text of every row.
    view->setUniformItemSizes(true);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    // The rows decide what may be dropped.
    view->setDragDropMode(QAbstractItemView::DragDrop);
    view->setDefaultDropAction(Qt::MoveAction);
    view->setModel(&rows);
    const std::unique_ptr<QItemSelectionModel> own(view->selectionModel());
    view->setSelectionModel(&selection);
    view->installEventFilter(q);
    view->viewport()->installEventFilter(q);
}

void OrganizerEditorPrivate::moveBy(int distance)
{
    const QVector<int> selected = q->selectedRows();
    const QVector<int> places = placesAfter(selected, distance, rows.rowCount());
    if (rows.place(selected, places, OrganizerEditor::tr("Move rows"))) {
        showMoved(places);
    }
}

void OrganizerEditorPrivate::select(const QVector<int>& wanted)
{
    QItemSelection ranges;
    for (int i = 0; i < wanted.size();) {
        const int first = wanted[i];
        int last = first;
        while (++i < wanted.size() && wanted[i] == last + 1) {
            ++last;
        }
        ranges.append(QItemSelectionRange(rows.index(first), rows.index(last)));
    }
    selection.select(ranges, QItemSelectionModel::ClearAndSelect);
}

/// Rows keep their selection by themselves, unless the list has recreated them.
void OrganizerEditorPrivate::showMoved(const QVector<int>& wanted)
{
    if (q->selectedRows() != wanted) {
        select(wanted);
    }
    if (!selection.currentIndex().isValid()) {
        selection.setCurrentIndex(rows.index(wanted.first()), QItemSelectionModel::NoUpdate);
    }
    if (view) {
        view->scrollTo(selection.currentIndex());
    }
    tellState();
    emit q->selectionMoved();
}

OrganizerEditorPrivate::State OrganizerEditorPrivate::state() const
{
    const int count = rows.rowCount();
    int selected = 0;
    int first = count;
    int last = -1;
    const QItemSelection ranges = selection.selection();
    for (const QItemSelectionRange& range : ranges) {
        selected += range.height();
        first = std::min(first, range.top());
        last = std::max(last, range.bottom());
    }
    const bool canGoUp = last >= selected;
    const bool canGoDown = selected > 0 && first + selected < count;
    return {q->currentRow(), canGoUp, canGoDown, count > 1};
}

void OrganizerEditorPrivate::tellState()
{
    const State before = told;
    told = state();
    const State now = told;
    if (now.current != before.current) {
        emit q->currentRowChanged(now.current);
    }
    if (now.canGoUp != before.canGoUp) {
        emit q->upEnabled(now.canGoUp);
    }
    if (now.canGoDown != before.canGoDown) {
        emit q->downEnabled(now.canGoDown);
    }
    if (now.canSort != before.canSort) {
        emit q->enabled(now.canSort);
    }
}

/// Handles the drop instead of the view: if one of several dragged rows is already at the target,
/// Qt's list view moves none of them.
bool OrganizerEditorPrivate::drop(QDropEvent* event)
{
    const QModelIndex under = view->indexAt(event->pos());
    int row = rows.rowCount();
    if (under.isValid()) {
        const bool isBelow = event->pos().y() >= view->visualRect(under).center().y();
        row = under.row() + (isBelow ? 1 : 0);
    }
    rows.dropMimeData(event->mimeData(), event->dropAction(), row, 0, {});
    event->ignore();
    // A leave event makes the view reset its drag state.
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(view->viewport(), &leave);
    return true;
}

OrganizerEditor::OrganizerEditor(QObject* parent)
    : ExtraEditor(parent), d(std::make_unique<OrganizerEditorPrivate>(this))
{
    d->publish(Interface::instance());
    retranslate();
    const auto tell = [this] { d->tellState(); };
    connect(&d->selection, &QItemSelectionModel::currentChanged, this, tell);
    connect(&d->selection, &QItemSelectionModel::selectionChanged, this, [this] {
        d->tellState();
        emit selectionChanged();
    });
    connect(&d->rows, &QAbstractItemModel::rowsInserted, this, tell);
    connect(&d->rows, &QAbstractItemModel::rowsRemoved, this, tell);
    connect(&d->rows, &QAbstractItemModel::rowsMoved, this, tell);
    connect(&d->rows, &QAbstractItemModel::layoutChanged, this, tell);
    connect(&d->rows, &QAbstractItemModel::modelReset, this, [this] {
        d->tellState();
        emit selectionChanged();
    });
    connect(&d->rows, &OrganizerRows::dropped, this,
            [this](const QVector<int>& rows) { d->showMoved(rows); });
    emit upEnabled(false);
    emit downEnabled(false);
    emit enabled(false);
}

OrganizerEditor::~OrganizerEditor()
{
    if (d->view) {
        d->view->setModel(nullptr);
    }
}

QString OrganizerEditor::name() const
{
    return QStringLiteral("organizer");
}

QString OrganizerEditor::displayName() const
{
    return ZorvTranslator::instance()->trText(PanelText);
}

void OrganizerEditor::retranslate()
{
    if (d->view) {
        d->view->setAccessibleName(displayName());
    }
}

void OrganizerEditor::setObject(OrganizableObject* object)
{
    d->rows.setObject(object);
}

OrganizableObject* OrganizerEditor::object() const
{
    return d->rows.object();
}

int OrganizerEditor::currentRow() const
{
    return d->selection.currentIndex().row();
}

QVector<int> OrganizerEditor::selectedRows() const
{
    QVector<int> result;
    const QModelIndexList indexes = d->selection.selectedIndexes();
    result.reserve(indexes.size());
    for (const QModelIndex& index : indexes) {
        result.append(index.row());
    }
    std::sort(result.begin(), result.end());
    return result;
}

void OrganizerEditor::setCurrentRow(int row)
{
    const QModelIndex index = d->rows.index(row);
    if (!index.isValid()) {
        d->selection.clear();
        return;
    }
    d->selection.setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    if (d->view) {
        d->view->scrollTo(index);
    }
}

void OrganizerEditor::moveUp()
{
    d->moveBy(-1);
}

void OrganizerEditor::moveDown()
{
    d->moveBy(1);
}

void OrganizerEditor::moveTenUp()
{
    d->moveBy(-FarStep);
}

void OrganizerEditor::moveTenDown()
{
    d->moveBy(FarStep);
}

void OrganizerEditor::moveToTop()
{
    d->moveBy(-d->rows.rowCount());
}

void OrganizerEditor::moveToBottom()
{
    d->moveBy(d->rows.rowCount());
}

void OrganizerEditor::organize()
{
    d->rows.organize();
    const QVector<int> selected = selectedRows();
    if (!selected.isEmpty()) {
        d->showMoved(selected);
    }
}

void OrganizerEditor::itemDblClick(const QModelIndex& index)
{
    if (index.isValid()) {
        emit rowActivated(index.row());
    }
}

bool OrganizerEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Drop && d->view && watched == d->view->viewport()) {
        return d->drop(static_cast<QDropEvent*>(event));
    }
    if (event->type() == QEvent::KeyPress && watched == d->view) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if ((key == Qt::Key_Return || key == Qt::Key_Enter) && currentRow() >= 0) {
            emit rowActivated(currentRow());
            return true;
        }
    }
    return ExtraEditor::eventFilter(watched, event);
}

}  // namespace Zorv
