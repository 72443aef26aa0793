#pragma once

#include "zorv_export.h"

#include <QDialog>

#include <memory>

class SnipField;
class SnipFieldDlgPrivate;

/// Edits one field of a snippet: name, title, type and default value. OK needs a name. Input for
/// one type is kept while the user looks at another type. Main thread only.
///
/// It changes no field. After `exec()` has returned `QDialog::Accepted`, `getField()` returns a new
/// one.
class ZORV_EXPORT SnipFieldDlg : public QDialog
{
    Q_OBJECT

public:
    /// Starts with a text field without name, title and value.
    explicit SnipFieldDlg(QWidget* parent);
    ~SnipFieldDlg() override;

    /// Shows a field; keeps no reference to it.
    void setField(const SnipField& field);

    /// A new field of the chosen type, owned by the caller. Each line of a list is an item; values
    /// and titles correspond line by line.
    SnipField* getField() const;

private slots:
    void on_type_currentIndexChanged(int index);
    void on_name_textChanged(const QString& text);

private:
    std::unique_ptr<SnipFieldDlgPrivate> d;
};
