#pragma once

#include <QObject>
#include <QString>

class QFileSystemWatcher;
class QLabel;
class QStatusBar;
class QToolButton;

namespace Family {
class FamilyDocument;
}

namespace App {

/// The fields of the status bar: problems of the project, state of the file, its
/// line ends and encoding, place of the cursor. Those that can be clicked are
/// buttons, and reached by the keyboard.
class StatusFields : public QObject
{
    Q_OBJECT

public:
    /// Lives as a child of the bar.
    explicit StatusFields(QStatusBar* bar);

    /// The document in front, or null.
    void setDocument(Family::FamilyDocument* document);

    /// Brings state, line ends and encoding up to date.
    void updateFile();

    /// Line and column from 0.
    void setPlace(int line, int column);

    /// Field 1 are the problems, 2 is the encoding; any other number shows a
    /// passing text.
    void showField(int field, const QString& text);

    /// What a field shows, for tests and helpers of accessibility.
    QString stateText() const;
    QString lineEndText() const;
    QString encodingText() const;
    QString placeText() const;
    QString problemText() const;

signals:
    void problemsClicked();
    void encodingClicked();
    void placeClicked();

private:
    QToolButton* addButton(const char* name);
    void retranslate();
    void showPlace();
    void watchFolder();

    QStatusBar* m_bar;
    QToolButton* m_problems;
    QLabel* m_state;
    QLabel* m_lineEnds;
    QToolButton* m_encoding;
    QToolButton* m_place;
    QFileSystemWatcher* m_watcher;
    Family::FamilyDocument* m_document = nullptr;
    int m_line = 0;
    int m_column = 0;
};

}  // namespace App
