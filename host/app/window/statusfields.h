#pragma once

#include "app/window/part.h"

#include <QObject>
#include <QString>

class QFileSystemWatcher;
class QLabel;
class QStatusBar;
class QToolButton;

namespace App {

/// The fields of the status bar: problems of the game, state of the file, its
/// line ends and encoding, place of the cursor. Those that can be clicked are
/// buttons, and reached by the keyboard.
class StatusFields : public QObject, public Part
{
    Q_OBJECT

public:
    /// Lives as a child of the bar.
    explicit StatusFields(QStatusBar* bar);

    void showDocument(Family::FamilyDocument* document) override;
    void gameChanged() override;
    void updateState() override;

    /// Brings state, line ends and encoding up to date.
    void updateFile();

    /// How many problems the game has, in words.
    void setProblems(const QString& text);

    /// Field 0 is the place, 1 how many problems the file has, which is told with those of
    /// the game, 2 the encoding and 3 the place on the stage; any other number shows a passing
    /// text.
    void showField(int field, const QString& text);

    /// Where the pointer is on the stage, in words; empty for elsewhere.
    void setStagePlace(const QString& text);

    /// Shows a text for a few seconds.
    void showPassing(const QString& text);

    /// What a field shows, for tests and helpers of accessibility.
    QString stateText() const;
    QString stageText() const;
    QString lineEndText() const;
    QString encodingText() const;
    QString placeText() const;
    QString problemText() const;
    QString fileProblemText() const { return m_fileProblems; }

signals:
    void problemsClicked();
    void encodingClicked();
    void placeClicked();

private:
    QToolButton* addButton(const char* name);
    void retranslate();
    void updateProblemHelp();
    void watchFolder();

    QStatusBar* m_bar;
    QLabel* m_stage;
    QToolButton* m_problems;
    QLabel* m_state;
    QLabel* m_lineEnds;
    QToolButton* m_encoding;
    QToolButton* m_place;
    QFileSystemWatcher* m_watcher;
    Family::FamilyDocument* m_document = nullptr;
    QString m_fileProblems;
};

}  // namespace App
