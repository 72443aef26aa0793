#pragma once

#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace App {

/// Asks for the name of a new backup; one that cannot be the name of a folder is
/// told while it is typed.
class BackupNameDialog : public QDialog
{
    Q_OBJECT

public:
    explicit BackupNameDialog(QWidget* parent);

    QString name() const;

    /// True if the projects that are not open belong to it too.
    bool wantsAll() const;

private:
    void check();

    QLineEdit* m_name;
    QLabel* m_fault;
    QCheckBox* m_all;
    QPushButton* m_ok;
};

}  // namespace App
