#include "media/tools/gifimage.h"
#include "media/tools/savegif.h"

#include "support/tool.h"

#include <QBuffer>
#include <QRandomGenerator>
#include <QtTest>

using namespace Zorv;

namespace {

const quint32 Seed = 20260711;

QByteArray saved(const QVector<GIFFrame>& frames, const GIFOptions& options = {})
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return saveGIF(&buffer, frames, options) ? bytes : QByteArray();
}

GIFImage loaded(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    GIFImage gif;
    return gif.load(&buffer) ? gif : GIFImage();
}

/// What a viewer shows: the frames laid one upon another, with their disposal.
QVector<QImage> composed(const GIFImage& gif)
{
    QVector<QImage> shown;
    QImage canvas(gif.size, QImage::Format_ARGB32);
    canvas.fill(0);
    for (const GIFImage::SubImage& frame : gif.images) {
        const QImage before = canvas;
        const QVector<RGB>& colors = frame.colors.isEmpty() ? gif.colors : frame.colors;
        const QRect rect(QPoint(frame.left, frame.top), frame.image.size());
        for (int y = 0; y < rect.height(); ++y) {
            for (int x = 0; x < rect.width(); ++x) {
                const int index = frame.image.constScanLine(y)[x];
                if (index != frame.transparent) {
                    const RGB color = colors.at(index);
                    canvas.setPixel(rect.topLeft() + QPoint(x, y), qRgb(color.r, color.g, color.b));
                }
            }
        }
        shown.append(canvas);
        if (frame.disposal == GIFImage::ToPrevious) {
            canvas = before;
        }
        for (int y = 0; y < rect.height() && frame.disposal == GIFImage::ToBackground; ++y) {
            for (int x = 0; x < rect.width(); ++x) {
                canvas.setPixel(rect.topLeft() + QPoint(x, y), 0);
            }
        }
    }
    return shown;
}

/// What the frames are meant to look like.
QVector<QImage> expected(const QVector<GIFFrame>& frames, QRgb background)
{
    QRect canvas;
    for (const GIFFrame& frame : frames) {
        canvas |= QRect(frame.position, frame.image.size());
    }
    QVector<QImage> shown;
    for (const GIFFrame& frame : frames) {
        QImage image(canvas.size(), QImage::Format_ARGB32);
        image.fill(qAlpha(background) < 128 ? 0 : background);
        for (int y = 0; y < frame.image.height(); ++y) {
            for (int x = 0; x < frame.image.width(); ++x) {
                const QRgb color = frame.image.pixel(x, y);
                if (qAlpha(color) >= 128) {
                    image.setPixel(frame.position - canvas.topLeft() + QPoint(x, y),
                                   color | 0xff000000);
                }
            }
        }
        shown.append(image);
    }
    return shown;
}

/// Makes animations of all kinds: of one or several tables, with and without transparent pixels,
/// standing and moving, with frames that repeat.
class RandomAnimation
{
public:
    explicit RandomAnimation(quint32 seed) : m_random(seed)
    {
        m_indexed = coin();
        m_sharedTable = coin();
        m_moving = coin();
        m_solid = coin();
        m_colorCount = coin() ? 2 + below(20) : 2 + below(255);
        m_table = table();
    }

    QVector<GIFFrame> frames()
    {
        QVector<GIFFrame> result;
        const int count = 1 + below(8);
        const QSize size(1 + below(40), 1 + below(40));
        QImage image = picture(size);
        QPoint position(below(30) - 15, below(30) - 15);
        for (int i = 0; i < count; ++i) {
            result.append({image, position, 1 + below(12)});
            if (m_moving && coin()) {
                position += QPoint(below(9) - 4, below(9) - 4);
            }
            if (!m_sharedTable) {
                m_table = table();
            }
            if (coin()) {
                image =
                    below(4) == 0 ? picture(QSize(1 + below(40), 1 + below(40))) : changed(image);
            }
            if (i >= 2 && below(4) == 0) {
                image = result.at(i - 1).image;
            }
        }
        return result;
    }

    int below(int limit) { return m_random.bounded(limit); }
    bool coin() { return below(2) == 0; }

private:
    QVector<QRgb> table()
    {
        QVector<QRgb> colors;
        for (int i = 0; i < m_colorCount; ++i) {
            colors.append(m_random.generate() | (m_solid ? 0xff000000 : 0));
        }
        return colors;
    }

    QImage picture(const QSize& size)
    {
        QImage image(size, QImage::Format_Indexed8);
        image.setColorTable(m_table);
        const bool noise = coin();
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                image.setPixel(x, y,
                               uint(noise ? below(m_colorCount) : (x / 7 + y / 5) % m_colorCount));
            }
        }
        return m_indexed ? image : image.convertToFormat(QImage::Format_ARGB32);
    }

    QImage changed(QImage image)
    {
        const QRect spot(below(image.width()), below(image.height()), 1 + below(12), 1 + below(12));
        const QRect inside = spot & image.rect();
        const QImage patch = picture(inside.size());
        for (int y = 0; y < inside.height(); ++y) {
            for (int x = 0; x < inside.width(); ++x) {
                const QPoint place = inside.topLeft() + QPoint(x, y);
                image.setPixel(place, m_indexed ? uint(patch.pixelIndex(x, y)) : patch.pixel(x, y));
            }
        }
        if (m_indexed) {
            image.setColorTable(m_table);
        }
        return image;
    }

    QRandomGenerator m_random;
    QVector<QRgb> m_table;
    int m_colorCount;
    bool m_indexed;
    bool m_sharedTable;
    bool m_moving;
    bool m_solid;
};

/// True if no image has more than 256 colours, what is transparent being one.
bool fitsTables(const QVector<QImage>& images)
{
    return std::all_of(images.begin(), images.end(), [](const QImage& image) {
        QSet<QRgb> colors;
        for (int i = 0; i < image.width() * image.height(); ++i) {
            colors.insert(image.pixel(i % image.width(), i / image.width()));
        }
        return colors.size() <= 256;
    });
}

}  // namespace

class TestSaveGIF : public QObject
{
    Q_OBJECT

private slots:
    void randomAnimationsComeBack();
    void magickShowsTheSame();
    void delaysDoNotDrift();
    void onlyChangesAreWritten();
    void whatVanishesIsCleared();
    void tablesOfTheirOwn();
    void manyColorsAreQuantized();
    void refusals();
};

void TestSaveGIF::randomAnimationsComeBack()
{
    for (quint32 seed = Seed; seed < Seed + 600; ++seed) {
        RandomAnimation random(seed);
        const QVector<GIFFrame> frames = random.frames();
        GIFOptions options;
        options.background = random.coin() ? 0 : qRgb(random.below(256), 0, 90);
        const QVector<QImage> wanted = expected(frames, options.background);
        const bool exact = fitsTables(wanted);
        const GIFImage gif = loaded(saved(frames, options));
        QVERIFY2(gif.size == wanted.first().size(), qPrintable(QString::number(seed)));
        const QVector<QImage> shown = composed(gif);
        QCOMPARE(shown.size(), wanted.size());
        for (int i = 0; i < shown.size() && exact; ++i) {
            if (shown[i] != wanted[i]) {
                QFAIL(qPrintable(QStringLiteral("seed %1, frame %2").arg(seed).arg(i)));
            }
        }
    }
}

/// The pixels of all frames, with nothing where they are transparent.
QByteArray rgba(const QVector<QImage>& images)
{
    QByteArray bytes;
    for (const QImage& image : images) {
        const QImage straight = image.convertToFormat(QImage::Format_RGBA8888);
        for (int y = 0; y < image.height(); ++y) {
            bytes.append(reinterpret_cast<const char*>(straight.constScanLine(y)),
                         4 * image.width());
        }
    }
    return bytes;
}

void TestSaveGIF::magickShowsTheSame()
{
    const QStringList arguments =
        QStringLiteral("gif:- -coalesce -depth 8 rgba:-").split(QLatin1Char(' '));
    int compared = 0;
    for (quint32 seed = Seed; compared < 12; ++seed) {
        const QVector<GIFFrame> frames = RandomAnimation(seed).frames();
        const QVector<QImage> wanted = expected(frames, 0);
        if (!fitsTables(wanted)) {
            continue;
        }
        ++compared;
        QByteArray shown = runTool(QStringLiteral("convert"), arguments, saved(frames));
        for (int i = 0; i + 3 < shown.size(); i += 4) {
            if (shown.at(i + 3) == 0) {
                shown.replace(i, 3, QByteArray(3, 0));
            }
        }
        QVERIFY2(shown == rgba(wanted), qPrintable(QString::number(seed)));
    }
}

void TestSaveGIF::delaysDoNotDrift()
{
    QRandomGenerator random(Seed);
    QImage image(2, 2, QImage::Format_RGB32);
    QVector<GIFFrame> frames;
    for (int i = 0; i < 400; ++i) {
        image.fill(random.generate());
        frames.append({image, {}, i % 50 == 49 ? 60000 : 1 + random.bounded(20)});
    }
    const GIFImage gif = loaded(saved(frames));
    int next = 0;
    qint64 ticks = 0;
    qint64 hundredths = 0;
    for (const GIFFrame& frame : qAsConst(frames)) {
        ticks += frame.ticks;
        const double end = double(ticks) * 100 / 60;
        // A frame that is longer than a delay can tell goes on in the next one.
        do {
            QVERIFY(next < gif.images.size());
            hundredths += gif.images.at(next++).delay;
        } while (double(hundredths) < end - 0.51);
        QVERIFY(qAbs(double(hundredths) - end) < 0.51);
    }
    QCOMPARE(next, gif.images.size());
}

void TestSaveGIF::onlyChangesAreWritten()
{
    QImage image(30, 20, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QVector<GIFFrame> frames = {{image, {}, 3}};
    image.setPixel(4, 5, qRgb(1, 2, 3));
    image.setPixel(6, 9, qRgb(1, 2, 3));
    frames.append({image, {}, 3});
    frames.append({image, {}, 3});
    GIFOptions options;
    options.loops = 6;
    const GIFImage gif = loaded(saved(frames, options));
    QCOMPARE(gif.loops, 6);
    QCOMPARE(gif.images.size(), 3);
    const GIFImage::SubImage& second = gif.images[1];
    QCOMPARE(QRect(QPoint(second.left, second.top), second.image.size()), QRect(4, 5, 3, 5));
    QCOMPARE(gif.images[2].image.size(), QSize(1, 1));
    for (const GIFImage::SubImage& frame : gif.images) {
        QVERIFY(frame.colors.isEmpty());
    }
    options.loops = -1;
    QCOMPARE(loaded(saved(frames, options)).loops, -1);
}

/// A spot that goes and comes back: what it leaves is restored, or made empty.
void TestSaveGIF::whatVanishesIsCleared()
{
    QImage ground(64, 48, QImage::Format_RGB32);
    QRandomGenerator random(Seed);
    for (int i = 0; i < ground.width() * ground.height(); ++i) {
        ground.setPixel(i % 64, i / 64, random.bounded(40) * 0x050301);
    }
    QImage spot(8, 8, QImage::Format_RGB32);
    spot.fill(Qt::red);
    QVector<GIFFrame> frames = {{ground, {}, 1}};
    QVector<GIFFrame> alone = {{spot, {}, 1}};
    for (int i = 1; i < 4; ++i) {
        QImage picture = ground;
        for (int pixel = 0; pixel < 64; ++pixel) {
            picture.setPixel(9 * i + pixel % 8, 10 + pixel / 8, qRgb(255, 0, 0));
        }
        frames.append({picture, {}, 1});
        alone.append({spot, QPoint(9 * i, 0), 1});
    }
    const GIFImage onGround = loaded(saved(frames));
    const GIFImage onNothing = loaded(saved(alone));
    for (int i = 1; i < 3; ++i) {
        QCOMPARE(onGround.images.at(i).image.size(), QSize(8, 8));
        QCOMPARE(int(onGround.images.at(i).disposal), int(GIFImage::ToPrevious));
        QCOMPARE(onNothing.images.at(i).image.size(), QSize(8, 8));
        QCOMPARE(int(onNothing.images.at(i).disposal), int(GIFImage::ToBackground));
    }
}

/// On a ground of 150 colours, patches of 100 others each: no table has all. The pixels fill the
/// packer's table of strings several times.
void TestSaveGIF::tablesOfTheirOwn()
{
    QRandomGenerator random(Seed);
    const QSize size(160, 110);
    QImage ground(size, QImage::Format_RGB32);
    for (int i = 0; i < size.width() * size.height(); ++i) {
        ground.setPixel(i % 160, i / 160, qRgb(random.bounded(150), 0, 0));
    }
    QVector<GIFFrame> frames = {{ground, {}, 2}};
    for (int shade = 1; shade < 5; ++shade) {
        // Every other pixel of the patch stays, with colours that its table has no room for.
        QImage picture(ground);
        for (int i = 0; i < 400; ++i) {
            if (i % 2 == 0) {
                picture.setPixel(50 + i % 40, 30 + i / 40, qRgb(200, random.bounded(100), shade));
            }
        }
        frames.append({picture, {}, 2});
    }
    const GIFImage gif = loaded(saved(frames));
    QVERIFY(composed(gif) == expected(frames, 0));
    QVERIFY(!gif.images.last().colors.isEmpty());
    const QStringList arguments =
        QStringLiteral("gif:- -coalesce -depth 8 rgba:-").split(QLatin1Char(' '));
    QVERIFY(runTool(QStringLiteral("convert"), arguments, saved(frames)) ==
            rgba(expected(frames, 0)));
}

void TestSaveGIF::manyColorsAreQuantized()
{
    QImage image(40, 40, QImage::Format_ARGB32);
    for (int i = 0; i < 1600; ++i) {
        const bool clear = i % 40 == 7;
        image.setPixel(i % 40, i / 40, clear ? 0 : qRgb(i % 40 * 6, i / 40 * 6, 128));
    }
    const QImage shown = composed(loaded(saved({{image, {}, 1}}))).value(0);
    QCOMPARE(shown.size(), image.size());
    for (int i = 0; i < 1600; ++i) {
        const QRgb a = image.pixel(i % 40, i / 40);
        const QRgb b = shown.pixel(i % 40, i / 40);
        QCOMPARE(qAlpha(b), qAlpha(a));
        QVERIFY(qAbs(qRed(a) - qRed(b)) < 40 && qAbs(qGreen(a) - qGreen(b)) < 40);
    }
}

void TestSaveGIF::refusals()
{
    QImage image(1, 1, QImage::Format_RGB32);
    image.fill(1);
    QVERIFY(saved({}).isEmpty());
    QVERIFY(saved({{QImage(), {}, 1}}).isEmpty());
    QVERIFY(saved({{image, {}, 1}, {image, QPoint(65535, 0), 1}}).isEmpty());
    QVERIFY(saved({{image, QPoint(INT_MIN, 0), 1}, {image, QPoint(INT_MAX, 0), 1}}).isEmpty());
    QVERIFY(!saved({{image, {}, 1}, {image, QPoint(65534, 0), 1}}).isEmpty());
    QFile full(QStringLiteral("/dev/full"));
    QVERIFY(full.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    QVERIFY(!saveGIF(&full, {{image, {}, 1}}));
}

QTEST_GUILESS_MAIN(TestSaveGIF)
#include "tst_savegif.moc"
