#pragma once

#include <QWidget>

namespace Zorv {

class RenderPlace;
class RenderWidget;
class TimeLineWidget;

/// Where the stage stands, with the time line below it.
class StagePlace : public QWidget
{
    Q_OBJECT

public:
    StagePlace();

    /// Null without usable GL, and before it was shown.
    RenderWidget* stage() const;
    TimeLineWidget* timeLine() const { return m_timeLine; }

    /// As the stage has heard of it last; empty before.
    QSize stageSize() const { return m_stageSize; }

    void setNotice(const QString& text);
    void setUnusableText(const QString& text);
    void retranslate();

    /// The stage alone: the time line comes where there is room.
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
    QWidget* m_strip;  // holds the time line, which others show and hide
    TimeLineWidget* m_timeLine;
    QSize m_stageSize;
};

}  // namespace Zorv
