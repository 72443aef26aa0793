#pragma once

#include <QTextCursor>
#include <QVector>
#include <QWidget>

namespace Zorv {
class CodeEditor;
}

namespace App {

/// Frames around places of the texts that an editor shows. They move with the texts.
class PlaceMarks : public QWidget
{
    Q_OBJECT

public:
    /// Lies over the text, and leaves the mouse to it.
    explicit PlaceMarks(Zorv::CodeEditor* editor);

    /// What each cursor has selected is marked, whichever text it belongs to.
    void setPlaces(const QVector<QTextCursor>& places);

    const QVector<QTextCursor>& places() const { return m_places; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QRect frameOf(const QTextCursor& place) const;

    Zorv::CodeEditor* m_editor;
    QVector<QTextCursor> m_places;
};

}  // namespace App
