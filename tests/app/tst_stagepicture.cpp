#include "app/stage/stagerenderer.h"
#include "family/assets/remapmodel.h"
#include "family/assets/spritefile.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/framenode.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"
#include "family/stage/framecomposer.h"
#include "stillframe.h"
#include "support/gltest.h"
#include "support/testtable.h"

#include <zorv/graphics/renderwidget.h>

#include <QRandomGenerator>
#include <QtTest>

using namespace Family;

namespace {

constexpr quint32 Seed = 20261109;
const QSize StageSize(480, 360);
const QPoint Origin(240, 270);
const QColor Ground(37, 120, 203);
constexpr QRgb Opaque = 0xff000000;

/// A stage that shows nothing but sprites on plain ground.
class Stage
{
public:
    explicit Stage(SpriteCollection* collection) : sprites(collection)
    {
        renderer.setVisibility(false, false, false, false, false, false, false);
        renderer.setBackground(Ground, Ground, Zorv::GraphicsRenderer::GradientBackground, {}, {},
                               {});
        renderer.setItemPositionMode(Zorv::GraphicsRenderer::MainCross, 1, 0, 0);
        renderer.setSprites(&provider);
        widget.setFixedSize(StageSize);
        widget.setRenderer(&renderer);
        renderer.setOrigin(Origin);
    }
    ~Stage()
    {
        widget.setRenderer(nullptr);
        renderer.setSprites(nullptr);
    }

    const FrameNode* frameAt(int index) const
    {
        return static_cast<const FrameNode*>(animation->frame(index));
    }

    bool show()
    {
        widget.show();
        return QTest::qWaitForWindowExposed(&widget);
    }

    /// What GL has drawn, without regard to what it has in its alpha.
    QImage picture(int frame)
    {
        provider.show(frameAt(frame), sprites);
        renderer.setItemPosition(Zorv::GraphicsRenderer::SecondaryCross, provider.pose.axis, 0);
        QImage image = widget.grabFramebuffer();
        image.reinterpretAsFormat(QImage::Format_RGB32);
        return image;
    }

    SpriteCollection* sprites;
    Zorv::RenderWidget widget;
    App::StageRenderer renderer;
    const AnimationNode* animation = nullptr;
    StillFrame provider;
};

struct Difference
{
    int drawn = 0;    ///< pixels that are not ground on either
    int unequal = 0;  ///< pixels that differ
    int far = 0;      ///< of these, those that no texel explains that is next to the composer's

    /// Nothing is far off, and at most one pixel of 200, or a single one, differs; or none at all.
    bool isSmall(bool mayDiffer) const
    {
        return far == 0 && (unequal == 0 || (mayDiffer && (unequal - 1) * 200 <= drawn));
    }

    Difference& operator+=(const Difference& other)
    {
        drawn += other.drawn;
        unequal += other.unequal;
        far += other.far;
        return *this;
    }
};

/// True if a pixel of the stage stands at the border of the picture, or shows what is within a
/// texel of the place that it stands for. For pictures that are opaque or nothing in each pixel.
bool isNear(const QImage& picture, const FramePose& pose, float zoom, QPoint place, QRgb color)
{
    for (int i = 0; i < 9; ++i) {
        const QPoint step(i / 3 - 1, i % 3 - 1);
        if (FrameComposer::pixelAt(pose, zoom, place + step).x() < 0) {
            return true;
        }
        const QPoint texel = FrameComposer::pixelAt(pose, zoom, place) + step;
        const QRgb shown = picture.rect().contains(texel) ? picture.pixel(texel) : 0;
        if (color == (qAlpha(shown) == 0 ? Ground.rgb() : shown)) {
            return true;
        }
    }
    return false;
}

QImage composed(SpriteCollection* sprites, const FrameNode& frame, float zoom = 1)
{
    FrameStyle style;
    style.zoom = zoom;
    FrameComposer composer(sprites, style);
    QImage image(StageSize, QImage::Format_ARGB32);
    image.fill(Ground);
    QString error;
    composer.draw(frame, &image, -Origin, &error);
    return image.convertToFormat(QImage::Format_RGB32);
}

const QRgb* rowOf(const QImage& image, int y)
{
    return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

/// The frame of a place as the stage draws it against what the composer makes of it.
Difference compare(Stage& stage, int index, QImage* shown = nullptr)
{
    Difference result;
    const float zoom = stage.renderer.zoom();
    const QImage picture = stage.picture(index);
    const QImage pixels = stage.provider.sprite ? stage.provider.sprite->image() : QImage();
    const QImage other = composed(stage.sprites, *stage.frameAt(index), zoom);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb color = rowOf(picture, y)[x] | Opaque;
            const QRgb wanted = rowOf(other, y)[x] | Opaque;
            result.drawn += color != Ground.rgb() || wanted != Ground.rgb();
            if (color != wanted) {
                ++result.unequal;
                result.far +=
                    !isNear(pixels, stage.provider.pose, zoom, QPoint(x, y) - Origin, color);
            }
        }
    }
    if (shown) {
        *shown = picture;
    }
    return result;
}

QByteArray told(const QString& what, const Difference& difference)
{
    return QStringLiteral("%1: %2 of %3 pixels differ, %4 by more than a texel")
        .arg(what)
        .arg(difference.unequal)
        .arg(difference.drawn)
        .arg(difference.far)
        .toUtf8();
}

QImage someImage(QRandomGenerator& random, QImage::Format format, bool isSheer)
{
    QImage image(1 + random.bounded(70), 1 + random.bounded(70), format);
    QVector<QRgb> colors;
    for (int i = 0; i < 256; ++i) {
        const QRgb color = random.generate();
        colors.append(i == 0 ? 0 : isSheer ? color : color | Opaque);
    }
    image.setColorTable(format == QImage::Format_Indexed8 ? colors : QVector<QRgb>());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int index = (x / 5 + y / 7) % 3 == 0 ? 0 : random.bounded(256);
            format == QImage::Format_Indexed8 ? image.setPixel(x, y, uint(index))
                                              : image.setPixel(x, y, colors[index]);
        }
    }
    return image;
}

QString decimal(double value)
{
    return QString::number(value, 'f', 3);
}

}  // namespace

class TestStagePicture : public QObject
{
    Q_OBJECT

private slots:
    void samples_data();
    void samples();
    void randomPoses_data();
    void randomPoses();
    void kindsOfSprites();
};

void TestStagePicture::samples_data()
{
    QTest::addColumn<QString>("character");
    QTest::newRow("maren") << QStringLiteral("characters/maren/maren.character");
    QTest::newRow("iwao") << QStringLiteral("characters/iwao/iwao.character");
}

/// Frames of the samples that are neither turned nor scaled are equal in every pixel, whatever
/// their palettes, remaps, flips and offsets.
void TestStagePicture::samples()
{
    QFETCH(QString, character);
    FamilyParentProject game(QStringLiteral(ZORV_SAMPLES "/arena/"));
    QString error;
    FamilyProject* project =
        FamilyProject::open(&game, QStringLiteral(ZORV_SAMPLES "/arena/") + character, &error);
    QVERIFY2(project, qPrintable(error));
    Stage stage(project->sprites());
    QVERIFY(stage.show());
    QSet<QString> seen;
    Difference turned;
    for (const FamilyDocument* document : project->documents()) {
        const FamilyAnimations* list = document->animations();
        for (int i = 0; i < list->count(); ++i) {
            stage.animation = list->animation(i);
            for (int index = 0; index < stage.animation->frameCount(); ++index) {
                const auto* frame = stage.frameAt(index);
                const FrameData& data = frame->data();
                const bool isPlain = data.angle == 0.0 && data.scaleX == 1.0 && data.scaleY == 1.0;
                const QString what = QStringLiteral("%1 frame %2: %3")
                                         .arg(list->animation(i)->displayName())
                                         .arg(index)
                                         .arg(frame->block().text().simplified());
                // Frames of the same sprite in the same pose are the same picture.
                const QString pose =
                    frame->block().text().section(QStringLiteral("delay"), 0, 0).simplified();
                if (seen.contains(pose) && isPlain) {
                    continue;
                }
                seen.insert(pose);
                const Difference difference = compare(stage, index);
                QVERIFY2(difference.isSmall(!isPlain), told(what, difference).constData());
                turned += isPlain ? Difference() : difference;
                QVERIFY2(difference.drawn > 0 || !stage.provider.sprite, qPrintable(what));
            }
        }
    }
    QVERIFY(seen.size() > 60);
    qInfo("%s", told(QStringLiteral("turned or scaled"), turned).constData());
    QVERIFY(turned.drawn > 5000 && turned.unequal * 1000 <= turned.drawn);
    delete project;
}

void TestStagePicture::randomPoses_data()
{
    columns<int, double>("level", "zoom");
    QTest::newRow("a quarter") << 0 << 0.25;
    QTest::newRow("actual size") << 3 << 1.0;
    QTest::newRow("one and a half") << 4 << 1.5;
    QTest::newRow("three times") << 9 << 3.0;
}

void TestStagePicture::randomPoses()
{
    const auto [level, zoom] = fetched<int, double>();
    qInfo("seed %u", Seed);
    QRandomGenerator random(Seed);
    SpriteFile sprites;
    QString text = QStringLiteral("animation 1\n");
    for (int i = 0; i < 60; ++i) {
        sprites.insertSprite(
            i - 1, {0, quint16(i)}, {random.bounded(-40, 80), random.bounded(-40, 80)},
            someImage(random, i % 3 == 0 ? QImage::Format_ARGB32 : QImage::Format_Indexed8,
                      i % 4 == 0 && zoom == 1));
        text += QStringLiteral("frame 0,%1 offset %2,%3")
                    .arg(i)
                    .arg(random.bounded(-60, 60))
                    .arg(random.bounded(-60, 60));
        if (random.bounded(2)) {
            text += QStringLiteral(" flip ") +
                    QStringLiteral("h v hv").section(QLatin1Char(' '), i % 3, i % 3);
        }
        if (i % 4 > 0) {
            text += QStringLiteral(" scale %1,%2")
                        .arg(decimal((random.generateDouble() - 0.5) * 6 + 0.01),
                             decimal((random.generateDouble() - 0.5) * 6 + 0.01));
        }
        if (i % 4 > 1) {
            text += QStringLiteral(" angle %1").arg(decimal(random.generateDouble() * 720 - 360));
        }
        text += QLatin1Char('\n');
    }
    FamilyDocument document(FileKind::Animations);
    document.fromString(text);
    QCOMPARE(document.checkErrors(), 0);
    Stage stage(&sprites);
    stage.animation = document.animations()->animation(0);
    stage.renderer.setZoomLevel(uchar(level));
    QCOMPARE(double(stage.renderer.zoom()), zoom);
    QVERIFY(stage.show());
    Difference all;
    for (int i = 0; i < stage.animation->frameCount(); ++i) {
        const auto* frame = stage.frameAt(i);
        const Difference one = compare(stage, i);
        const bool isPlain = i % 4 == 0 && zoom == 1;
        QVERIFY2(one.isSmall(!isPlain), told(frame->block().text(), one).constData());
        all += one;
    }
    qInfo("%s", told(QStringLiteral("all"), all).constData());
    QVERIFY(all.drawn > 5000);
    QVERIFY(all.unequal * 1000 <= all.drawn);
}

/// What a sprite is shown in changes under a stage that stays, and is drawn at the next repaint.
void TestStagePicture::kindsOfSprites()
{
    QRandomGenerator random(Seed);
    SpriteFile sprites;
    FamilySprite* sprite =
        sprites.insertSprite(-1, {0, 1}, {}, someImage(random, QImage::Format_Indexed8, true));
    FamilyDocument document(FileKind::Animations);
    document.fromString(QStringLiteral("animation 1\nframe 0,1\n"));
    Stage stage(&sprites);
    stage.animation = document.animations()->animation(0);
    QVERIFY(stage.show());
    QVector<QImage> seen;
    const auto look = [&] {
        QImage picture;
        const Difference difference = compare(stage, 0, &picture);
        const bool isNew = !seen.contains(picture);
        seen.append(picture);
        return difference.unequal == 0 && difference.drawn > 0 && isNew;
    };
    QVERIFY(look());
    Zorv::RGBA colors[256];
    for (int i = 0; i < 256; ++i) {
        colors[i] = {quint8(255 - i), quint8(i), 9, quint8(i)};
    }
    sprite->palette()->setColors(colors, Zorv::Palette::KeepPixels);
    QVERIFY(look());
    std::reverse(std::begin(colors), std::end(colors));
    sprites.palettes()->addPalette(colors, QStringLiteral("4,4"), false);
    sprites.palettes()->remaps()->add(sprites.palettes()->palette(0)->id(), {4, 4});
    QVERIFY(look());
    sprite->setPalette(nullptr);
    QVERIFY(look());
    sprite->setImage(someImage(random, QImage::Format_ARGB32, true));
    QVERIFY(look());
    sprite->setImage(someImage(random, QImage::Format_Indexed8, true));
    QVERIFY(look());
    for (int i = seen.size() - 2; i >= 0; --i) {
        do {
            QVERIFY(sprites.steps().canUndo());
            sprites.undo();
        } while (stage.picture(0) == seen[i + 1]);
        QCOMPARE(stage.picture(0), seen[i]);
    }
}

ZORV_GL_TEST_MAIN(TestStagePicture)
#include "tst_stagepicture.moc"
