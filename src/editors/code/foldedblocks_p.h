#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QTextBlock>

class QMouseEvent;
class QPainter;
class QRect;
class QRectF;

namespace Zorv {

class CodeDocument;
class CodeEditorPrivate;

/// The folds of the text on the screen: a box behind the line of each, and a
/// preview of what is hidden while the mouse rests on the box.
class FoldedBlocks : public QObject
{
    Q_OBJECT

public:
    explicit FoldedBlocks(CodeEditorPrivate* editor);

    /// The line whose box is at a place of the viewport, and the box; invalid if
    /// there is none.
    QTextBlock blockAt(const QPoint& place, QRect* box = nullptr) const;

    void paintBoxes(QPainter* painter) const;
    void paintPreview(QPainter* painter) const;

    /// Drops the preview, and one that waits.
    void clearPreview();

    /// The mouse has moved without a button.
    void mouseMoved(QMouseEvent* event);

    /// The left button has been pressed: opens the fold of a box.
    void mousePressed(QMouseEvent* event);

    /// Follows the edits of a document, of which there is one at a time, null for none: what
    /// is hidden without a head is shown again, and so is what an edit joins to a visible
    /// line.
    void follow(CodeDocument* document);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    /// Calls `visit` with the visible lines of the viewport that hide something, and
    /// their boxes, until it gives true.
    template <class Visit>
    void visitBoxes(Visit visit) const;

    QRectF previewRect(const QTextBlock& first) const;
    void edited(int from, int removed, int added);
    void levelsChanged(int first, int last, int above);
    void mend();

    CodeEditorPrivate* m_editor;
    QBasicTimer m_previewTimer;
    QBasicTimer m_mendTimer;
    int m_visibleBlock = -1;    ///< the first hidden line of the fold that is shown
    int m_suggestedBlock = -1;  ///< and of the one that waits for the timer
    bool m_isMouseOnBox = false;

    /// Lines whose folds are to be looked at when Qt is done with the edit.
    struct Stale
    {
        int first = -1;
        int last = -1;
        int above = -1;   ///< one more line
        int joined = -1;  ///< a line that took up others

        bool isEmpty() const { return last < 0 && joined < 0; }
    };
    Stale m_stale;
    int m_blockCount = 0;
    CodeDocument* m_document = nullptr;  ///< lives until the next follow()
};

}  // namespace Zorv
