#pragma once

#include "zorv_export.h"

#include <QDialog>

#include <memory>

class SnipDlgPrivate;

namespace Zorv {
class Interface;
}

/// Edits a snippet: its fields, its code; saves it, shows what it gives, and writes
/// the file of its texts for translators.
///
/// A dialog that is closed with unsaved changes asks first. It need not be modal, and is
/// deleted by whoever made it. What goes wrong with files is told through `Dialogs`. Main
/// thread only.
class ZORV_EXPORT SnipDlg : public QDialog
{
    Q_OBJECT

public:
    /// Reads the file at `path`, if it is not empty. One that is broken is told and not
    /// shown; of one with a single flaw (a type that is not known) all is shown that can
    /// be. The host outlives the dialog.
    SnipDlg(const Zorv::Interface* host, const QString& path, QWidget* parent = nullptr);
    ~SnipDlg() override;

    /// The snippet as the file holds it, saved or not. Characters that mean something in
    /// XML are escaped, and those that XML has no place for are left out.
    QString toString() const;

    /// True from an edit to the next save, unless the edit is taken back.
    bool hasUnsavedChanges() const;

    /// Asks about unsaved changes, and closes unless the person wants to stay or the save
    /// fails.
    void reject() override;

signals:
    /// The person has pressed the button Insert: the text of the snippet, never empty.
    void insertRequested(const QString& text);

    /// The snippet was written to this file. A list of snippets is brought up to date by
    /// whoever shows it, with `SnippetManager::update()`.
    void saved(const QString& fileName);

private slots:
    void on_saveBut_clicked();
    void on_previewBut_clicked();
    void on_saveTSBut_clicked();
    void on_insertBut_clicked();
    void on_addBut_clicked();
    void on_editBut_clicked();
    void on_delBut_clicked();
    void on_upBut_clicked();
    void on_downBut_clicked();
    void on_fieldList_activated(const QModelIndex& index);

private:
    bool save();
    void moveField(int distance);

    std::unique_ptr<SnipDlgPrivate> d;
};
