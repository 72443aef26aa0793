#pragma once

#include <QWidget>

namespace Zorv {

class RenderPlace;
class RenderWidget;
class TimeLineWidget;

/// Holds the stage, with the time line below it.
class StagePlace : public QWidget
{
    Q_OBJECT

public:
    StagePlace();

    /// Null without working GL, and before the widget is first shown.
    RenderWidget* stage() const;
    TimeLineWidget* timeLine() const { return m_timeLine; }

    /// The size in the last resize event of the stage; empty before the first.
    QSize stageSize() const { return m_stageSize; }

    void setNotice(const QString& text);
    void setUnusableText(const QString& text);
    void retranslate();

    /// The minimum of the stage only. The time line appears when there is room for it.
    QSize minimumSizeHint() const override;

signals:
    void stageMade();
    void stageResized();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void takeStage();

    RenderPlace* m_place;
    QWidget* m_strip;  // holds the time line, which other code shows and hides
    TimeLineWidget* m_timeLine;
    QSize m_stageSize;
};

}  // namespace Zorv
