#pragma once

#include "zorv_export.h"

#include <QDialog>

#include <memory>

class SnipDlgPrivate;

namespace Zorv {
class Interface;
}

/// Edits a snippet: its fields and its code. Saves it, previews the result, and writes a
/// translation file of its texts.
///
/// Closing with unsaved changes asks first. The dialog need not be modal; its creator deletes it.
/// File errors are reported through `Dialogs`. Main thread only.
class ZORV_EXPORT SnipDlg : public QDialog
{
    Q_OBJECT

public:
    /// Reads the file at `path` unless it is empty. A broken file is reported and not shown. With a
    /// minor flaw, such as an unknown type, everything usable is shown. The host outlives the
    /// dialog.
    SnipDlg(const Zorv::Interface* host, const QString& path, QWidget* parent = nullptr);
    ~SnipDlg() override;

    /// The snippet as file content, saved or not. XML special characters are escaped; characters
    /// that XML does not allow are dropped.
    QString toString() const;

    /// True after an edit until the next save, unless the edit is undone.
    bool hasUnsavedChanges() const;

    /// Asks about unsaved changes, and closes unless the user cancels or saving fails.
    void reject() override;

signals:
    /// The user has pressed Insert; the text of the snippet, never empty.
    void insertRequested(const QString& text);

    /// The snippet was saved to this file. Whoever shows a list of snippets must refresh it with
    /// `SnippetManager::update()`.
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
