#pragma once

#include <QImage>
#include <QWidget>

namespace App {

/// A picture as it stands on the stage: a screen of the game with the ground and the axis, scaled
/// to the room that there is.
class StagePreview : public QWidget
{
    Q_OBJECT

public:
    /// The size of the game's screen; an empty one is the usual one.
    explicit StagePreview(QSize screen, QWidget* parent = nullptr);

    /// Shows a picture whose axis is that pixel. A null one is none.
    void setPicture(const QImage& picture, QPoint axis);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize m_screen;
    QImage m_picture;
    QPoint m_axis;
};

}  // namespace App
