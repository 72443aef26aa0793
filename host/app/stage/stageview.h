#pragma once

#include <QPointF>
#include <QWidget>

class QLabel;
class QToolBar;

namespace Zorv {
class GraphicsWorkspace;
}

namespace App {

class StageRenderer;

/// The library's stage and time line with a tool bar above; replaced by one line of text while
/// there is nothing to show.
class StageView : public QWidget
{
    Q_OBJECT

public:
    /// Takes ownership of the workspace's widget and of the bar. The others outlive the view.
    StageView(Zorv::GraphicsWorkspace* workspace, StageRenderer* renderer, QToolBar* bar);

    QToolBar* bar() const { return m_bar; }

    /// The widget that gets the focus: the stage, or the time line without a stage.
    QWidget* focusTarget() const;

    /// Shows a hint about what the user can do, instead of the stage; an empty text shows the
    /// stage.
    void setHint(const QString& text);

    /// With nothing to show, there is only one line with the hint.
    void setEmpty(bool isEmpty);
    bool isEmpty() const { return m_isEmpty; }

    /// A fault of what is shown; displayed in the tool bar.
    void setFault(const QString& text);

    QSize sizeHint() const override;

    /// The stage alone: tool bar and time line are shown only if there is room.
    QSize minimumSizeHint() const override;

signals:
    /// The stage got its first size.
    void placed();

    /// The pointer left the stage.
    void pointerLeft();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    /// The stage handles its keys itself, so that Escape does not leave a drawing and go straight
    /// to the text.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void retranslate();
    void followStage();
    void keepOrigin(QSize size);
    void placeOrigin(QPoint origin, QSize size);
    void showWhatFits();

    Zorv::GraphicsWorkspace* m_workspace;
    StageRenderer* m_renderer;
    QToolBar* m_bar;
    QLabel* m_line;
    QLabel* m_fault;
    bool m_isEmpty = false;
    QSize m_size;           // of the stage; empty before it has a size
    QPoint m_origin;        // as last set here
    QPointF m_originShare;  // as a fraction of the size
};

}  // namespace App
