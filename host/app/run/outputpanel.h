#pragma once

#include "app/run/outputtext.h"

#include <QTimer>
#include <QWidget>

#include <deque>

class QPlainTextEdit;
class QToolButton;

namespace App {

/// Shows the last lines of the engine's output as they arrive. Large amounts do not block the
/// window: each turn of the event loop shows a limited piece, and output that is already too old to
/// keep is skipped.
class OutputPanel : public QWidget
{
    Q_OBJECT

public:
    static constexpr int MaxLines = 10000;
    static constexpr int MaxCharacters = 1000000;

    explicit OutputPanel(QWidget* parent = nullptr);

    /// Takes output of the engine; shown soon.
    void add(const QByteArray& bytes);

    /// Adds a line of the editor's own after the output so far.
    void addNote(const QString& text);

    void clear();
    void copyAll() const;

    /// Settings have changed.
    void reconfig();

    /// The text shown.
    QString text() const;

    /// Wider than the message panel, because output lines are longer.
    QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    /// Output bytes, or a note.
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
    int m_pendingSize = 0;       ///< bytes in `m_pieces`
    int m_pendingLines = 0;
    qint64 m_dropped = 0;  ///< bytes skipped before them
    QTimer m_timer;
};

}  // namespace App
