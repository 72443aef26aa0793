#pragma once

#include "zorv_export.h"

#include <QDialog>
#include <QPoint>

class QSpinBox;

/// Shows the position of the extra cross of the stage, in model units, and lets the user type a new
/// one. It stays open beside the stage and does not take the focus when it opens.
class ZORV_EXPORT ExAxisDlg : public QDialog
{
    Q_OBJECT

public:
    explicit ExAxisDlg(QWidget* parent = nullptr);
    ~ExAxisDlg() override;

    /// Opens with that position.
    void display(QPoint position);

    /// Shows a position without emitting `changeAxis()`.
    void setPosition(QPoint position);
    QPoint position() const;

    /// Handles both the close button of the window and Escape.
    void reject() override;

signals:
    /// The user has entered another position.
    void changeAxis(QPoint position);

    /// The user has closed the dialog.
    void extraAxisClosed();

private:
    void tellChange();

    QSpinBox* m_x;
    QSpinBox* m_y;
    bool m_tells = true;
};
