#include "family/import/sheet.h"

#include <QCoreApplication>
#include <QImage>
#include <QTransform>

namespace Family {

namespace {

/// Translation context of this file.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Family::Sheet)
};

}  // namespace

bool isSamePicture(const SheetFrame& a, const SheetFrame& b)
{
    return a.page == b.page && a.rect == b.rect && a.isTurned == b.isTurned &&
           a.offset == b.offset && a.original == b.original && a.hasAxis == b.hasAxis &&
           a.axis == b.axis;
}

QImage pictureOf(const QImage& page, const SheetFrame& frame)
{
    if (frame.rect.isEmpty()) {
        return {};
    }
    const QImage cut = page.copy(frame.rect);
    return frame.isTurned ? cut.transformed(QTransform().rotate(-90)) : cut;
}

void loseOutsiders(Sheet* sheet, const QVector<QSize>& pages)
{
    int count = 0;
    QString first;
    for (int i = 0; i < sheet->frames.size(); ++i) {
        SheetFrame& frame = sheet->frames[i];
        const QRect page(QPoint(), pages.value(frame.page));
        if (frame.rect.isEmpty() || page.contains(frame.rect)) {
            continue;
        }
        frame.isLost = true;
        if (++count == 1) {
            first = frame.name.isEmpty() ? QString::number(i) : frame.name;
        }
    }
    if (count > 0) {
        sheet->warnings.append(
            Text::tr("%n frame(s) lie outside of the picture and are left out, first of all '%1'. "
                     "Is it the picture of this file?",
                     nullptr, count)
                .arg(first));
    }
}

}  // namespace Family
