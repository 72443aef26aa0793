#include "animation/timeline/timeline.h"
#include "animation/timeline/timelinewidget.h"
#include "animation/timeline/timelinewidget_p.h"

#include <QFontInfo>
#include <QLinearGradient>
#include <QPainter>

#include <algorithm>

namespace Zorv {

namespace {

constexpr int LongTick = 10;
constexpr int ShortTick = 6;
constexpr int NumberWidth = 40;
constexpr int NumberEvery = 5;
constexpr int SmallestNumber = 7;
constexpr int NameMargin = 8;
constexpr double BandOpacity = 0.33;
constexpr int CursorWidth = 2;

/// The font, reduced if necessary so that the number fits.
QFont numberFont(const QFont& font, unsigned int number, const QSize& place)
{
    const QFontMetrics metrics(font);
    const double width = metrics.horizontalAdvance(QString::number(number));
    const double share =
        std::min(place.width() / width, place.height() / double(metrics.capHeight()));
    if (share >= 1) {
        return font;
    }
    QFont smaller = font;
    smaller.setPixelSize(std::max(int(QFontInfo(font).pixelSize() * share), SmallestNumber));
    return smaller;
}

}  // namespace

QColor TimeLinePrivate::borderColor() const
{
    return owner->palette().color(QPalette::Window).darker(300);
}

void TimeLinePrivate::paint(QPainter& painter) const
{
    if (hasWholePages) {
        painter.setClipRect(0, 0, leftOf(visibleTicks) + 1, owner->height());
    }
    paintScale(painter);
    for (int index = 0; index < timeLines.size(); ++index) {
        if (HeaderHeight + RowHeight * index > owner->height()) {
            break;
        }
        paintName(painter, index);
        paintCells(painter, index);
    }
    editing.paint(painter);
    paintCursor(painter);
}

void TimeLinePrivate::paintScale(QPainter& painter) const
{
    painter.setPen(owner->palette().color(QPalette::Text));
    painter.setFont(numberFont(owner->font(), firstTick + visibleTicks,
                               {NumberEvery * TickWidth - 3, HeaderHeight - LongTick}));
    for (unsigned int i = 0; i < visibleTicks; ++i) {
        const unsigned int tick = firstTick + i;
        const int x = leftOf(i) + TickWidth / 2;
        const bool isLong = tick % NumberEvery == 0;
        painter.drawLine(x, HeaderHeight - (isLong ? LongTick : ShortTick), x, HeaderHeight - 1);
        if (isLong) {
            const QRect place(x - NumberWidth / 2, 0, NumberWidth, HeaderHeight - LongTick);
            painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, QString::number(tick));
        }
    }
    painter.setFont(owner->font());
}

void TimeLinePrivate::paintName(QPainter& painter, int index) const
{
    const QRect place(NameMargin, HeaderHeight + 2 + RowHeight * index, LabelWidth - 2 * NameMargin,
                      RowHeight - 4);
    painter.setPen(owner->palette().color(QPalette::Text));
    painter.drawText(place, Qt::AlignCenter,
                     painter.fontMetrics().elidedText(timeLines.at(index)->name(), Qt::ElideRight,
                                                      place.width()));
}

void TimeLinePrivate::paintCells(QPainter& painter, int index) const
{
    const QPen border(borderColor());
    TimeLine::Marker marker;
    for (unsigned int i = 0; i < visibleTicks; ++i) {
        const QRect cell(leftOf(i), HeaderHeight + RowHeight * index, TickWidth, RowHeight);
        painter.setBrush(Qt::NoBrush);
        if (timeLines.at(index)->markerAtTick(firstTick + i, marker)) {
            paintBand(painter, cell, marker.color, marker.length);
            painter.setBrush(marker.color);
        }
        painter.setPen(border);
        painter.drawRect(cell);
    }
}

void TimeLinePrivate::paintBand(QPainter& painter, const QRect& cell, const QColor& color,
                                int length) const
{
    if (length <= 1) {
        return;
    }
    // The gradient spans the whole cell, which can extend far beyond the strip.
    const int left = cell.left() + TickWidth;
    const double width = (length - 1.0) * TickWidth;
    QLinearGradient gradient(left, 0, left + width, 0);
    gradient.setColorAt(0, owner->palette().color(QPalette::Window));
    gradient.setColorAt(1, color);
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.setOpacity(BandOpacity);
    painter.drawRect(left, cell.top(), int(std::min<double>(width, owner->width())), RowHeight);
    painter.setOpacity(1);
}

void TimeLinePrivate::paintCursor(QPainter& painter) const
{
    const qint64 left = placeOf(currentTick) + (TickWidth - CursorWidth) / 2;
    // A strip too narrow for a tick never scrolls to the cursor, so it may be outside.
    if (left >= LabelWidth && left < owner->width()) {
        // The dark border keeps yellow visible on a light background.
        const QRect bar(int(left), 0, CursorWidth, owner->height());
        painter.fillRect(bar.adjusted(-1, 0, 1, 0), borderColor());
        painter.fillRect(bar, Qt::yellow);
    }
}

}  // namespace Zorv
