#include "app/actions/keysdialog.h"

#include "app/actions/actionlist.h"
#include "app/actions/actionregistry.h"
#include "app/actions/keysheet.h"
#include "app/look/language.h"

#include <zorv/core/dialogs/dialogs.h>

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

namespace App {

namespace {

const QSize FirstSize(560, 520);

}  // namespace

KeysDialog::KeysDialog(const ActionRegistry* registry, QWidget* parent)
    : QDialog(parent), m_registry(registry), m_list(new ActionList(registry, this)),
      m_field(new QLineEdit), m_view(new QTreeView)
{
    m_field->setClearButtonEnabled(true);
    m_list->setOnlyWithKeys(true);
    makeView();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_field);
    layout->addWidget(m_view);
    layout->addWidget(makeButtons());
    resize(FirstSize);
    followLanguage(this, [this] {
        setWindowTitle(tr("Keys"));
        m_field->setPlaceholderText(tr("Type a part of an action"));
        m_field->setAccessibleName(tr("Search"));
        m_view->setAccessibleName(tr("Keys"));
    });
    connect(m_field, &QLineEdit::textChanged, m_list, &ActionList::setFilter);
}

void KeysDialog::makeView()
{
    m_view->setModel(m_list);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    // The menu column first: the list is in menu order.
    m_view->header()->moveSection(ActionList::MenuColumn, 0);
}

QWidget* KeysDialog::makeButtons()
{
    auto* box = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton* pdf = box->addButton(QString(), QDialogButtonBox::ActionRole);
    QPushButton* html = box->addButton(QString(), QDialogButtonBox::ActionRole);
    pdf->setObjectName(QStringLiteral("save_pdf"));
    html->setObjectName(QStringLiteral("save_html"));
    // Return in the search field must not press a button and save.
    pdf->setAutoDefault(false);
    html->setAutoDefault(false);
    followLanguage(box, [pdf, html] {
        pdf->setText(tr("Save as &PDF..."));
        html->setText(tr("Save as &HTML..."));
    });
    connect(pdf, &QPushButton::clicked, this, &KeysDialog::savePdf);
    connect(html, &QPushButton::clicked, this, &KeysDialog::saveHtml);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return box;
}

void KeysDialog::savePdf()
{
    save(tr("PDF document (*.pdf)"), QStringLiteral(".pdf"), saveKeySheetAsPdf);
}

void KeysDialog::saveHtml()
{
    save(tr("HTML page (*.html)"), QStringLiteral(".html"), saveKeySheetAsHtml);
}

void KeysDialog::save(const QString& filter, const QString& extension, Writer write)
{
    auto* dialogs = Zorv::Dialogs::instance();
    QString name = dialogs->saveFileName(this, tr("Save the keys"), {}, filter);
    if (name.isEmpty()) {
        return;
    }
    if (!name.endsWith(extension, Qt::CaseInsensitive)) {
        name += extension;
    }
    QString error;
    if (!write(m_registry, name, &error)) {
        dialogs->error(tr("Save the keys"), error);
    }
}

void showKeys(const ActionRegistry* registry, QWidget* window)
{
    auto* dialog = new KeysDialog(registry, window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

}  // namespace App
