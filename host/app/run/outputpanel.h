#pragma once

#include "app/run/outputtext.h"

#include <QTimer>
#include <QWidget>

#include <deque>

class QPlainTextEdit;
class QToolButton;

namespace App {

/// What the engine prints, as it comes: the last lines of it. However much that
/// is, the window goes on: a little is shown at each turn, and what is too old to
/// stay is not looked at.
class OutputPanel : public QWidget
{
    Q_OBJECT

public:
    static constexpr int MaxLines = 10000;
    static constexpr int MaxCharacters = 1000000;

    explicit OutputPanel(QWidget* parent = nullptr);

    /// Takes what the engine has printed; shown soon.
    void add(const QByteArray& bytes);

    /// Shows a line of the editor's own behind what was printed before.
    void addNote(const QString& text);

    void clear();
    void copyAll() const;

    /// Settings have changed.
    void reconfig();

    /// What is shown.
    QString text() const;

    /// Lines are wider than messages are.
    QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    /// Bytes that were printed, or a note.
    struct Piece
    {
        QByteArray bytes;
        int lines = 0;
        QString note;
    };

    void addPiece(const QByteArray& bytes, int lines);
    Piece takePiece(std::deque<Piece>::iterator at);
    void makeBar();
    void retranslate();
    void showSome();
    void dropOld();
    void append(const QString& text, bool isNote);

    QPlainTextEdit* m_edit;
    QToolButton* m_copy;
    QToolButton* m_clear;
    OutputText m_decoder;
    std::deque<Piece> m_pieces;  ///< not shown yet
    int m_pendingSize = 0;       ///< bytes of them
    int m_pendingLines = 0;
    qint64 m_dropped = 0;  ///< bytes in front of them that nobody will see
    QTimer m_timer;
};

}  // namespace App
