#pragma once

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace Family {
class FamilyAnimations;
}

namespace App {

/// Asks for the identifier of a new animation and for its place among the others. What cannot name
/// one is told while it is typed.
class NewAnimationDialog : public QDialog
{
    Q_OBJECT

public:
    /// Offers the next free number and a place. The list outlives the dialog.
    NewAnimationDialog(const Family::FamilyAnimations* list, int position, QWidget* parent);

    QString identifier() const;

    /// The animation that it is to stand in front of; their number for the end.
    int position() const;

private:
    void check();

    const Family::FamilyAnimations* m_list;
    QLineEdit* m_identifier;
    QComboBox* m_place;
    QLabel* m_fault;
    QPushButton* m_ok;
};

}  // namespace App
