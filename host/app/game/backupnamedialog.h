#pragma once

#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace App {

/// Asks for the name of a new backup. Reports while the user types if the name cannot be a folder
/// name.
class BackupNameDialog : public QDialog
{
    Q_OBJECT

public:
    explicit BackupNameDialog(QWidget* parent);

    QString name() const;

    /// True if closed projects should be included too.
    bool wantsAll() const;

private:
    void check();

    QLineEdit* m_name;
    QLabel* m_fault;
    QCheckBox* m_all;
    QPushButton* m_ok;
};

}  // namespace App
