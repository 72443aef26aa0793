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
class ZORV_EXPORT SnipDlg : public QDialog
{
    Q_OBJECT

public:
    /// Reads the file at `path`, if it is not empty; a broken one is told. The host
    /// outlives the dialog.
    SnipDlg(const Zorv::Interface* host, const QString& path, QWidget* parent = nullptr);
    ~SnipDlg() override;

    /// The snippet as the file holds it.
    QString toString() const;

signals:
    /// The person has pressed the button Insert: the text of the snippet, never empty.
    void insertRequested(const QString& text);

private:
    std::unique_ptr<SnipDlgPrivate> d;
};
