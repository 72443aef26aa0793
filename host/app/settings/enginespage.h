#pragma once

#include "app/settings/settingspage.h"

#include <zorv/core/enginemodel.h>

#include <QVector>

class QFormLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace App {

class PathField;

/// The settings page of the engines that can run a project.
class EnginesPage : public SettingsPage
{
    Q_OBJECT

public:
    explicit EnginesPage(QWidget* parent = nullptr);

    QString title() const override;
    void read() override;
    bool write(QString* error) override;

    /// The default is no engines: empties the list.
    void restoreDefaults() override;

private:
    QWidget* makeList();
    QWidget* makeForm();
    void retranslate();

    void add();
    void remove();
    void move(int distance);
    void setEngines(const QVector<Zorv::EngineInfo>& engines);
    void showEngine();
    void takeEngine();
    void showProblem();
    void updateButtons();

    QVector<Zorv::EngineInfo> m_engines;
    QListWidget* m_list;
    QPushButton* m_add;
    QPushButton* m_remove;
    QPushButton* m_up;
    QPushButton* m_down;
    QWidget* m_fields;
    QFormLayout* m_form;
    QLineEdit* m_name;
    PathField* m_executable;
    QLineEdit* m_parameters;
    QLabel* m_help;
    PathField* m_icon;
    QLabel* m_problem;
};

}  // namespace App
