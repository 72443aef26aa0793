#include "graphics/stage/graphicsrenderer.h"

#include "support/bench.h"
#include "support/stagedata.h"

#include <QGuiApplication>
#include <QRandomGenerator>

#include <cstdio>

using namespace Zorv;

namespace {

const int Boxes = 10000;
const int Selected = 1000;
const int Rounds = 101;
const int Repeats = 50;

int found = 0;  // keeps the results in use

QVector<QRect> randomRects(int count)
{
    QRandomGenerator random(6);
    QVector<QRect> rects;
    for (int i = 0; i < count; ++i) {
        rects.append(QRect(random.bounded(-500, 500), random.bounded(-500, 500),
                           1 + random.bounded(60), 1 + random.bounded(60)));
    }
    return rects;
}

/// From the last on, as the stage looks.
int lastHolding(const QVector<QRect>& rects, QPoint pos)
{
    for (int i = rects.size() - 1; i >= 0; --i) {
        if (rects.at(i).contains(pos)) {
            return i;
        }
    }
    return -1;
}

/// A stage that shows these rectangles as boxes, and no crosses over them.
struct Stage
{
    explicit Stage(const QVector<QRect>& rects) : boxes(ContactBoxCode::Collision)
    {
        renderer.setVisibility(false, false, false, true, true, false, false);
        renderer.setOrigin(QPoint(600, 600));
        for (const QRect& rect : rects) {
            boxes.add(rect);
        }
        renderer.setContactBoxes(ContactBoxCode::Collision, &boxes);
    }

    void click(QPoint pos, Qt::KeyboardModifiers modifiers)
    {
        renderer.mousePressed(renderer.origin() + pos, Qt::LeftButton, modifiers);
        renderer.mouseReleased(renderer.origin() + pos, Qt::LeftButton, modifiers);
    }

    StageData::Boxes boxes;
    GraphicsRenderer renderer;
};

void measureHitTest()
{
    const QVector<QRect> rects = randomRects(Boxes);
    Stage stage(rects);
    const QPoint beside(700, 20);
    for (const int level : {3, 4, 0}) {
        stage.renderer.setZoomLevel(uchar(level));
        const QPoint pos = stage.renderer.origin() + beside * 4;
        const double ratio = Bench::pairedRatio(
            Rounds,
            [&] {
                for (int i = 0; i < Repeats; ++i) {
                    found += stage.renderer.hitTest(pos + QPoint(i, i));
                }
            },
            [&] {
                for (int i = 0; i < Repeats; ++i) {
                    found += lastHolding(rects, beside + QPoint(i, i));
                }
            });
        std::printf("zoom %.2f: ", double(stage.renderer.zoom()));
        Bench::ratio("hit test, 10,000 boxes / a loop over rectangles", ratio, 1, 3);
    }
}

/// What a drag step cannot do without: the places of the boxes come from one list to another.
void measureDrag(bool resizes)
{
    struct Place
    {
        double x, y, width, height;
    };
    QVector<QRect> rects;
    for (int i = 0; i < Selected; ++i) {
        rects.append(QRect(i % 40 * 20, i / 40 * 20, 10, 10));
    }
    Stage stage(rects);
    for (int i = 0; i < Selected; ++i) {
        stage.click(rects.at(i).center(), i ? Qt::ShiftModifier : Qt::NoModifier);
    }
    const QRect all(QPoint(0, 0), QPoint(789, 489));
    const int selected = stage.renderer.selectedContactBoxes().size();
    if (selected < Selected * 9 / 10) {
        std::printf("only %d boxes are selected\n", selected);
        return;
    }
    const std::vector<Place> source(size_t(selected), Place{1, 2, 3, 4});
    std::vector<Place> copy(source.size());
    QPoint pos = stage.renderer.origin() + (resizes ? all.bottomRight() : QPoint());
    if (resizes) {
        stage.renderer.mousePressed(pos, Qt::LeftButton, Qt::NoModifier);
    }
    const double ratio = Bench::pairedRatio(
        Rounds,
        [&] {
            for (int i = 0; i < Repeats; ++i) {
                pos += i % 3 ? QPoint(3, 1) : QPoint(-6, -1);
                if (resizes) {
                    stage.renderer.mouseMoved(pos, Qt::NoModifier);
                } else {
                    stage.renderer.moveSelectedContactBoxes(pos);
                }
            }
        },
        [&] {
            for (int i = 0; i < Repeats; ++i) {
                std::copy(source.begin(), source.end(), copy.begin());
                found += int(copy[size_t(i)].x);
            }
        });
    stage.renderer.updateSelectedBoxes();
    if (stage.boxes.at(0)->rect() == rects.first() && stage.boxes.at(999)->rect() == rects.last()) {
        std::puts("nothing was moved");
    }
    Bench::ratio(resizes ? "1,000 selected boxes stretched a step / a copy of their places"
                         : "1,000 selected boxes moved a step / a copy of their places",
                 ratio, 1, 10);
}

}  // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    measureHitTest();
    measureDrag(false);
    measureDrag(true);
    std::printf("(%d)\n", found);
    return 0;
}
