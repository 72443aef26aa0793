#include "animation/edits/boxclipboard.h"

#include "code/codedoc/codedocument.h"
#include "code/codedoc/contactboxescode.h"
#include "code/codedoc/framecode.h"

#include <QMimeData>

#include <algorithm>

namespace Zorv {

namespace {

// One box per line: "TYPE,LEFT,TOP,RIGHT,BOTTOM".
const QLatin1String DataType("application/x-zorv-contact-boxes");

QByteArray toLine(const BoxPlace& place, const QRect& rect)
{
    QByteArray line = QByteArray::number(place.type);
    for (const int number : {rect.left(), rect.top(), rect.right(), rect.bottom()}) {
        line += ',' + QByteArray::number(number);
    }
    return line + '\n';
}

/// False for a malformed line.
bool fromLine(const QByteArray& line, BoxRects* boxes)
{
    const QList<QByteArray> parts = line.split(',');
    bool isFine = parts.size() == 5;
    int numbers[5] = {};
    for (int i = 0; isFine && i < 5; ++i) {
        numbers[i] = parts.at(i).toInt(&isFine);
    }
    QRect rect;
    rect.setCoords(numbers[1], numbers[2], numbers[3], numbers[4]);
    if (isFine && numbers[0] == ContactBoxCode::Attack) {
        boxes->attack.append(rect);
    } else if (isFine && numbers[0] == ContactBoxCode::Collision) {
        boxes->collision.append(rect);
    } else {
        return false;
    }
    return true;
}

}  // namespace

QMimeData* copiedBoxes(const FrameCode* frame, const QVector<BoxPlace>& boxes)
{
    QByteArray numbers;
    QVector<int> lines;
    for (const BoxPlace& place : boxes) {
        const ContactBoxesCode* list = frame ? frame->contactBoxes(place.type) : nullptr;
        const ContactBoxCode* box = list ? list->at(place.index) : nullptr;
        if (box) {
            numbers += toLine(place, box->rect());
            lines.append(box->line());
        }
    }
    std::sort(lines.begin(), lines.end());
    QString text;
    for (const int line : qAsConst(lines)) {
        text += frame->document()->findBlockByNumber(line).text() + QLatin1Char('\n');
    }
    auto* data = new QMimeData;
    data->setData(DataType, numbers);
    data->setText(text);
    return data;
}

BoxRects pastedBoxes(const QMimeData* data)
{
    BoxRects boxes;
    const QByteArray bytes = data ? data->data(DataType) : QByteArray();
    const QList<QByteArray> lines = bytes.split('\n');
    for (const QByteArray& line : lines) {
        if (!line.isEmpty() && !fromLine(line, &boxes)) {
            return {};
        }
    }
    return boxes;
}

}  // namespace Zorv
