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

/// Asks for the identifier of a new animation and its position in the list. Reports an invalid
/// identifier while the user types.
class NewAnimationDialog : public QDialog
{
    Q_OBJECT

public:
    /// Suggests the next free number and a position. The list outlives the dialog.
    NewAnimationDialog(const Family::FamilyAnimations* list, int position, QWidget* parent);

    QString identifier() const;

    /// The index of the animation before which it is inserted; the number of animations means the
    /// end.
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
