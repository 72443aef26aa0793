#include "app/references/renamedialog.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace App {

namespace {

constexpr int Wait = 150;  // milliseconds after a key press
constexpr int MostRows = 2000;

}  // namespace

RenameDialog::RenameDialog(const Operations::Subject& subject, const QString& gameFolder,
                           const Planner& plan, QWidget* parent)
    : QDialog(parent), m_gameFolder(gameFolder), m_planner(plan),
      m_name(new QLineEdit(subject.shown())), m_told(new QLabel), m_lines(new QTreeWidget),
      m_timer(new QTimer(this))
{
    setWindowTitle(tr("Rename everywhere"));
    auto* label = new QLabel(tr("&New name for '%1':").arg(subject.shown()));
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(m_name);
    m_told->setWordWrap(true);
    m_told->setTextFormat(Qt::PlainText);
    m_lines->setHeaderLabels({tr("Place"), tr("Before"), tr("After")});
    m_lines->setAccessibleName(tr("What changes"));
    m_lines->setRootIsDecorated(false);
    m_lines->setUniformRowHeights(true);
    auto* box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_ok = box->button(QDialogButtonBox::Ok);
    m_ok->setText(tr("&Rename"));
    m_name->selectAll();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_name);
    layout->addWidget(m_told);
    layout->addWidget(m_lines, 1);
    layout->addWidget(box);
    const int letter = fontMetrics().averageCharWidth();
    resize(letter * 110, fontMetrics().height() * 24);
    m_timer->setSingleShot(true);
    m_timer->setInterval(Wait);
    connect(m_name, &QLineEdit::textChanged, this, [this] {
        m_ok->setEnabled(false);
        m_timer->start();
    });
    connect(m_timer, &QTimer::timeout, this, &RenameDialog::look);
    connect(box, &QDialogButtonBox::accepted, this, &RenameDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    look();
    m_lines->setColumnWidth(0, letter * 38);
    m_lines->setColumnWidth(1, letter * 34);
}

/// Return may come before the preview. Compute it now, so that its warnings are not skipped.
void RenameDialog::accept()
{
    look();
    if (m_plan.isPossible()) {
        QDialog::accept();
    }
}

void RenameDialog::look()
{
    m_timer->stop();
    m_plan = m_planner(m_name->text());
    m_told->setText((m_plan.conflicts + m_plan.notes).join(QLatin1Char('\n')));
    m_told->setVisible(!m_told->text().isEmpty());
    m_ok->setEnabled(m_plan.isPossible());
    showPlan();
}

void RenameDialog::showPlan()
{
    const QDir game(m_gameFolder);
    m_lines->clear();
    for (const Operations::RenamedLine& line : m_plan.lines.mid(0, MostRows)) {
        const QString file = game.relativeFilePath(line.path);
        const QString place =
            line.line == 0 ? file : tr("%1, line %2").arg(file, QString::number(line.line));
        new QTreeWidgetItem(m_lines, {place, line.before.trimmed(), line.after.trimmed()});
    }
    if (m_plan.lines.size() > MostRows) {
        new QTreeWidgetItem(m_lines, {tr("and %n more", nullptr, m_plan.lines.size() - MostRows)});
    }
}

}  // namespace App
