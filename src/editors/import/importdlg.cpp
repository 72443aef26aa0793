#include "editors/import/importdlg.h"

#include "core/dialogs/dialogbuttons_p.h"
#include "core/dialogs/dialogs.h"
#include "core/interface.h"
#include "core/project.h"
#include "editors/import/importmodel.h"
#include "editors/import/importsource_p.h"

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

using Zorv::ImportEntry;
using Zorv::Project;

namespace {

QListView* newList(const char* name)
{
    auto* list = new QListView;
    list->setObjectName(QLatin1String(name));
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setUniformItemSizes(true);
    return list;
}

QLabel* labelOf(const QString& text, QWidget* buddy)
{
    auto* label = new QLabel(text);
    label->setBuddy(buddy);
    return label;
}

QVector<int> selectedRows(const QListView* list)
{
    QVector<int> rows;
    const QModelIndexList indexes = list->selectionModel()->selectedIndexes();
    for (const QModelIndex& index : indexes) {
        rows.append(index.row());
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

}  // namespace

class ImportDlgPrivate
{
public:
    ImportDlgPrivate(ImportDlg* dialog, Zorv::Interface* interface, Project* project)
        : q(dialog), host(interface), destination(project)
    {
    }

    void build(int pictureSide);
    void buildLists(int pictureSide);
    QWidget* buildChoices();
    QLayout* buildConflicts();
    QPushButton* addButton(QBoxLayout* row, const QString& text, const char* name,
                           void (ImportDlgPrivate::*slot)());
    void offerProjects();
    void forget();
    void showProject();
    void invert();
    void selectAll() { sourceList->selectAll(); }
    void clear() { sourceList->clearSelection(); }
    void add();
    void remove();
    void showClashes();
    void tellRefused(const QString& identifier);

    ImportDlg* q;
    Zorv::Interface* host;
    Project* destination;
    QVector<QPointer<Project>> projects;  // per row of `projectBox`
    ImportSource* source = nullptr;
    ImportModel* model = nullptr;
    QComboBox* projectBox = nullptr;
    QListView* sourceList = nullptr;
    QListView* targetList = nullptr;
    QRadioButton* replace = nullptr;
    QLabel* clashes = nullptr;
    QGridLayout* layout = nullptr;
    QPushButton* okButton = nullptr;
};

ImportDlg::ImportDlg(Zorv::Interface* host, Project* destination)
    : QDialog(host->mainWindow()), d(std::make_unique<ImportDlgPrivate>(this, host, destination))
{
    setWindowTitle(tr("Import from another project"));
}

ImportDlg::~ImportDlg() = default;

void ImportDlg::start(int pictureSide)
{
    d->build(pictureSide);
    d->offerProjects();
    d->showProject();
    readPresent();
}

void ImportDlg::addOption(QWidget* widget)
{
    d->layout->addWidget(widget, d->layout->rowCount() - 2, 0);
}

void ImportDlg::readPresent()
{
    d->model->setPresent(present());
}

QImage ImportDlg::picture(const QModelIndex&) const
{
    return {};
}

bool ImportDlg::hasSource(const Zorv::Interface* host)
{
    if (host->projectCount() > 1) {
        return true;
    }
    Zorv::Dialogs::instance()->warning(tr("Warning"),
                                       tr("You can't import from the destination project!"));
    return false;
}

ImportDlg::Info ImportDlg::getInfo() const
{
    return {d->projects.value(d->projectBox->currentIndex()), d->model->entries(),
            d->replace->isChecked() ? Zorv::ImportConflict::Replace : Zorv::ImportConflict::Skip};
}

QPushButton* ImportDlgPrivate::addButton(QBoxLayout* row, const QString& text, const char* name,
                                         void (ImportDlgPrivate::*slot)())
{
    auto* button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    row->addWidget(button);
    QObject::connect(button, &QPushButton::clicked, q, [this, slot] { (this->*slot)(); });
    return button;
}

void ImportDlgPrivate::buildLists(int pictureSide)
{
    source = new ImportSource([this](const QModelIndex& index) { return q->picture(index); },
                              pictureSide, q);
    model = new ImportModel(q);
    model->setCheck([this](const QString& identifier) { return q->isUsable(identifier); });
    projectBox = new QComboBox;
    projectBox->setObjectName(QStringLiteral("project"));
    sourceList = newList("source");
    sourceList->setModel(source);
    sourceList->setEditTriggers(QAbstractItemView::NoEditTriggers);
    targetList = newList("destination");
    targetList->setModel(model);
    targetList->setEditTriggers(QAbstractItemView::DoubleClicked |
                                QAbstractItemView::EditKeyPressed);
    if (pictureSide > 0) {
        sourceList->setIconSize({pictureSide, pictureSide});
    }
    auto* removal = new QAction(targetList);
    removal->setShortcut(QKeySequence::Delete);
    removal->setShortcutContext(Qt::WidgetShortcut);
    targetList->addAction(removal);

    QObject::connect(removal, &QAction::triggered, q, [this] { remove(); });
    QObject::connect(sourceList, &QListView::doubleClicked, q, [this] { add(); });
    QObject::connect(projectBox, QOverload<int>::of(&QComboBox::currentIndexChanged), q,
                     [this] { showProject(); });
    QObject::connect(model, &ImportModel::clashesChanged, q, [this] { showClashes(); });
    QObject::connect(
        model, &ImportModel::refused, q,
        [this](const QString& identifier) { tellRefused(identifier); }, Qt::QueuedConnection);
}

void ImportDlgPrivate::build(int pictureSide)
{
    buildLists(pictureSide);
    auto* buttons = Zorv::makeOkCancel(q);
    okButton = buttons->button(QDialogButtonBox::Ok);
    clashes = new QLabel;
    clashes->setObjectName(QStringLiteral("clashes"));

    auto* adding = new QHBoxLayout;
    addButton(adding, ImportDlg::tr("Add from source"), "add", &ImportDlgPrivate::add);
    auto* removing = new QHBoxLayout;
    addButton(removing, ImportDlg::tr("Remove selected"), "remove", &ImportDlgPrivate::remove);
    layout = new QGridLayout(q);
    layout->addWidget(labelOf(ImportDlg::tr("Project:"), projectBox), 0, 0);
    layout->addWidget(projectBox, 1, 0);
    layout->addWidget(labelOf(ImportDlg::tr("Source:"), sourceList), 2, 0);
    layout->addWidget(labelOf(ImportDlg::tr("Destination:"), targetList), 2, 1);
    layout->addWidget(sourceList, 3, 0);
    layout->addWidget(targetList, 3, 1);
    layout->addWidget(buildChoices(), 4, 0);
    layout->addWidget(new QLabel(ImportDlg::tr("Double-click an item to rename.")), 4, 1);
    layout->addLayout(adding, 5, 0);
    layout->addLayout(removing, 5, 1);
    layout->addWidget(clashes, 6, 1);
    layout->addLayout(buildConflicts(), 7, 1);
    layout->addWidget(buttons, 8, 0, 1, 2);
    layout->setRowStretch(3, 1);
}

QWidget* ImportDlgPrivate::buildChoices()
{
    auto* choices = new QWidget;
    auto* row = new QHBoxLayout(choices);
    row->setContentsMargins(0, 0, 0, 0);
    addButton(row, ImportDlg::tr("Select all"), "all", &ImportDlgPrivate::selectAll);
    addButton(row, ImportDlg::tr("Clear"), "clear", &ImportDlgPrivate::clear);
    addButton(row, ImportDlg::tr("Invert selection"), "invert", &ImportDlgPrivate::invert);
    return choices;
}

QLayout* ImportDlgPrivate::buildConflicts()
{
    auto* row = new QHBoxLayout;
    replace = new QRadioButton(ImportDlg::tr("Replace existing"));
    replace->setObjectName(QStringLiteral("replace"));
    auto* skip = new QRadioButton(ImportDlg::tr("Skip (don't add)"));
    skip->setObjectName(QStringLiteral("skip"));
    skip->setChecked(true);
    row->addWidget(new QLabel(ImportDlg::tr("Conflicts:")));
    row->addWidget(replace);
    row->addWidget(skip);
    row->addStretch();
    return row;
}

void ImportDlgPrivate::offerProjects()
{
    if (destination) {
        QObject::connect(destination, &QObject::destroyed, q, &QDialog::reject);
    }
    const QSignalBlocker blocker(projectBox);
    for (unsigned i = 0; i < host->projectCount(); ++i) {
        Project* project = host->projectAt(i);
        if (project && project != destination) {
            projects.append(project);
            projectBox->addItem(project->title());
            projectBox->setItemData(projectBox->count() - 1, project->fileName(), Qt::ToolTipRole);
            QObject::connect(project, &QObject::destroyed, q, [this] { forget(); });
        }
    }
}

/// Removes deleted projects. Their pointers are already null, so they are found by
/// position.
void ImportDlgPrivate::forget()
{
    for (int row = projects.size() - 1; row >= 0; --row) {
        if (!projects[row]) {
            projects.remove(row);
            projectBox->removeItem(row);
        }
    }
}

void ImportDlgPrivate::showProject()
{
    const Project* project = q->getInfo().source;
    model->clear();
    source->setLists(project ? q->lists(project) : QVector<QAbstractItemModel*>());
    showClashes();
}

void ImportDlgPrivate::invert()
{
    const int last = source->rowCount() - 1;
    if (last >= 0) {
        const QItemSelection all(source->index(0), source->index(last));
        sourceList->selectionModel()->select(all, QItemSelectionModel::Toggle);
    }
}

void ImportDlgPrivate::add()
{
    QVector<ImportEntry> added;
    const QVector<int> rows = selectedRows(sourceList);
    for (const int row : rows) {
        const QModelIndex index = source->sourceOf(row);
        if (index.isValid()) {
            added.append({index, q->identifier(index)});
        }
    }
    model->add(added);
}

void ImportDlgPrivate::remove()
{
    const QVector<int> rows = selectedRows(targetList);
    for (int last = rows.size(); last > 0;) {
        int first = last - 1;
        while (first > 0 && rows[first - 1] == rows[first] - 1) {
            --first;
        }
        model->removeRows(rows[first], last - first);
        last = first;
    }
}

void ImportDlgPrivate::showClashes()
{
    const int count = model->clashCount();
    clashes->setText(count > 0 ? ImportDlg::tr("%n name(s) are taken or repeated.", nullptr, count)
                               : QString());
    okButton->setEnabled(model->rowCount() > 0);
}

void ImportDlgPrivate::tellRefused(const QString& identifier)
{
    Zorv::Dialogs::instance()->warning(
        q->windowTitle(), ImportDlg::tr("'%1' cannot be used as a name.").arg(identifier));
}
