#include "app/recovery/recoverydialog.h"

#include "app/changes/diffview.h"

#include <zorv/core/dialogs/dialogs.h>

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace App {

using Operations::AbandonedWork;
using Zorv::Dialogs;

namespace {

enum Column { FileColumn, TimeColumn, DecisionColumn };

QString kindOf(const Operations::RecoveryCopy& copy)
{
    switch (copy.content) {
    case Operations::RecoveryCopy::Sprites:
        return RecoveryDialog::tr("sprites");
    case Operations::RecoveryCopy::Sounds:
        return RecoveryDialog::tr("sounds");
    default:
        return Family::fileKindName(copy.kind);
    }
}

QString nameOf(const AbandonedWork& work)
{
    if (work.state == AbandonedWork::Damaged) {
        return QFileInfo(work.path).fileName();
    }
    if (work.copy.content == Operations::RecoveryCopy::Canvas) {
        return RecoveryDialog::tr("%1 (canvas)").arg(QDir::toNativeSeparators(work.copy.fileName));
    }
    return work.copy.fileName.isEmpty() ? RecoveryDialog::tr("new file (%1)").arg(kindOf(work.copy))
                                        : QDir::toNativeSeparators(work.copy.fileName);
}

QString decisionText(RecoveryDialog::Decision decision)
{
    switch (decision) {
    case RecoveryDialog::Restore:
        return RecoveryDialog::tr("Restore");
    case RecoveryDialog::Discard:
        return RecoveryDialog::tr("Discard");
    default:
        return RecoveryDialog::tr("Later");
    }
}

}  // namespace

RecoveryDialog::RecoveryDialog(QWidget* parent, const QList<AbandonedWork>& works)
    : QDialog(parent), m_works(works), m_comparisons(works.size()), m_list(new QTreeWidget),
      m_state(new QLabel), m_diff(new DiffView), m_choices(new QButtonGroup(this)),
      m_saveAs(new QPushButton(tr("Save the copy &as...")))
{
    setWindowTitle(tr("Unsaved work"));
    auto* layout = new QVBoxLayout(this);
    auto* head = new QLabel(tr("Zorv ended before this work was saved. Restoring brings it back "
                               "as unsaved changes; no file is written."));
    head->setWordWrap(true);
    layout->addWidget(head);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_state);
    layout->addWidget(m_diff, 3);
    makeList();
    makeDecisions();
    makeButtons();
    resize(820, 620);
    m_list->setCurrentItem(m_list->topLevelItem(0));
}

void RecoveryDialog::makeList()
{
    m_list->setObjectName(QStringLiteral("works"));
    m_list->setHeaderLabels({tr("File"), tr("Last change put aside"), tr("Decision")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAccessibleName(tr("Unsaved work"));
    for (const AbandonedWork& work : qAsConst(m_works)) {
        const bool isWhole = work.state == AbandonedWork::Applicable;
        m_decisions.append(isWhole ? Restore : Later);
        auto* item = new QTreeWidgetItem(m_list);
        item->setText(FileColumn, nameOf(work));
        item->setToolTip(FileColumn, nameOf(work));
        item->setText(TimeColumn, QLocale().toString(work.copy.time, QLocale::ShortFormat));
        item->setText(DecisionColumn, decisionText(m_decisions.last()));
    }
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(FileColumn, QHeaderView::Stretch);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &RecoveryDialog::showCurrent);
    m_state->setWordWrap(true);
    m_state->setTextFormat(Qt::PlainText);
}

void RecoveryDialog::makeDecisions()
{
    auto* row = new QHBoxLayout;
    for (const Decision decision : {Restore, Discard, Later}) {
        auto* button = new QRadioButton(decisionText(decision));
        m_choices->addButton(button, decision);
        row->addWidget(button);
    }
    row->addStretch();
    row->addWidget(m_saveAs);
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
    connect(m_choices, &QButtonGroup::idClicked, this,
            [this](int decision) { decide(Decision(decision)); });
    connect(m_saveAs, &QPushButton::clicked, this, &RecoveryDialog::saveCurrentElsewhere);
}

void RecoveryDialog::makeButtons()
{
    auto* box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QPushButton* all = box->addButton(tr("Restore a&ll"), QDialogButtonBox::ApplyRole);
    all->setObjectName(QStringLiteral("restore_all"));
    all->setEnabled(std::any_of(m_works.begin(), m_works.end(), [](const AbandonedWork& work) {
        return work.state == AbandonedWork::Applicable;
    }));
    connect(all, &QPushButton::clicked, this, &RecoveryDialog::restoreAll);
    connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout()->addWidget(box);
}

int RecoveryDialog::current() const
{
    return m_list->indexOfTopLevelItem(m_list->currentItem());
}

void RecoveryDialog::showCurrent()
{
    const int row = current();
    if (row < 0) {
        return;
    }
    const AbandonedWork& work = m_works.at(row);
    if (m_comparisons.at(row).isNull()) {
        m_comparisons[row] = comparison(work);
    }
    m_state->setText(stateText(work));
    m_diff->setPlainText(m_comparisons.at(row));
    m_choices->button(Restore)->setEnabled(work.state == AbandonedWork::Applicable);
    m_choices->button(m_decisions.at(row))->setChecked(true);
    m_saveAs->setEnabled(work.state != AbandonedWork::Damaged);
}

void RecoveryDialog::decide(Decision decision)
{
    const int row = current();
    if (row >= 0) {
        m_decisions[row] = decision;
        m_list->topLevelItem(row)->setText(DecisionColumn, decisionText(decision));
    }
}

void RecoveryDialog::restoreAll()
{
    for (int i = 0; i < m_works.size(); ++i) {
        if (m_works.at(i).state == AbandonedWork::Applicable) {
            m_decisions[i] = Restore;
        }
    }
    accept();
}

void RecoveryDialog::saveCurrentElsewhere()
{
    const int row = current();
    if (row < 0) {
        return;
    }
    const Operations::RecoveryCopy& copy = m_works.at(row).copy;
    const bool isCanvas = copy.content == Operations::RecoveryCopy::Canvas;
    const QString name = Dialogs::instance()->saveFileName(
        this, tr("Save the copy as"),
        isCanvas ? copy.fileName + QLatin1String(".png") : copy.fileName, QString());
    QString error;
    if (!name.isEmpty() && !m_works.at(row).saveElsewhere(name, &error)) {
        Dialogs::instance()->error(tr("Save the copy as"), error);
    }
}

QVector<RecoveryDialog::Decision> RecoveryDialog::decisions() const
{
    return result() == Accepted ? m_decisions : QVector<Decision>(m_works.size(), Later);
}

QString RecoveryDialog::stateText(const AbandonedWork& work) const
{
    switch (work.state) {
    case AbandonedWork::Applicable:
        return tr("What restoring changes:");
    case AbandonedWork::FileChanged:
        return tr("Cannot be applied: the file was changed after this work had begun. The copy can "
                  "be saved under another name.");
    case AbandonedWork::FileGone:
        return tr("Cannot be applied: the file is no longer there. The copy can be saved under "
                  "another name.");
    default:
        return tr("Cannot be applied: %1").arg(work.fault);
    }
}

QString RecoveryDialog::comparison(const AbandonedWork& work) const
{
    return work.state == AbandonedWork::Damaged
               ? QStringLiteral("")
               : DiffView::comparison(work.fileLines(), work.unsavedLines(), tr("the file"),
                                      tr("the unsaved work"));
}

}  // namespace App
