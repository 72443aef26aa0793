#pragma once

#include <QTextCursor>
#include <QVector>
#include <QWidget>

namespace Zorv {
class CodeEditor;
}

namespace App {

/// Frames around places in the texts of an editor. They move with the text.
class PlaceMarks : public QWidget
{
    Q_OBJECT

public:
    /// An overlay on the text that ignores the mouse.
    explicit PlaceMarks(Zorv::CodeEditor* editor);

    /// Marks the selection of each cursor, whichever text it belongs to.
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
