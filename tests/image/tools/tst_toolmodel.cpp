// Tools on random events in any order, against a model that goes pixel by pixel.

#include "easel.h"

#include "editors/palette/paletteremapwidget.h"
#include "support/canvasstate.h"

#include <QSlider>
#include <QtTest>

#include <cstdlib>
#include <functional>
#include <map>
#include <optional>
#include <set>

using namespace Zorv;

namespace {

using Place = std::pair<int, int>;

/// What a tool does, as a person would tell it. Pixels are those of the layer; a pixel is an index
/// in both forms, for only colours of the palette are painted, all of which are different.
class Model
{
public:
    explicit Model(Easel& easel) : m_easel(easel) { read(); }

    void press(ImageTool* tool, QPoint at, Qt::MouseButton button, bool shift)
    {
        if (!m_buttons) {
            m_isStroking = tool == &m_easel.penSel || isVisible;
            m_isLeft = button == Qt::LeftButton;
            m_button = button;
            m_isShift = shift;
            m_first = m_last = at;
            m_isMoved = false;
            m_met.clear();
            m_buttons |= button;
            if (m_isStroking) {
                draw(tool, at);
            }
        }
        m_buttons |= button;
    }

    void move(ImageTool* tool, QPoint at)
    {
        m_isMoved = m_isMoved || at != m_first;
        if (m_buttons && m_isStroking && (isVisible || tool == &m_easel.penSel)) {
            draw(tool, at);
        }
        m_last = at;
    }

    void release(ImageTool* tool, QPoint at, Qt::MouseButton button)
    {
        const bool ends = m_buttons && !(m_buttons & ~Qt::MouseButtons(button));
        m_isMoved = m_isMoved || at != m_first;
        m_buttons &= ~Qt::MouseButtons(button);
        const bool isInside = pixels.count({at.x(), at.y()});
        if (!ends) {
            return;
        }
        if (tool == &m_easel.rectSel) {
            for (auto& [place, isSelected] : mask) {
                const QRect rect(QPoint(qMin(m_first.x(), at.x()), qMin(m_first.y(), at.y())),
                                 QPoint(qMax(m_first.x(), at.x()), qMax(m_first.y(), at.y())));
                isSelected = !m_isMoved || rect.contains(place.first, place.second);
            }
        } else if (tool == &m_easel.fill && isVisible && isInside) {
            fill(at);
        } else if (tool == &m_easel.picker && isVisible && isInside && m_isLeft) {
            front = pixels[{at.x(), at.y()}];
        } else if (tool == &m_easel.picker && isVisible && isInside &&
                   m_button == Qt::RightButton) {
            ground = pixels[{at.x(), at.y()}];
        }
    }

    void lose() { m_buttons = {}; }

    bool isAlike() const
    {
        const QImage image = m_easel.image();
        for (const auto& [place, index] : pixels) {
            const QPoint at(place.first, place.second);
            const quint32 wanted =
                image.depth() == 8 ? quint32(index) : m_easel.palette.color(index);
            const quint32 is = image.depth() == 8 ? quint32(image.pixelIndex(at)) : image.pixel(at);
            if (wanted != is ||
                mask.at(place) != m_easel.canvas.selection()->clipQuery(at.x(), at.y())) {
                return false;
            }
        }
        return front == m_easel.palette.front && ground == m_easel.palette.ground;
    }

    bool isVisible = true;
    int width = 1;
    unsigned char front = 1;
    unsigned char ground = 0;
    std::map<Place, unsigned char> pixels;
    std::map<Place, bool> mask;

private:
    void read()
    {
        const QImage image = m_easel.image();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                pixels[{x, y}] = image.depth() == 8
                                     ? static_cast<unsigned char>(image.pixelIndex(x, y))
                                     : m_easel.palette.index(image.pixelColor(x, y));
                mask[{x, y}] = true;
            }
        }
    }

    void draw(ImageTool* tool, QPoint at)
    {
        const bool joins = tool == &m_easel.pen || tool == &m_easel.eraser;
        if (tool == &m_easel.replace && m_isShift) {
            if (pixels.count({m_last.x(), m_last.y()})) {
                const int index = pixels[{m_last.x(), m_last.y()}];
                (m_isLeft ? row.source : row.target) = index;
            }
        } else if (joins || tool == &m_easel.penSel || tool == &m_easel.replace) {
            const bool isJoined = joins && at == m_last && m_isShift && m_drawn;
            line(tool, isJoined ? *m_drawn : m_last, at);
            m_drawn = tool == &m_easel.penSel ? m_drawn : at;
        }
        m_last = at;
    }

    void line(ImageTool* tool, QPoint from, QPoint to)
    {
        const int longer = qMax(std::abs(to.x() - from.x()), std::abs(to.y() - from.y()));
        const auto part = [longer](int span, int step) {
            return (span < 0 ? -1 : 1) * ((longer / 2 + step * std::abs(span)) / qMax(longer, 1));
        };
        for (int step = 0; step <= longer; ++step) {
            const QPoint corner =
                from + QPoint(part(to.x() - from.x(), step), part(to.y() - from.y(), step));
            for (int i = 0; i < width * width; ++i) {
                dab(tool, {corner.x() + i % width, corner.y() + i / width});
            }
        }
    }

    void dab(ImageTool* tool, Place at)
    {
        if (!pixels.count(at)) {
            return;
        }
        if (tool == &m_easel.penSel) {
            mask[at] = m_button != Qt::RightButton;
        } else if (mask[at]) {
            unsigned char& pixel = pixels[at];
            if (tool == &m_easel.pen) {
                pixel = m_isLeft ? front : ground;
            } else if (tool == &m_easel.eraser) {
                pixel = m_isLeft || pixel == front ? ground : pixel;
            } else if (row.isSet() && pixel == (m_isLeft ? row.source : row.target) &&
                       m_met.insert(at).second) {
                pixel = static_cast<unsigned char>(m_isLeft ? row.target : row.source);
            }
        }
    }

    void fill(QPoint seed)
    {
        const unsigned char old = pixels[{seed.x(), seed.y()}];
        std::vector<Place> open = {{seed.x(), seed.y()}};
        while (!open.empty() && old != front) {
            const Place at = open.back();
            open.pop_back();
            if (pixels.count(at) && pixels[at] == old && mask[at]) {
                pixels[at] = front;
                open.insert(open.end(), {{at.first + 1, at.second},
                                         {at.first - 1, at.second},
                                         {at.first, at.second + 1},
                                         {at.first, at.second - 1}});
            }
        }
    }

public:
    PaletteRemapWidget::Row row;

private:
    Easel& m_easel;
    Qt::MouseButtons m_buttons;
    Qt::MouseButton m_button = Qt::NoButton;
    bool m_isStroking = false;
    bool m_isLeft = false;
    bool m_isShift = false;
    bool m_isMoved = false;
    QPoint m_first;
    QPoint m_last;
    std::optional<QPoint> m_drawn;
    std::set<Place> m_met;
};

}  // namespace

class TestToolModel : public QObject
{
    Q_OBJECT

private slots:
    void randomEvents_data();
    void randomEvents();

private:
    void script(QRandomGenerator& random, ImageCanvas::Format format, int tool);
};

void TestToolModel::randomEvents_data()
{
    QTest::addColumn<int>("tool");
    const char* const names[] = {"",    "",       "rectangle", "selection pen", "picker",
                                 "pen", "eraser", "replace",   "fill"};
    for (int tool = ImageTool::RectSelTool; tool <= ImageTool::FloodFillTool; ++tool) {
        QTest::newRow(names[tool]) << tool;
    }
}

void TestToolModel::randomEvents()
{
    QFETCH(int, tool);
    QRandomGenerator random(quint32(tool) + 1);
    for (int run = 0; run < 40 && !QTest::currentTestFailed(); ++run) {
        script(random, run % 2 ? ImageCanvas::IndexedFormat : ImageCanvas::RGBAFormat, tool);
    }
}

void TestToolModel::script(QRandomGenerator& random, ImageCanvas::Format format, int type)
{
    const auto number = [&random](int end) { return int(random.bounded(end)); };
    const int colors = number(2) ? 2 : 16;
    Easel easel(format, {1 + number(40), 1 + number(40)});
    for (int i = 0; i < colors; ++i) {
        easel.palette.colors[i] = {quint8(i * 15), quint8(200 - i), 9, quint8(i % 5 ? 255 : 0)};
    }
    QImage* pixels = easel.layer()->pixels();
    for (int y = 0; y < pixels->height(); ++y) {
        for (int x = 0; x < pixels->width(); ++x) {
            const auto index = static_cast<unsigned char>(number(colors));
            if (format == ImageCanvas::IndexedFormat) {
                pixels->scanLine(y)[x] = index;
            } else {
                pixels->setPixel(x, y, easel.palette.color(index));
            }
        }
    }
    Model model(easel);
    const QByteArray before = stateOf(easel.canvas);
    ImageTool* tool = easel.tools[type];
    tool->activated();
    for (int step = 0; step < 60; ++step) {
        const QPoint at(number(easel.image().width() + 20) - 10,
                        number(easel.image().height() + 20) - 10);
        const Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
        const Qt::MouseButton button = buttons[number(3)];
        switch (number(8)) {
        case 0:
        case 1: {
            const bool shift = number(3) == 0;
            easel.press(*tool, at, button, shift ? Qt::ShiftModifier : Qt::NoModifier);
            model.press(tool, at, button, shift);
            break;
        }
        case 2:
        case 3:
            easel.release(*tool, at, button);
            model.release(tool, at, button);
            break;
        case 4: {
            auto* penTool = qobject_cast<BasePenTool*>(tool);
            model.width = penTool ? 1 + number(24) : 1;
            if (penTool) {
                penTool->slider()->setValue(model.width);
            }
            break;
        }
        case 5:
            if (number(2)) {
                tool->mouseLost();
                model.lose();
            } else {
                model.isVisible = !model.isVisible;
                easel.layer()->setVisible(model.isVisible);
            }
            break;
        default:
            easel.move(*tool, at);
            model.move(tool, at);
        }
        QVERIFY2(model.isAlike(), qPrintable(QStringLiteral("step %1").arg(step)));
        QVERIFY(tool != &easel.replace ||
                (model.row.source == easel.replace.rows()->row(0).source &&
                 model.row.target == easel.replace.rows()->row(0).target));
    }
    tool->deactivated();
    while (easel.canvas.undoStack()->canUndo()) {
        const QByteArray now = stateOf(easel.canvas);
        easel.canvas.undoStack()->undo();
        QVERIFY(stateOf(easel.canvas) != now);
    }
    QCOMPARE(stateOf(easel.canvas), before);
}

QTEST_MAIN(TestToolModel)
#include "tst_toolmodel.moc"
