#pragma once

#include <QWidget>

namespace Zorv {
class TimeLineWidget;
}

namespace App {

/// The place of a time line in a layout. Gives it pages of whole tens of ticks, so that the present
/// tick is always in sight, and leaves the rest of the width free at the right.
class TimeLinePlace final : public QWidget
{
    Q_OBJECT

public:
    /// Becomes the parent of the time line.
    explicit TimeLinePlace(Zorv::TimeLineWidget* timeLine, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    Zorv::TimeLineWidget* m_timeLine;
};

}  // namespace App
