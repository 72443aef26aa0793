#include "media/tools/gifimage.h"
#include "media/tools/savegif.h"

#include <QBuffer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
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
                image = below(4) == 0 ? picture(QSize(1 + below(40), 1 + below(40)))
                                      : changed(image);
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
                image.setPixel(x, y, uint(noise ? below(m_colorCount) : (x / 7 + y / 5) % m_colorCount));
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

/// The number of different colours, what is transparent being one.
int colorCount(const QImage& image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colors.insert(qAlpha(image.pixel(x, y)) < 128 ? 0 : image.pixel(x, y));
        }
    }
    return colors.size();
}

}  // namespace

class TestSaveGIF : public QObject
{
    Q_OBJECT

private slots:
    void randomAnimationsComeBack();
};

void TestSaveGIF::randomAnimationsComeBack()
{
    for (quint32 seed = Seed; seed < Seed + 600; ++seed) {
        RandomAnimation random(seed);
        const QVector<GIFFrame> frames = random.frames();
        GIFOptions options;
        options.background = random.coin() ? 0 : qRgb(random.below(256), 0, 90);
        const QVector<QImage> wanted = expected(frames, options.background);
        const bool exact = std::all_of(wanted.begin(), wanted.end(), [](const QImage& image) {
            return colorCount(image) <= 256;
        });
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

QTEST_GUILESS_MAIN(TestSaveGIF)
#include "tst_savegif.moc"
