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

/// The library's stage and time line with a tool bar above them, and a line of text in place of
/// all three while there is nothing to show.
class StageView : public QWidget
{
    Q_OBJECT

public:
    /// Takes the widget of the workspace, and the bar. The others outlive it.
    StageView(Zorv::GraphicsWorkspace* workspace, StageRenderer* renderer, QToolBar* bar);

    QToolBar* bar() const { return m_bar; }

    /// What takes the keyboard: the stage, or the time line without one.
    QWidget* focusTarget() const;

    /// Shows in place of the stage what the person can do; an empty text shows the stage.
    void setHint(const QString& text);

    /// With nothing to show there is one line with the hint, and nothing else.
    void setEmpty(bool isEmpty);
    bool isEmpty() const { return m_isEmpty; }

    /// What is wrong with what is shown; stands in the tool bar.
    void setFault(const QString& text);

    QSize sizeHint() const override;

    /// The stage alone: the bar and the time line come where there is room.
    QSize minimumSizeHint() const override;

signals:
    /// The stage has its first size.
    void placed();

    /// The pointer has left the stage.
    void pointerLeft();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    /// Keys of the stage are its own: Escape does not lead from a drawing straight into the text.
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
    QSize m_size;           // of the stage; empty before it has one
    QPoint m_origin;        // as it was put here last
    QPointF m_originShare;  // in shares of the size
};

}  // namespace App
