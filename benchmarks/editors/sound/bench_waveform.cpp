// The waveform of an hour beside that of a second, and what it costs to open one beside reading
// its file.

#include "support/bench.h"

#include "editors/sound/audiosamplewidget.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <numeric>

using namespace Zorv;

namespace {

const int Rounds = 15;
const int Rate = 48000;

SoundSample soundOf(int seconds)
{
    SoundSample sound;
    sound.channels = 2;
    sound.bits = 16;
    sound.sampleRate = Rate;
    sound.frames = seconds * Rate;
    sound.data.resize(sound.frames * 4);
    auto* values = reinterpret_cast<quint16*>(sound.data.data());
    quint32 state = 1;
    for (int i = 0; i < sound.frames * 2; ++i) {
        state = state * 1664525 + 1013904223;
        values[i] = quint16(state >> 16);
    }
    return sound;
}

class Shown
{
public:
    explicit Shown(const SoundSample& sound) : m_image(1000, 300, QImage::Format_RGB32)
    {
        widget.setShowsTrueChannels(true);
        widget.resize(m_image.size());
        open(sound);
    }
    void open(const SoundSample& sound)
    {
        widget.setSample(sound);
        widget.showNow();
        paint();
        while (m_image.pixel(500, 70) == widget.palette().color(QPalette::Window).rgb()) {
            QApplication::processEvents();
            paint();
        }
    }
    void paint() { widget.render(&m_image); }
    void scroll()
    {
        widget.showFrames(0, widget.sample().frames / 4.0);
        for (int i = 0; i < 20; ++i) {
            widget.showFrames(widget.firstFrame() + widget.visibleFrames() / 10,
                              widget.visibleFrames());
            paint();
        }
        widget.zoomActual();
    }

    AudioSampleWidget widget;

private:
    QImage m_image;
};

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    const SoundSample hour = soundOf(3600);
    Shown whole(hour);
    Shown second(soundOf(1));
    Bench::ratio("a paint of an hour, to one of a second",
                 Bench::pairedRatio(
                     Rounds, [&] { whole.paint(); }, [&] { second.paint(); }),
                 1, 2);
    Bench::ratio("scrolling in an hour, to in a second",
                 Bench::pairedRatio(
                     Rounds, [&] { whole.scroll(); }, [&] { second.scroll(); }),
                 1, 2);

    const QTemporaryDir folder;
    QFile file(folder.filePath("hour"));
    if (!file.open(QIODevice::ReadWrite) || file.write(hour.data) != hour.data.size()) {
        return 1;
    }
    const auto read = [&] {
        file.seek(0);
        return file.readAll().size();
    };
    const auto openIt = [&] {
        whole.widget.setSample({});
        whole.widget.showNow();
        whole.open(hour);
    };
    Bench::ratio("opening an hour, to reading its bytes from a file",
                 Bench::pairedRatio(5, openIt, read), 1, 1.5);
    const auto* words = reinterpret_cast<const quint64*>(hour.data.constData());
    quint64 sum = 0;
    Bench::ratio(
        "the same, to adding them up in memory",
        Bench::pairedRatio(
            5, openIt, [&] { sum = std::accumulate(words, words + hour.data.size() / 8, sum); }),
        1);
    return sum == 1 ? 2 : 0;
}
