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

/// The folds on the screen: a box after each folded line, and a preview of the hidden lines while
/// the mouse rests on the box.
class FoldedBlocks : public QObject
{
    Q_OBJECT

public:
    explicit FoldedBlocks(CodeEditorPrivate* editor);

    /// The line whose box is at a point of the viewport, and the box; invalid if there is none.
    QTextBlock blockAt(const QPoint& place, QRect* box = nullptr) const;

    void paintBoxes(QPainter* painter) const;
    void paintPreview(QPainter* painter) const;

    /// Hides the preview, and cancels a pending one.
    void clearPreview();

    /// Call when the mouse moves without a button.
    void mouseMoved(QMouseEvent* event);

    /// A mouse press: the left button opens the fold of a box.
    void mousePressed(QMouseEvent* event);

    /// Watches the edits of one document; null for none. Shows hidden lines that have lost their
    /// head, and lines that an edit joins to a visible line.
    void follow(CodeDocument* document);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    /// Calls `visit` with each visible line of the viewport that hides something, and its box,
    /// until it returns true.
    template <class Visit>
    void visitBoxes(Visit visit) const;

    QRectF previewRect(const QTextBlock& first) const;
    void edited(int from, int removed, int added);
    void levelsChanged(int first, int last, int above);
    void mend();

    CodeEditorPrivate* m_editor;
    QBasicTimer m_previewTimer;
    QBasicTimer m_mendTimer;
    int m_visibleBlock = -1;    ///< first hidden line of the previewed fold
    int m_suggestedBlock = -1;  ///< the same for the fold that waits for the timer
    bool m_isMouseOnBox = false;

    /// Lines whose folds must be checked when Qt has finished the edit.
    struct Stale
    {
        int first = -1;
        int last = -1;
        int above = -1;   ///< one more line
        int joined = -1;  ///< line that other lines were joined to

        bool isEmpty() const { return last < 0 && joined < 0; }
    };
    Stale m_stale;
    int m_blockCount = 0;
    CodeDocument* m_document = nullptr;  ///< valid until the next follow()
};

}  // namespace Zorv
