#include "app/settings/settingsdialog.h"

#include "app/look/language.h"
#include "app/settings/enginespage.h"
#include "app/settings/keyspage.h"
#include "app/settings/settingtable.h"
#include "app/settings/tablepage.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/core/interface.h>

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>

namespace App {

namespace {

constexpr int Margin = 24;  // added to the widest title
const QSize FirstSize(780, 600);

}  // namespace

SettingsDialog::SettingsDialog(ActionRegistry* registry, QWidget* parent)
    : QDialog(parent), m_titles(new QListWidget(this)), m_stack(new QStackedWidget(this)),
      m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Apply |
                                         QDialogButtonBox::Cancel |
                                         QDialogButtonBox::RestoreDefaults,
                                     this))
{
    setObjectName(QStringLiteral("settings"));
    auto* layout = new QGridLayout(this);
    layout->addWidget(m_titles, 0, 0);
    layout->addWidget(m_stack, 0, 1);
    layout->addWidget(m_buttons, 1, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    m_titles->setObjectName(QStringLiteral("pages"));
    for (const SettingPageRow& row : settingPageTable()) {
        addPage(new TablePage(row, this));
    }
    addPage(new EnginesPage(this));
    addPage(new KeysPage(registry, this));
    connect(m_titles, &QListWidget::currentRowChanged, m_stack, &QStackedWidget::setCurrentIndex);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &SettingsDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &SettingsDialog::reject);
    connect(m_buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this,
            &SettingsDialog::apply);
    connect(m_buttons->button(QDialogButtonBox::RestoreDefaults), &QPushButton::clicked, this,
            &SettingsDialog::restoreDefaults);
    followLanguage(this, [this] { retranslate(); });
    m_titles->setCurrentRow(0);
    setEdited(false);
    resize(FirstSize);
}

void SettingsDialog::addPage(SettingsPage* page)
{
    m_pages.append(page);
    m_titles->addItem(QString());
    auto* sight = new QScrollArea;
    sight->setWidgetResizable(true);
    sight->setFrameShape(QFrame::NoFrame);
    sight->setWidget(page);
    m_stack->addWidget(sight);
    page->read();
    connect(page, &SettingsPage::edited, this, [this] { setEdited(true); });
}

void SettingsDialog::retranslate()
{
    setWindowTitle(tr("Options"));
    m_titles->setAccessibleName(tr("Pages of settings"));
    for (int i = 0; i < m_pages.size(); ++i) {
        m_titles->item(i)->setText(m_pages[i]->title());
    }
    m_titles->setFixedWidth(m_titles->sizeHintForColumn(0) + Margin);
    m_buttons->button(QDialogButtonBox::RestoreDefaults)
        ->setToolTip(tr("Shows the defaults of this page"));
}

void SettingsDialog::setEdited(bool isEdited)
{
    m_isEdited = isEdited;
    m_buttons->button(QDialogButtonBox::Apply)->setEnabled(isEdited);
}

bool SettingsDialog::apply()
{
    QStringList errors;
    for (SettingsPage* page : qAsConst(m_pages)) {
        QString error;
        if (!page->write(&error)) {
            errors.append(error);
        }
    }
    if (errors.isEmpty()) {
        setEdited(false);
    }
    emit applied();
    if (!errors.isEmpty()) {
        Zorv::Dialogs::instance()->error(windowTitle(), errors.join(QLatin1Char('\n')));
    }
    return errors.isEmpty();
}

void SettingsDialog::accept()
{
    if (!m_isEdited || apply()) {
        QDialog::accept();
    }
}

void SettingsDialog::restoreDefaults()
{
    m_pages[m_stack->currentIndex()]->restoreDefaults();
}

}  // namespace App
