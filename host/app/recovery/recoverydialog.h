#pragma once

#include "operations/recovery/abandonedwork.h"

#include <QDialog>
#include <QVector>

class QButtonGroup;
class QLabel;
class QPushButton;
class QTreeWidget;

namespace App {

class DiffView;

/// Shows unsaved work that a crash left, each beside what its file holds now,
/// and asks what becomes of them. It changes nothing but what the person saves
/// elsewhere.
class RecoveryDialog : public QDialog
{
    Q_OBJECT

public:
    enum Decision { Restore, Discard, Later };

    RecoveryDialog(QWidget* parent, const QList<Operations::AbandonedWork>& works);

    /// For each of them, in order; all `Later` if the dialog was given up.
    QVector<Decision> decisions() const;

private:
    void makeList();
    void makeDecisions();
    void makeButtons();
    void showCurrent();
    void decide(Decision decision);
    void restoreAll();
    void saveCurrentElsewhere();
    QString stateText(const Operations::AbandonedWork& work) const;
    QString comparison(const Operations::AbandonedWork& work) const;
    int current() const;

    QList<Operations::AbandonedWork> m_works;
    QVector<Decision> m_decisions;
    QVector<QString> m_comparisons;  ///< made when they are looked at; null until then
    QTreeWidget* m_list;
    QLabel* m_state;
    DiffView* m_diff;
    QButtonGroup* m_choices;
    QPushButton* m_saveAs;
};

}  // namespace App
