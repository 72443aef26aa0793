#pragma once

#include <QWidget>

namespace Zorv {

class CodeEditorPrivate;

/// The gutter of a `CodeEditor`: marks, line numbers, folding markers.
class CodeEditorExtraArea : public QWidget
{
    Q_OBJECT

public:
    /// A child of the editor's widget.
    explicit CodeEditorExtraArea(CodeEditorPrivate* editor);

    /// The width that it needs in the editor's font; `markWidth`, if not null, takes
    /// that of the column of marks.
    int neededWidth(int* markWidth = nullptr) const;

    /// Gives the editor the margin that the gutter needs.
    void updateWidth();

    /// Takes its place beside the viewport.
    void place();

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void scrollWithText(const QRect& rect, int dy);
    void handleMouse(QMouseEvent* event);

    CodeEditorPrivate* m_editor;
};

}  // namespace Zorv
