#pragma once

#include "operations/recovery/abandonedtexts.h"

#include <QDialog>
#include <QVector>

class QButtonGroup;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTreeWidget;

namespace App {

/// Shows unsaved texts that a crash left, each beside what its file holds now,
/// and asks what becomes of them. It changes nothing but what the person saves
/// elsewhere.
class RecoveryDialog : public QDialog
{
    Q_OBJECT

public:
    enum Decision { Restore, Discard, Later };

    RecoveryDialog(QWidget* parent, const QList<Operations::AbandonedText>& texts);

    /// For each text, in order; all `Later` if the dialog was given up.
    QVector<Decision> decisions() const;

private:
    void makeList();
    void makeDecisions();
    void makeButtons();
    void showCurrent();
    void decide(Decision decision);
    void restoreAll();
    void saveCurrentElsewhere();
    QString stateText(const Operations::AbandonedText& text) const;
    QString comparison(const Operations::AbandonedText& text) const;
    int current() const;

    QList<Operations::AbandonedText> m_texts;
    QVector<Decision> m_decisions;
    QVector<QString> m_comparisons;  ///< made when they are looked at; null until then
    QTreeWidget* m_list;
    QLabel* m_state;
    QPlainTextEdit* m_diff;
    QButtonGroup* m_choices;
    QPushButton* m_saveAs;
};

}  // namespace App
