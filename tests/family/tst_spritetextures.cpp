#include "family/assets/pixelstore.h"
#include "family/assets/remapmodel.h"
#include "family/assets/spritefile.h"
#include "family/assets/spritetextures.h"
#include "support/gltest.h"

#include <zorv/graphics/texture.h>

#include <QtTest>

using namespace Family;

namespace {

QImage indexed(int side, int kind)
{
    QImage image(side, side, QImage::Format_Indexed8);
    QVector<QRgb> colors;
    for (int i = 0; i < 256; ++i) {
        colors.append(qRgb(i, 5, 255 - i));
    }
    image.setColorTable(colors);
    image.fill(uint(kind));
    return image;
}

}  // namespace

/// What is uploaded, and what is deleted again, as counted in the calls of GL.
class TestSpriteTextures : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void uploads();
    void undoKeepsNoTextures();
    void memoryIsBounded();
    void brokenPixels();

private:
    /// The sizes of what is uploaded when all are drawn.
    QVector<QSize> drawAll();

    std::unique_ptr<SpriteFile> m_sprites;
};

void TestSpriteTextures::init()
{
    m_sprites = std::make_unique<SpriteFile>();
}

QVector<QSize> TestSpriteTextures::drawAll()
{
    const GlTest::CallCounter counter;
    for (const auto& sprite : m_sprites->items()) {
        const auto* texture = sprite->texture();
        const bool hasPalette = sprite->palette();
        if (!texture || texture->size != sprite->size() ||
            texture->kind != (hasPalette ? Zorv::Texture::IndexedKind : Zorv::Texture::RgbaKind) ||
            (hasPalette && sprite->palette()->texture()->kind != Zorv::Texture::PaletteKind)) {
            return {{-1, -1}};
        }
    }
    return counter.calls().uploads;
}

void TestSpriteTextures::uploads()
{
    using Sizes = QVector<QSize>;
    const QSize palette(256, 1);
    for (int i = 0; i < 5; ++i) {
        m_sprites->insertSprite(i - 1, {0, quint16(i)}, {}, indexed(4 + i / 4, i / 2));
    }
    const Sizes first = drawAll();
    // Sprites 0 and 1 show the same, and so do 2 and 3.
    QCOMPARE(first, Sizes({{4, 4}, palette, {4, 4}, {5, 5}}));
    QCOMPARE(drawAll(), Sizes());

    Zorv::RGBA colors[256] = {};
    m_sprites->palettes()->palette(0)->setColors(colors, Zorv::Palette::KeepPixels);
    QCOMPARE(drawAll(), Sizes({palette}));
    m_sprites->palettes()->addPalette(colors, QStringLiteral("3,3"), false);
    QCOMPARE(drawAll(), Sizes());
    colors[7] = {1, 2, 3, 4};
    m_sprites->palettes()->addPalette(colors, QStringLiteral("4,4"), false);
    m_sprites->palettes()->remaps()->add(m_sprites->palettes()->palette(0)->id(), {4, 4});
    QCOMPARE(drawAll(), Sizes({palette}));
    m_sprites->sprite(0)->setAxis({3, 3});
    QCOMPARE(drawAll(), Sizes());
    m_sprites->sprite(4)->setImage(indexed(7, 3).convertToFormat(QImage::Format_ARGB32));
    QCOMPARE(drawAll(), Sizes({{7, 7}}));
    m_sprites->sprite(0)->setPalette(nullptr);
    QCOMPARE(drawAll(), Sizes({{4, 4}}));
    while (m_sprites->steps().undoTitle() != SpriteCollection::tr("Add sprite")) {
        m_sprites->undo();
    }
    QVERIFY(drawAll().contains(palette));
    QCOMPARE(drawAll(), Sizes());
}

void TestSpriteTextures::undoKeepsNoTextures()
{
    const GlTest::CallCounter counter;
    const auto left = [&] { return counter.calls().names - counter.calls().deletedNames; };
    for (int i = 0; i < 40; ++i) {
        m_sprites->insertSprite(i - 1, {0, quint16(i)}, {}, indexed(3, i));
        m_sprites->sprite(i)->texture();
    }
    QCOMPARE(left(), 40);
    m_sprites->removeSprites({0, 1, 2, 3, 10, 11});
    QCOMPARE(left(), 34);
    m_sprites->sprite(0)->setImage(indexed(9, 9));
    QCOMPARE(left(), 33);
    m_sprites->palettes()->palette(0)->texture();
    m_sprites->palettes()->remove(0);
    QCOMPARE(left(), 33);
    m_sprites->undo();
    m_sprites->reset();
    QCOMPARE(left(), 0);
}

void TestSpriteTextures::memoryIsBounded()
{
    const GlTest::CallCounter counter;
    SpriteTextures textures(1000);
    for (int i = 0; i < 4; ++i) {
        m_sprites->insertSprite(i - 1, {0, quint16(i)}, {}, indexed(4, i));
    }
    const auto draw = [&](int row, bool asIndices, int side) {
        const auto* pixels = m_sprites->sprite(row)->state.pixels.get();
        const int before = counter.calls().uploads.size();
        const bool isThere =
            textures.texture(pixels, asIndices, [side] { return indexed(side, 0); });
        return isThere ? counter.calls().uploads.size() - before : -1;
    };
    QCOMPARE(draw(0, true, 20), 1);
    QCOMPARE(draw(1, true, 20), 1);
    QCOMPARE(draw(0, true, 20), 0);
    QCOMPARE(draw(2, true, 20), 1);  // the second one goes, which was drawn before the others
    QCOMPARE(draw(0, true, 20), 0);
    QCOMPARE(draw(1, true, 20), 1);
    QCOMPARE(draw(3, false, 20), 1);  // 1600 bytes
    QCOMPARE(draw(3, false, 20), 0);
    QCOMPARE(counter.calls().names - counter.calls().deletedNames, 1);
}

void TestSpriteTextures::brokenPixels()
{
    m_sprites->insertSprite(-1, {0, 0}, {}, indexed(3, 1));
    FamilySprite::State state = m_sprites->sprite(0)->state;
    state.pixels = m_sprites->store()->adopt({{4, 4}, 8, PixelCodec::Lz5}, QByteArray("?"), 1, 1);
    m_sprites->change(m_sprites->sprite(0), state);
    QVERIFY(!m_sprites->sprite(0)->texture());
    m_sprites->undo();
    QVERIFY(m_sprites->sprite(0)->texture());
}

ZORV_GL_TEST_MAIN(TestSpriteTextures)
#include "tst_spritetextures.moc"
