#pragma once

#include <QImage>
#include <QWidget>

namespace App {

/// Previews a picture on the stage: a game screen with ground and axis, scaled to the available
/// space.
class StagePreview : public QWidget
{
    Q_OBJECT

public:
    /// The size of the game's screen; empty means the usual size.
    explicit StagePreview(QSize screen, QWidget* parent = nullptr);

    /// Shows a picture with its axis at this pixel. A null picture shows none.
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
