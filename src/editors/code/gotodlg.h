#pragma once

#include "zorv_export.h"

#include <QDialog>

class QSpinBox;

/// Asks for the number of a line, from 1. Numbers behind the end of the text can be
/// given: what they mean is the caller's to say.
///
/// The answer counts when `exec()` has given `QDialog::Accepted`. Main thread only.
class ZORV_EXPORT GoToDlg : public QDialog
{
    Q_OBJECT

public:
    /// Starts with `value`, selected.
    GoToDlg(QWidget* parent, int value);
    ~GoToDlg() override;

    /// The number in the field.
    int getValue() const;

private:
    QSpinBox* m_line;
};
