#pragma once

#include "operations/rename/renameplan.h"

#include <QDialog>

#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;
class QTimer;
class QTreeWidget;

namespace App {

/// Asks for a new name, and shows what it would change and what prevents it.
class RenameDialog : public QDialog
{
    Q_OBJECT

public:
    using Planner = std::function<Operations::RenamePlan(const QString& name)>;

    /// `plan` is called when the user typed a name.
    RenameDialog(const Operations::Subject& subject, const QString& gameFolder, const Planner& plan,
                 QWidget* parent);

    /// The plan for the name in the field.
    const Operations::RenamePlan& plan() const { return m_plan; }

    void accept() override;

private:
    void look();
    void showPlan();

    QString m_gameFolder;
    Planner m_planner;
    Operations::RenamePlan m_plan;
    QLineEdit* m_name;
    QLabel* m_told;
    QTreeWidget* m_lines;
    QPushButton* m_ok;
    QTimer* m_timer;
};

}  // namespace App
