#include "app/recovery/recoverydialog.h"

#include "app/look/codefont.h"
#include "app/look/theme.h"
#include "operations/textdiff.h"

#include <zorv/core/dialogs/dialogs.h>

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSyntaxHighlighter>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace App {

using Operations::AbandonedText;
using Zorv::Dialogs;

namespace {

enum Column { FileColumn, TimeColumn, DecisionColumn };

// Nobody reads more of a comparison, and a view of it would take long to fill.
constexpr int MaxComparison = 400000;

/// Lines that come and go.
class DiffColours : public QSyntaxHighlighter
{
public:
    explicit DiffColours(QPlainTextEdit* edit) : QSyntaxHighlighter(edit->document()) {}

protected:
    void highlightBlock(const QString& line) override
    {
        if (line.startsWith(QLatin1Char('+'))) {
            setFormat(0, line.size(), Theme::colour(Theme::AddedText));
        } else if (line.startsWith(QLatin1Char('-'))) {
            setFormat(0, line.size(), Theme::colour(Theme::RemovedText));
        } else if (line.startsWith(QLatin1String("@@"))) {
            setFormat(0, line.size(), Theme::colour(Theme::PlaceText));
        }
    }
};

QString nameOf(const AbandonedText& text)
{
    if (text.state == AbandonedText::Damaged) {
        return QFileInfo(text.path).fileName();
    }
    return text.copy.fileName.isEmpty()
               ? RecoveryDialog::tr("new file (%1)").arg(Family::fileKindName(text.copy.kind))
               : QDir::toNativeSeparators(text.copy.fileName);
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

RecoveryDialog::RecoveryDialog(QWidget* parent, const QList<AbandonedText>& texts)
    : QDialog(parent), m_texts(texts), m_comparisons(texts.size()), m_list(new QTreeWidget),
      m_state(new QLabel), m_diff(new QPlainTextEdit), m_choices(new QButtonGroup(this)),
      m_saveAs(new QPushButton(tr("Save the copy &as...")))
{
    setWindowTitle(tr("Unsaved texts"));
    auto* layout = new QVBoxLayout(this);
    auto* head = new QLabel(tr("Zorv ended before these texts were saved. Restoring puts a text "
                               "into its document as unsaved changes; no file is written."));
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
    m_list->setObjectName(QStringLiteral("texts"));
    m_list->setHeaderLabels({tr("File"), tr("Last change put aside"), tr("Decision")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAccessibleName(tr("Unsaved texts"));
    for (const AbandonedText& text : qAsConst(m_texts)) {
        const bool isWhole = text.state == AbandonedText::Applicable;
        m_decisions.append(isWhole ? Restore : Later);
        auto* item = new QTreeWidgetItem(m_list);
        item->setText(FileColumn, nameOf(text));
        item->setToolTip(FileColumn, nameOf(text));
        item->setText(TimeColumn, QLocale().toString(text.copy.time, QLocale::ShortFormat));
        item->setText(DecisionColumn, decisionText(m_decisions.last()));
    }
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(FileColumn, QHeaderView::Stretch);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &RecoveryDialog::showCurrent);
    m_state->setWordWrap(true);
    m_state->setTextFormat(Qt::PlainText);
    m_diff->setReadOnly(true);
    m_diff->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_diff->setFont(codeFont());
    m_diff->setAccessibleName(tr("Comparison of the file and the unsaved text"));
    new DiffColours(m_diff);
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
    all->setEnabled(std::any_of(m_texts.begin(), m_texts.end(), [](const AbandonedText& text) {
        return text.state == AbandonedText::Applicable;
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
    const AbandonedText& text = m_texts.at(row);
    if (m_comparisons.at(row).isNull()) {
        m_comparisons[row] = comparison(text);
    }
    m_state->setText(stateText(text));
    m_diff->setPlainText(m_comparisons.at(row));
    m_choices->button(Restore)->setEnabled(text.state == AbandonedText::Applicable);
    m_choices->button(m_decisions.at(row))->setChecked(true);
    m_saveAs->setEnabled(text.state != AbandonedText::Damaged);
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
    for (int i = 0; i < m_texts.size(); ++i) {
        if (m_texts.at(i).state == AbandonedText::Applicable) {
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
    const QString name = Dialogs::instance()->saveFileName(
        this, tr("Save the copy as"), m_texts.at(row).copy.fileName, QString());
    QString error;
    if (!name.isEmpty() && !m_texts.at(row).saveElsewhere(name, &error)) {
        Dialogs::instance()->error(tr("Save the copy as"), error);
    }
}

QVector<RecoveryDialog::Decision> RecoveryDialog::decisions() const
{
    return result() == Accepted ? m_decisions : QVector<Decision>(m_texts.size(), Later);
}

QString RecoveryDialog::stateText(const AbandonedText& text) const
{
    switch (text.state) {
    case AbandonedText::Applicable:
        return tr("What restoring changes:");
    case AbandonedText::FileChanged:
        return tr("Cannot be applied: the file was changed after this text was read from it. The "
                  "copy can be saved under another name.");
    case AbandonedText::FileGone:
        return tr("Cannot be applied: the file is no longer there. The copy can be saved under "
                  "another name.");
    default:
        return tr("Cannot be applied: %1").arg(text.fault);
    }
}

QString RecoveryDialog::comparison(const AbandonedText& text) const
{
    QString diff = QStringLiteral("");
    if (text.state != AbandonedText::Damaged) {
        diff += Operations::unifiedDiff(text.fileText(), text.copy.text, tr("the file"),
                                        tr("the unsaved text"));
    }
    if (diff.size() > MaxComparison) {
        diff.truncate(MaxComparison);
        diff += QLatin1Char('\n') + tr("The rest is not shown.");
    }
    return diff;
}

}  // namespace App
