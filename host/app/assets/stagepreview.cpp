#include "app/assets/stagepreview.h"

#include <zorv/core/interface.h>

#include <QPainter>

namespace App {

namespace {

constexpr QSize UsualScreen{384, 216};
constexpr double GroundAt = 0.86;  // as a fraction of the height
constexpr int CrossArm = 6;

}  // namespace

StagePreview::StagePreview(QSize screen, QWidget* parent)
    : QWidget(parent), m_screen(screen.isEmpty() ? UsualScreen : screen)
{
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setSizePolicy(policy);
    const int least = Zorv::Interface::instance()->pixels(120);
    setMinimumSize(least, least);
}

void StagePreview::setPicture(const QImage& picture, QPoint axis)
{
    m_picture = picture;
    m_axis = axis;
    update();
}

QSize StagePreview::sizeHint() const
{
    const QSize most = QSize(384, 240) * Zorv::Interface::instance()->pixels(100) / 100;
    return m_screen.scaled(most, Qt::KeepAspectRatio);
}

void StagePreview::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const double scale =
        qMin(double(width()) / m_screen.width(), double(height()) / m_screen.height());
    painter.translate((width() - m_screen.width() * scale) / 2,
                      (height() - m_screen.height() * scale) / 2);
    painter.scale(scale, scale);
    const QRect screen(QPoint(), m_screen);
    const QPoint origin(m_screen.width() / 2, int(m_screen.height() * GroundAt));
    painter.setClipRect(screen);
    painter.fillRect(screen, palette().color(QPalette::Base));
    painter.fillRect(screen.adjusted(0, origin.y(), 0, 0), palette().color(QPalette::Button));
    QPen pen(palette().color(QPalette::Mid), 0);
    painter.setPen(pen);
    painter.drawRect(screen.adjusted(0, 0, -1, -1));
    painter.drawLine(0, origin.y(), m_screen.width(), origin.y());
    painter.drawImage(origin - m_axis, m_picture);
    pen.setColor(palette().color(QPalette::Highlight));
    painter.setPen(pen);
    const QPoint across(CrossArm, 0);
    const QPoint down(0, CrossArm);
    painter.drawLine(origin - across, origin + across);
    painter.drawLine(origin - down, origin + down);
}

}  // namespace App
