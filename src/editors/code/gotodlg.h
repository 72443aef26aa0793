#pragma once

#include "zorv_export.h"

#include <QDialog>

class QSpinBox;

/// Asks for a line number, from 1. Numbers past the end of the text are allowed; the
/// caller decides what they mean.
///
/// The answer counts if `exec()` has returned `QDialog::Accepted`. Main thread only.
class ZORV_EXPORT GoToDlg : public QDialog
{
    Q_OBJECT

public:
    /// Shows `value`, selected.
    GoToDlg(QWidget* parent, int value);
    ~GoToDlg() override;

    /// The number in the field.
    int getValue() const;

private:
    QSpinBox* m_line;
};
