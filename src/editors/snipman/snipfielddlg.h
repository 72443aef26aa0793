#pragma once

#include "zorv_export.h"

#include <QDialog>

#include <memory>

class SnipField;
class SnipFieldDlgPrivate;

/// Edits one field of a snippet: its name, title and type, and what a field of that type
/// has at first. Ok needs a name. What was typed for one type stays while the person looks
/// at another. Main thread only.
///
/// It changes no field: the answer is a new one, to be asked for when `exec()` has given
/// `QDialog::Accepted`. Main thread only.
class ZORV_EXPORT SnipFieldDlg : public QDialog
{
    Q_OBJECT

public:
    /// Starts with a text field that has neither name nor title nor value.
    explicit SnipFieldDlg(QWidget* parent);
    ~SnipFieldDlg() override;

    /// Shows a field, which is not kept.
    void setField(const SnipField& field);

    /// A new field of the chosen type, which the caller owns. The lines of a list become
    /// its items; the two texts belong together line by line.
    SnipField* getField() const;

private slots:
    void on_type_currentIndexChanged(int index);
    void on_name_textChanged(const QString& text);

private:
    std::unique_ptr<SnipFieldDlgPrivate> d;
};
