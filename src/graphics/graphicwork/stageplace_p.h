#pragma once

#include <QWidget>

class QLabel;
class QStackedWidget;

namespace Zorv {

class RenderWidget;
class TimeLineWidget;

/// Where the stage stands, with the time line below it; what stands there instead is a text.
class StagePlace : public QWidget
{
    Q_OBJECT

public:
    StagePlace();

    /// Null without usable GL, and before it was shown.
    RenderWidget* stage() const { return m_stage; }
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
    void showEvent(QShowEvent* event) override;

private:
    void ensureStage();
    void showPage();

    QStackedWidget* m_pages;
    QLabel* m_notice;
    QLabel* m_unusable;
    QWidget* m_strip;  // holds the time line, which others show and hide
    TimeLineWidget* m_timeLine;
    RenderWidget* m_stage = nullptr;
    QSize m_stageSize;
};

}  // namespace Zorv
