#pragma once

#include "editors/code/numberpainter_p.h"

#include <QBasicTimer>
#include <QIcon>
#include <QTextCursor>
#include <QWidget>

#include <array>

namespace Zorv {

class CodeEditorPrivate;

/// The gutter of a `CodeEditor`: marks, line numbers, folding markers.
class CodeEditorExtraArea : public QWidget
{
    Q_OBJECT

public:
    /// A child of the editor's widget.
    explicit CodeEditorExtraArea(CodeEditorPrivate* editor);

    /// The width that the gutter needs in the editor's font. `markWidth`, if not null,
    /// receives the width of the mark column.
    int neededWidth(int* markWidth = nullptr) const;

    /// Sets the editor's margin to the needed width, and moves the gutter there.
    void updateWidth();

    /// Moves the gutter beside the viewport.
    void place();

    /// Repaints the strips of some lines; an invalid block stands for the end of the
    /// view.
    void updateLines(const QTextBlock& first, const QTextBlock& last);

    /// Ends a drag, because the text has been replaced.
    void endDrag();

    QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void scrollWithText(const QRect& rect, int dy);
    bool isCursor(const QRect& rect) const;

    int foldWidth() const;
    QRect foldBox() const;
    bool isInFoldColumn(int x) const;
    QTextCursor cursorAt(int y) const;

    void paintLine(QPainter* painter, const QTextBlock& block, const QRect& strip) const;
    void paintRange(QPainter* painter, const QTextBlock& block, const QRect& strip) const;
    void paintFoldMarker(QPainter* painter, const QTextBlock& block, const QRect& strip) const;
    void paintMark(QPainter* painter, const QTextBlock& block, const QRect& strip) const;
    void paintNumber(QPainter* painter, const QTextBlock& block, const QRect& strip) const;
    bool isStrong(const QTextBlock& block) const;
    QColor ground() const;  ///< background of marks and numbers

    void moved(const QPoint& place);
    void pressed(const QPoint& place);
    void toggleFold(const QPoint& place);
    void dragTo(int y);
    void showTip(const QPoint& place, const QPoint& globalPlace);

    CodeEditorPrivate* m_editor;
    std::array<QIcon, 3> m_markIcons;  ///< index: message type
    QIcon m_contractIcon;
    QIcon m_expandIcon;
    NumberPainter m_numbers;
    QBasicTimer m_autoScrollTimer;
    int m_selectionAnchorLine = -1;  ///< line where the drag began
    int m_markedLine = -1;           ///< last line clicked in the mark column
};

}  // namespace Zorv
