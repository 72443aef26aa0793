#include "core/dialogs/dialogs.h"
#include "core/interface.h"
#include "image/canvas/imagecanvas.h"
#include "image/canvas/imageselection.h"
#include "image/spriteeditor_p.h"

#include <QRegularExpression>

#include <algorithm>

namespace Zorv {

namespace {

const int angles[] = {90, 180, 270};

/// The field of the status bar that has places of what is drawn.
constexpr int PlaceField = 3;

QString colorText(QRgb color)
{
    const QString text = QColor(color).name();
    return qAlpha(color) == 255
               ? text
               : SpriteEditor::tr("%1, alpha %2").arg(text, QString::number(qAlpha(color)));
}

}  // namespace

/// Scaled to the nearest pixels, which adds no colours.
void SpriteEditorPrivate::resize()
{
    static const QRegularExpression sides(QStringLiteral("^\\s*(\\d{1,6})\\D+(\\d{1,6})\\s*$"));
    const QString title = SpriteEditor::tr("Resize");
    QString label = SpriteEditor::tr("Width and height in pixels:");
    QString text = QStringLiteral("%1 x %2").arg(QString::number(canvas()->size().width()),
                                                 QString::number(canvas()->size().height()));
    for (;;) {
        const std::optional<QString> answer = Dialogs::instance()->askText(title, label, text);
        if (!answer || !hasCanvas()) {
            return;
        }
        const QRegularExpressionMatch found = sides.match(*answer);
        if (found.hasMatch()) {
            endPreview();
            canvas()->resize({found.captured(1).toInt(), found.captured(2).toInt()},
                             ImageResizeFilter::Nearest);
            return;
        }
        text = *answer;
        label = SpriteEditor::tr("Two numbers are needed, as in \"64 x 48\". Width and height in "
                                 "pixels:");
    }
}

void SpriteEditorPrivate::crop()
{
    endPreview();
    canvas()->crop();
}

void SpriteEditorPrivate::imgRotate()
{
    const QStringList choices{SpriteEditor::tr("90 degrees clockwise"),
                              SpriteEditor::tr("180 degrees"),
                              SpriteEditor::tr("90 degrees counterclockwise")};
    const int chosen = Dialogs::instance()->choose(
        SpriteEditor::tr("Rotate"), SpriteEditor::tr("Turn all layers by:"), choices, 0);
    if (chosen >= 0 && chosen < choices.size() && hasCanvas()) {
        endPreview();
        canvas()->rotateAll(float(angles[chosen]), ImageResizeFilter::Nearest);
    }
}

void SpriteEditorPrivate::imgFlipH()
{
    canvas()->flip(true, false);
}

void SpriteEditorPrivate::imgFlipV()
{
    canvas()->flip(false, true);
}

void SpriteEditorPrivate::imgViewOrig(bool isOn)
{
    renderer->setVisibility(isOn, true);
}

void SpriteEditorPrivate::selectIn(const QImage& mask)
{
    if (hasCanvas()) {
        canvas()->setSelection(mask);
    }
}

void SpriteEditorPrivate::selAll()
{
    ImageSelection all;
    all.setSize(canvas()->size());
    selectIn(all.mask());
}

/// No selection is one of everything: all can be painted on again.
void SpriteEditorPrivate::selNone()
{
    selAll();
}

void SpriteEditorPrivate::selInv()
{
    QImage mask = canvas()->selection()->mask().copy();
    for (int y = 0; y < mask.height(); ++y) {
        uchar* line = mask.scanLine(y);
        std::transform(line, line + mask.width(), line,
                       [](uchar pixel) { return uchar(pixel == 0); });
    }
    selectIn(mask);
}

/// "12, 34: color 5, #c0a080"
void SpriteEditorPrivate::showPlace(const QPoint& pixel, int index, QRgb color)
{
    QString text =
        QStringLiteral("%1, %2").arg(QString::number(pixel.x()), QString::number(pixel.y()));
    if (QRect(QPoint(), canvas()->size()).contains(pixel)) {
        text +=
            QLatin1String(": ") +
            (index < 0
                 ? colorText(color)
                 : SpriteEditor::tr("color %1, %2").arg(QString::number(index), colorText(color)));
    }
    host->showStatus(PlaceField, text);
}

void SpriteEditorPrivate::hidePlace()
{
    host->showStatus(PlaceField, {});
}

}  // namespace Zorv
