#include "editors/snipman/snipdlg.h"

#include "core/dialogs/dialogs.h"
#include "editors/snipman/snipdlg_p.h"
#include "editors/snipman/snipfield.h"
#include "editors/snipman/snipfielddlg.h"
#include "editors/snipman/snipfieldsmodel.h"
#include "editors/snipman/snippetfile_p.h"
#include "editors/snipman/snippetmanager.h"

#include <QItemSelectionModel>
#include <QLabel>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>

using Zorv::Dialogs;
using Zorv::SnippetManager;

SnipDlg::SnipDlg(const Zorv::Interface* host, const QString& path, QWidget* parent)
    : QDialog(parent), d(new SnipDlgPrivate(this, host))
{
    d->build();
    d->setSaved(!path.isEmpty() && d->load(path) ? path : QString());
    d->selectRow(0);
    d->updateButtons();
    d->updateHint();
    QMetaObject::connectSlotsByName(this);

    const auto fieldsChanged = [this] {
        d->updateButtons();
        d->updateHint();
        d->updateTitle();
    };
    for (const auto signal : {&SnipFieldsModel::rowsInserted, &SnipFieldsModel::rowsRemoved}) {
        connect(d->fields, signal, this, fieldsChanged);
    }
    connect(d->fields, &SnipFieldsModel::rowsMoved, this, fieldsChanged);
    connect(d->fields, &SnipFieldsModel::dataChanged, this, fieldsChanged);
    connect(d->fieldList->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this] { d->updateButtons(); });
    connect(d->code, &QPlainTextEdit::textChanged, this, [this] { d->updateTitle(); });
}

SnipDlg::~SnipDlg() = default;

QString SnipDlg::toString() const
{
    return d->toString();
}

bool SnipDlg::hasUnsavedChanges() const
{
    return toString() != d->savedText;
}

void SnipDlg::reject()
{
    if (hasUnsavedChanges()) {
        const Dialogs::Button answer = Dialogs::instance()->question(
            tr("Save code snippet"), tr("Do you want to save the changes of the snippet?"),
            Dialogs::Yes | Dialogs::No | Dialogs::Cancel, Dialogs::Yes);
        if (answer == Dialogs::Cancel || (answer == Dialogs::Yes && !save())) {
            return;
        }
    }
    QDialog::reject();
}

bool SnipDlg::save()
{
    const QString fileName =
        Zorv::getSaveFileName(this, tr("Save code snippet"), d->startPath(".xml"),
                              tr("Extensible Markup Language (*.xml)"));
    if (fileName.isEmpty() || !Zorv::writeSnippetText(fileName, toString())) {
        return false;
    }
    d->setSaved(fileName);
    emit saved(fileName);
    return true;
}

void SnipDlg::on_saveBut_clicked()
{
    save();
}

void SnipDlg::on_previewBut_clicked()
{
    const QString text = d->result();
    if (!text.isEmpty()) {
        d->preview->setPlainText(text);
        d->preview->show();
        d->previewLabel->show();
    }
}

void SnipDlg::on_saveTSBut_clicked()
{
    const QString fileName = Zorv::getSaveFileName(
        this, tr("Save for translation"), d->startPath(".ts"), tr("Qt translation sources (*.ts)"));
    if (!fileName.isEmpty() && d->host) {
        SnippetManager::genTS(*d->host, fileName, toString());
    }
}

void SnipDlg::on_insertBut_clicked()
{
    const QString text = d->result();
    if (!text.isEmpty()) {
        emit insertRequested(text);
        reject();
    }
}

void SnipDlg::on_addBut_clicked()
{
    SnipFieldDlg dialog(this);
    if (dialog.exec() == QDialog::Accepted) {
        d->fields->add(dialog.getField());
        d->selectRow(d->fields->rowCount() - 1);
    }
}

void SnipDlg::on_editBut_clicked()
{
    on_fieldList_activated(d->fieldList->currentIndex());
}

void SnipDlg::on_fieldList_activated(const QModelIndex& index)
{
    const SnipField* field = d->fields->at(unsigned(index.row()));
    if (!field) {
        return;
    }
    SnipFieldDlg dialog(this);
    dialog.setField(*field);
    if (dialog.exec() == QDialog::Accepted) {
        d->fields->replace(unsigned(index.row()), dialog.getField());
    }
}

void SnipDlg::on_delBut_clicked()
{
    d->fields->remove(unsigned(d->currentRow()));
}

void SnipDlg::on_upBut_clicked()
{
    moveField(-1);
}

void SnipDlg::on_downBut_clicked()
{
    moveField(1);
}

void SnipDlg::moveField(int distance)
{
    const int row = d->currentRow();
    d->fields->move(unsigned(row), unsigned(row + distance));
    d->updateButtons();
}
