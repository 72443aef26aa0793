// Edits of many frames at once: what twice as many cost, and what they cost over the same text put
// in as a whole.

#include "support/bench.h"

#include "animation/edits/boxedits.h"
#include "animation/edits/frameorder.h"
#include "animation/edits/framevalues.h"

#include "family/familyanimations.h"
#include "family/familydocument.h"

#include <QGuiApplication>

#include <functional>

using namespace Zorv;

namespace {

constexpr int Frames = 10000;
constexpr int Boxes = 3;

QString textOf(int frames)
{
    QString text;
    for (int i = 0; i < frames; ++i) {
        if (i % 100 == 0) {
            text += QStringLiteral("animation %1\n").arg(i / 100);
        }
        for (int box = 0; box < (i == 0 ? Boxes : 1); ++box) {
            text += QStringLiteral("body %1,-80, %2,0\n").arg(-i % 50 - box - 1).arg(i % 40);
        }
        text += QStringLiteral("frame 0,0  delay %1\n").arg(i % 7 + 2);
    }
    return text;
}

using Edit = std::function<void(Animations*)>;

struct Times
{
    double edit;
    double whole;
};

/// The time of an edit, and of its text when it is put in as a whole.
Times measure(const QString& text, const Edit& edit)
{
    Family::FamilyDocument document(Family::FileKind::Animations);
    document.fromString(text);
    const double time = Bench::once([&] { edit(document.animations()); });
    Family::FamilyDocument other(Family::FileKind::Animations);
    const QString after = document.text();
    return {time, Bench::once([&] { other.fromString(after); })};
}

void compare(const char* name, const std::function<QString(int)>& text, const Edit& edit)
{
    const QString once = text(Frames);
    const QString twice = text(2 * Frames);
    const double growth = Bench::medianOf(7, [&] {
        const double time = measure(twice, edit).edit;
        return time / measure(once, edit).edit;
    });
    const double share = Bench::medianOf(7, [&] {
        const Times times = measure(once, edit);
        return times.edit / times.whole;
    });
    Bench::ratio(qPrintable(QStringLiteral("%1, 20,000 over 10,000 frames").arg(name)), growth, 1,
                 2.2);
    Bench::ratio(qPrintable(QStringLiteral("%1, over its text as a whole").arg(name)), share, 1);
}

/// All frames in one animation.
QString inOne(int frames)
{
    QString text = textOf(frames);
    const int head = text.indexOf(QLatin1Char('\n')) + 1;
    QString rest;
    const QStringList lines = text.mid(head).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        rest += line.startsWith(QLatin1String("animation")) ? QString() : line + QLatin1Char('\n');
    }
    return text.left(head) + rest;
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    compare("boxes to all instances", textOf, [](Animations* list) {
        copyBoxesToInstances(list, {0, 0});
    });
    compare("same time for all", inOne, [](Animations* list) {
        copyToNextFrames(list, {0, 0}, FrameValue::Time);
    });
    compare("reverse", inOne, [](Animations* list) {
        QVector<int> frames;
        for (const FramePlace& place : framesOf(list, 0)) {
            frames.append(place.frame);
        }
        reverseFrames(list, 0, frames);
    });
    return 0;
}
