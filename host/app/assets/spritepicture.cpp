#include "app/assets/spritepicture.h"

#include "app/assets/chequer.h"
#include "app/look/language.h"
#include "app/look/theme.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace App {

namespace {

constexpr int Margin = 6;
constexpr int MaxZoom = 8;
constexpr int CrossArm = 7;

}  // namespace

SpritePicture::SpritePicture(QWidget* parent) : QWidget(parent)
{
    followLanguage(this, [this] { setAccessibleName(tr("The selected sprite")); });
}

void SpritePicture::setSprite(const QImage& image, QPoint axis, bool broken)
{
    m_image = image;
    m_axis = axis;
    m_isBroken = broken;
    update();
}

QSize SpritePicture::sizeHint() const
{
    return {240, 150};
}

QSize SpritePicture::minimumSizeHint() const
{
    return {80, 80};
}

/// Whole multiples keep pixels alike; only what is too large is made smaller.
double SpritePicture::zoom() const
{
    const double fit = std::min(double(width() - 2 * Margin) / m_image.width(),
                                double(height() - 2 * Margin) / m_image.height());
    return fit < 1 ? std::max(fit, 0.01) : std::min(std::floor(fit), double(MaxZoom));
}

QRectF SpritePicture::imageRect() const
{
    const QSizeF size = QSizeF(m_image.size()) * zoom();
    return {std::round((width() - size.width()) / 2), std::round((height() - size.height()) / 2),
            size.width(), size.height()};
}

QPoint SpritePicture::pixelAt(QPoint place) const
{
    if (m_image.isNull()) {
        return {-1, -1};
    }
    const QPointF offset = QPointF(place) - imageRect().topLeft();
    return {int(std::floor(offset.x() / zoom())), int(std::floor(offset.y() / zoom()))};
}

void SpritePicture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (m_image.isNull()) {
        painter.setPen(m_isBroken ? Theme::colour(Theme::ErrorText)
                                  : palette().color(QPalette::Disabled, QPalette::Text));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                         m_isBroken ? tr("The pixels of this sprite are broken.")
                                    : tr("No sprite"));
        return;
    }
    const QRectF place = imageRect();
    drawChequer(&painter, place);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, zoom() < 1);
    painter.drawImage(place, m_image);
    // Seen on any colour: a light cross with a dark rim.
    const QPointF axis = place.topLeft() + QPointF(m_axis) * zoom();
    const QLineF lines[] = {{axis - QPointF(CrossArm, 0), axis + QPointF(CrossArm, 0)},
                            {axis - QPointF(0, CrossArm), axis + QPointF(0, CrossArm)}};
    painter.setPen(QPen(Qt::black, 3));
    painter.drawLines(lines, 2);
    painter.setPen(QPen(Qt::white, 1));
    painter.drawLines(lines, 2);
}

bool SpritePicture::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    const QPoint pixel = pixelAt(help->pos());
    QToolTip::showText(help->globalPos(), m_image.valid(pixel) ? pixelText(pixel) : QString(),
                       this);
    return true;
}

QString SpritePicture::pixelText(QPoint pixel) const
{
    const QColor colour = m_image.pixelColor(pixel);
    const QString place =
        QStringLiteral("%1,%2").arg(QString::number(pixel.x()), QString::number(pixel.y()));
    if (m_image.format() == QImage::Format_Indexed8) {
        return tr("%1: colour %2, %3")
            .arg(place, QString::number(m_image.pixelIndex(pixel)), colour.name());
    }
    return tr("%1: %2, alpha %3").arg(place, colour.name(), QString::number(colour.alpha()));
}

}  // namespace App
