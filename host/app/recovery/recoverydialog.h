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

/// Shows unsaved work left by a crash, each compared with the current file, and asks what to do
/// with it. It changes nothing, except that the user can save work elsewhere.
class RecoveryDialog : public QDialog
{
    Q_OBJECT

public:
    enum Decision { Restore, Discard, Later };

    RecoveryDialog(QWidget* parent, const QList<Operations::AbandonedWork>& works);

    /// One for each work, in order; all `Later` if the dialog was cancelled.
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
    QVector<QString> m_comparisons;  ///< made on demand; null until then
    QTreeWidget* m_list;
    QLabel* m_state;
    DiffView* m_diff;
    QButtonGroup* m_choices;
    QPushButton* m_saveAs;
};

}  // namespace App
