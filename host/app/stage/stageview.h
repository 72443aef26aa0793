#pragma once

#include <QPointF>
#include <QWidget>

class QLabel;
class QStackedWidget;
class QToolBar;

namespace Zorv {
class RenderWidget;
class TimeLineWidget;
}  // namespace Zorv

namespace App {

class StageRenderer;

/// The stage of the window with its tool bar and time line.
///
/// The stage is made when the view is shown first: a start without a frame to show pays for no GL.
/// Without usable GL a message in plain words stands in its place, and no GL widget is made; the
/// renderer is there all the same, on no widget.
class StageView : public QWidget
{
    Q_OBJECT

public:
    explicit StageView(QWidget* parent = nullptr);
    ~StageView() override;

    /// False without usable GL, and before the view was shown.
    bool isUsable() const { return m_widget; }

    StageRenderer* renderer() const { return m_renderer; }

    /// Null while `isUsable()` is false.
    Zorv::RenderWidget* stage() const { return m_widget; }
    Zorv::TimeLineWidget* timeLine() const { return m_timeLine; }
    QToolBar* bar() const { return m_bar; }

    /// What takes the keyboard: the stage, or the time line without one.
    QWidget* focusTarget() const;

    /// Shows in place of the stage what the person can do; an empty text shows the stage.
    void setHint(const QString& text);

    /// Puts the origin where it was on a stage of some size, and keeps it there in every other.
    void placeOrigin(QPoint origin, QSize size);

    /// The size that the stage has, or had last; empty before it has one.
    QSize stageSize() const { return m_size; }

    /// With nothing to show there is one line with the hint, and nothing else.
    void setEmpty(bool isEmpty);
    bool isEmpty() const { return m_isEmpty; }

    /// What stands at the end of the tool bar.
    void setInfo(const QString& text);

    QSize sizeHint() const override;

    /// The stage alone: the bar and the time line come where there is room.
    QSize minimumSizeHint() const override;

signals:
    /// The stage has its first size: what was kept of its place can be put back.
    void placed(QSize size);

    /// The pointer has left the stage.
    void pointerLeft();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

    /// Keys of the stage are its own: Escape does not lead from a drawing straight into the text.
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* makeStage();
    void retranslate();
    void keepOrigin(QSize size);
    void showWhatFits();
    void ensureStage();

    StageRenderer* m_renderer;
    Zorv::RenderWidget* m_widget = nullptr;
    Zorv::TimeLineWidget* m_timeLine;
    QToolBar* m_bar;
    QStackedWidget* m_pages;
    QLabel* m_hint;
    QLabel* m_line;  // the same, while nothing else is there
    QLabel* m_info;
    QLabel* m_message = nullptr;  // in place of the stage
    bool m_isEmpty = false;
    QSize m_size;           // of the stage; empty before it has one
    QPoint m_origin;        // as it was put here last
    QPointF m_originShare;  // in shares of the size
};

}  // namespace App
