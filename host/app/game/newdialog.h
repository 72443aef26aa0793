#pragma once

#include "operations/create/create.h"
#include "operations/create/templates.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace App {

/// Asks for the name of a new game, character, stage or file, and creates it. Reports an invalid
/// name while the user types. If creating fails, the dialog stays open and shows why.
class NewDialog : public QDialog
{
    Q_OBJECT

public:
    /// `folder` is the folder of games, the game, or for a file the folder of its project.
    /// `mainFile` is the file that may name a new file; empty for none.
    NewDialog(Operations::NewKind kind, const QString& folder, const QString& mainFile,
              QWidget* parent);

    /// The created path: a game folder, a main file, a file.
    QString path() const { return m_path; }

    /// The character created with a game.
    QString character() const;

    /// True if the new file should be added to the main file.
    bool wantsNaming() const;

    void accept() override;

private:
    void addRows(QFormLayout* layout);
    void addPlace(QFormLayout* layout);
    void addTemplates(QFormLayout* layout);
    void check();
    QString suffix() const;
    QString target() const;
    QString fault() const;
    QString templateName() const;
    Operations::Created create() const;

    Operations::NewKind m_kind;
    QString m_mainFile;
    QString m_path;
    QLineEdit* m_name;
    QLineEdit* m_folder;
    QLineEdit* m_character = nullptr;
    QLineEdit* m_stage = nullptr;
    QComboBox* m_suffix = nullptr;
    QComboBox* m_template = nullptr;
    QCheckBox* m_names = nullptr;
    QLabel* m_place;
    QLabel* m_fault;
    QPushButton* m_ok = nullptr;
};

}  // namespace App
