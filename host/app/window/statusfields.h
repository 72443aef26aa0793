#pragma once

#include "app/window/part.h"

#include <QObject>
#include <QString>

class QFileSystemWatcher;
class QLabel;
class QStatusBar;
class QToolButton;

namespace App {

/// The fields of the status bar: problems of the game, state of the file, its line endings and
/// encoding, cursor position. Clickable fields are buttons, so that the keyboard reaches them.
class StatusFields : public QObject, public Part
{
    Q_OBJECT

public:
    /// A child of the bar.
    explicit StatusFields(QStatusBar* bar);

    void showDocument(Family::FamilyDocument* document) override;
    void gameChanged() override;
    void updateState() override;

    /// Updates state, line endings and encoding.
    void updateFile();

    /// The number of problems of the game, in words.
    void setProblems(const QString& text);

    /// Field 0 is the cursor position, 1 the number of problems in the file (shown with the
    /// problems of the game), 2 the encoding, 3 the position on the stage. Any other number shows a
    /// temporary message.
    void showField(int field, const QString& text);

    /// Position of the pointer on the stage, in words; empty if it is elsewhere.
    void setStagePlace(const QString& text);

    /// Shows a message for a few seconds.
    void showPassing(const QString& text);

    /// The text of each field, for tests and accessibility tools.
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
