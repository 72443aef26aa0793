#pragma once

#include <QObject>
#include <QTextBlock>

class QMouseEvent;
class QPainter;
class QRect;

namespace Zorv {

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

    /// An edit may have taken the head of a fold: what is hidden without one is
    /// shown again.
    void mend(int from, int added);

private:
    CodeEditorPrivate* m_editor;
};

}  // namespace Zorv
