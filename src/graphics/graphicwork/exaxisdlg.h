#pragma once

#include "zorv_export.h"

#include <QDialog>
#include <QPoint>

class QSpinBox;

/// Shows where the extra cross of the stage stands, in model units, and lets the person type
/// another place. It stays open beside the stage, and takes no focus when it comes.
///
/// Main thread only.
class ZORV_EXPORT ExAxisDlg : public QDialog
{
    Q_OBJECT

public:
    explicit ExAxisDlg(QWidget* parent = nullptr);
    ~ExAxisDlg() override;

    /// Opens with that position.
    void display(QPoint position);

    /// Shows a position without telling of it by `changeAxis()`.
    void setPosition(QPoint position);
    QPoint position() const;

    /// What the button that closes the window and Escape both come to.
    void reject() override;

signals:
    /// The person has chosen another position.
    void changeAxis(QPoint position);

    /// The person has closed the dialog.
    void extraAxisClosed();

private:
    void tellChange();

    QSpinBox* m_x;
    QSpinBox* m_y;
    bool m_tells = true;
};
