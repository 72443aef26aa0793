#include "plainsprites.h"

#include "family/assets/pixelstore.h"
#include "family/assets/spritefile.h"

#include <zorv/core/filesystemarchive.h>
#include <zorv/media/losslessimages.h>

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

using namespace Family;

namespace {

constexpr quint32 Seed = 20260606;

PaletteColors someColors(int kind)
{
    PaletteColors colors;
    for (size_t i = 0; i < colors.size(); ++i) {
        colors[i] = {quint8(i * size_t(kind + 1)), quint8(255 - i), quint8(kind * 40),
                     quint8(i == 0 ? 0 : 255)};
    }
    return colors;
}

QImage indexed(QSize size, int kind, const QVector<QRgb>& table)
{
    QImage image(size, QImage::Format_Indexed8);
    image.setColorTable(table);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, uint((x * 7 + y * 3 + kind * x * y) & (kind & 1 ? 255 : 31)));
        }
    }
    return image;
}

QImage trueColor(QSize size, int kind)
{
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, qRgba(x * 20, y * 20, kind * 30, x == y ? 0 : 255 - x));
        }
    }
    return image;
}

/// Does the same to a collection and to a plain one.
class BothSides
{
public:
    BothSides(SpriteFile& real, QRandomGenerator& random) : m_real(real), m_random(random) {}

    PlainSprites plain;

    void edit()
    {
        using Edit = void (BothSides::*)();
        static const Edit edits[] = {
            &BothSides::insert,     &BothSides::insert,    &BothSides::addSeveral,
            &BothSides::remove,     &BothSides::move,      &BothSides::sort,
            &BothSides::setAxis,    &BothSides::rename,    &BothSides::setPalette,
            &BothSides::setImage,   &BothSides::duplicate, &BothSides::removePalette,
            &BothSides::setColors,  &BothSides::tidy,      &BothSides::remap,
            &BothSides::addPalette, &BothSides::several,
        };
        (this->*edits[m_random.bounded(int(std::size(edits)))])();
    }

private:
    int row() { return plain.sprites.empty() ? -1 : m_random.bounded(int(plain.sprites.size())); }
    int paletteRow()
    {
        return plain.palettes.empty() ? -1 : m_random.bounded(int(plain.palettes.size()));
    }
    AssetId id() { return {quint16(m_random.bounded(3)), quint16(m_random.bounded(6))}; }
    QSize size() { return {1 + m_random.bounded(5), 1 + m_random.bounded(4)}; }
    int name(int paletteAt) const
    {
        return paletteAt < 0 ? -1 : plain.palettes[size_t(paletteAt)].name;
    }
    PlainSprites::Sprite* at(int row) { return &plain.sprites[size_t(row)]; }

    QImage picture()
    {
        const int kind = m_random.bounded(4);
        return m_random.bounded(4) == 0
                   ? trueColor(size(), kind)
                   : indexed(size(), kind, tableOfColors(someColors(m_random.bounded(4))));
    }

    void takeImage(PlainSprites::Sprite* sprite, const QImage& image)
    {
        sprite->pixels = image;
        sprite->palette = image.format() == QImage::Format_Indexed8
                              ? plain.ensure(colorsOfTable(image.colorTable()))
                              : -1;
    }

    void insert()
    {
        const int behind = m_random.bounded(int(plain.sprites.size()) + 1) - 1;
        const QImage image = picture();
        PlainSprites::Sprite sprite{id(), QPoint(m_random.bounded(-9, 9), 70000), {}, -1};
        m_real.insertSprite(behind, sprite.id, sprite.axis, image);
        sprite.axis.setY(32767);
        takeImage(&sprite, image);
        plain.sprites.insert(plain.sprites.begin() + (behind + 1), sprite);
    }

    void addSeveral()
    {
        for (int i = 0; i < 3; ++i) {
            const QImage image = picture();
            AssetId id = plain.sprites.empty() ? AssetId{} : plain.sprites.back().id;
            while (!plain.sprites.empty() && plain.hasId(id)) {
                id = AssetId::fromKey(id.key() + 1);
            }
            m_real.addSprite()->setImage(image);
            plain.sprites.push_back({id, {}, {}, -1});
            takeImage(&plain.sprites.back(), image);
        }
        m_real.refresh();
    }

    void remove()
    {
        const int gone = row();
        m_real.remove(unsigned(gone));
        if (gone >= 0) {
            plain.sprites.erase(plain.sprites.begin() + gone);
        }
    }

    void move()
    {
        const int from = row();
        const int to = row();
        m_real.move(unsigned(from), unsigned(to));
        if (from >= 0) {
            const auto sprite = *at(from);
            plain.sprites.erase(plain.sprites.begin() + from);
            plain.sprites.insert(plain.sprites.begin() + to, sprite);
        }
    }

    void sort()
    {
        m_real.autoOrganize();
        const auto less = [](const auto& a, const auto& b) { return a.id < b.id; };
        std::stable_sort(plain.sprites.begin(), plain.sprites.end(), less);
        std::stable_sort(plain.palettes.begin(), plain.palettes.end(), less);
    }

    void setAxis()
    {
        if (const int place = row(); place >= 0) {
            at(place)->axis = {m_random.bounded(-2, 2), m_random.bounded(-2, 2)};
            m_real.sprite(place)->setProperty(QStringLiteral("Axis"), at(place)->axis);
        }
    }

    void rename()
    {
        if (const int place = row(); place >= 0) {
            at(place)->id = id();
            m_real.sprite(place)->setProperty(QStringLiteral("Identifier"), at(place)->id.text());
        }
    }

    void setPalette()
    {
        const int place = row();
        const int palette = m_random.bounded(3) == 0 ? -1 : paletteRow();
        if (place >= 0) {
            m_real.sprite(place)->setPalette(m_real.palettes()->palette(palette));
            if (at(place)->pixels.depth() == 8) {
                at(place)->palette = name(palette);
            }
        }
    }

    void setImage()
    {
        if (const int place = row(); place >= 0) {
            const QImage image = picture();
            m_real.sprite(place)->setImage(image, false, Zorv::Sprite::ImagePalette, nullptr);
            takeImage(at(place), image);
        }
    }

    void duplicate()
    {
        if (const int place = row(); place >= 0) {
            auto copy = *at(place);
            while (plain.hasId(copy.id)) {
                copy.id = AssetId::fromKey(copy.id.key() + 1);
            }
            m_real.sprite(place)->duplicate();
            plain.sprites.insert(plain.sprites.begin() + place + 1, copy);
        }
    }

    void addPalette()
    {
        const PaletteColors colors = someColors(m_random.bounded(4));
        Zorv::RGBA array[256];
        std::copy(colors.begin(), colors.end(), array);
        const int before = m_random.bounded(int(plain.palettes.size()) + 1);
        AssetId wish = id();
        const bool onlyWish = m_random.bounded(2);
        m_real.palettes()->insert(before, array, wish.text(), onlyWish);
        while (onlyWish && plain.hasPaletteId(wish)) {
            wish = AssetId::fromKey(wish.key() + 1);
        }
        plain.palettes.insert(plain.palettes.begin() + before, {++plain.lastName, wish, colors});
    }

    void removePalette()
    {
        const int gone = paletteRow();
        m_real.palettes()->remove(gone);
        if (gone >= 0) {
            plain.dropPalette(gone);
        }
    }

    void setColors()
    {
        if (const int place = paletteRow(); place >= 0) {
            const PaletteColors colors = someColors(m_random.bounded(4));
            Zorv::RGBA array[256];
            std::copy(colors.begin(), colors.end(), array);
            m_real.palettes()->palette(place)->setColors(array, Zorv::Palette::KeepPixels);
            plain.palettes[size_t(place)].colors = colors;
        }
    }

    void tidy()
    {
        if (m_random.bounded(2)) {
            m_real.palettes()->removeUnused();
            plain.removeUnused();
        } else {
            m_real.palettes()->removeDuplicates();
            plain.removeDuplicates();
        }
    }

    void remap()
    {
        RemapModel* model = m_real.palettes()->remaps();
        const AssetId from = id();
        const AssetId to = id();
        const int kind = plain.remaps.empty() ? 0 : m_random.bounded(3);
        if (kind == 0) {
            model->add(from, to);
            plain.remaps.push_back({from, to});
            return;
        }
        const int place = m_random.bounded(int(plain.remaps.size()));
        if (kind == 1) {
            model->removeRows(place, 1);
            plain.remaps.erase(plain.remaps.begin() + place);
        } else {
            model->setData(model->index(place, RemapModel::To), to.text());
            plain.remaps[size_t(place)].second = to;
        }
    }

    void several()
    {
        m_real.beginChange(QStringLiteral("Several"));
        for (int i = 0; i < 3; ++i) {
            edit();
        }
        m_real.endChange();
    }

    SpriteFile& m_real;
    QRandomGenerator& m_random;
};

}  // namespace

class TestSpriteCollection : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Zorv::setLosslessImages(true); }
    void agreesWithPlainModel();
    void takesImagesByMode();
    void adaptsPixelsToNewColors();
    void splitsChannels();
    void remapChangesWhatIsShown();
    void keepsEqualPixelsOnce();
    void takesTheSmallestCodec();
    void telltalesFollowTheirSprite();
};

void TestSpriteCollection::agreesWithPlainModel()
{
    qInfo("seed %u", Seed);
    QTemporaryDir folder;
    for (quint32 round = 0; round < 12; ++round) {
        QRandomGenerator random(Seed + round);
        SpriteFile real;
        QAbstractItemModelTester spriteTester(&real);
        QAbstractItemModelTester paletteTester(real.palettes());
        QAbstractItemModelTester remapTester(real.palettes()->remapModel());
        BothSides both(real, random);
        QVector<PlainSprites> states{both.plain};
        int present = 0;
        for (int i = 0; i < 120; ++i) {
            if (random.bounded(6) == 0) {
                const bool back = random.bounded(2);
                back ? real.undo() : real.redo();
                present = qBound(0, present + (back ? -1 : 1), states.size() - 1);
                const int lastName = both.plain.lastName;
                both.plain = states[present];
                both.plain.lastName = lastName;
            } else {
                both.edit();
                if (both.plain.lines() != states[present].lines()) {
                    states.resize(++present);
                    states.append(both.plain);
                }
            }
            QCOMPARE(PlainSprites::linesOf(real), both.plain.lines());
        }
        while (present > 0) {
            real.undo();
            QCOMPARE(PlainSprites::linesOf(real), states[--present].lines());
        }
        QVERIFY(!real.steps().canUndo());
        QVERIFY(!real.isModified());
        while (++present < states.size()) {
            real.redo();
            QCOMPARE(PlainSprites::linesOf(real), states[present].lines());
        }
        auto& archive = *Zorv::FileSystemArchive::instance();
        const QString name = folder.filePath(QStringLiteral("a.sprites"));
        QVERIFY2(real.toFile(archive, name, false), qPrintable(real.errorString()));
        QVERIFY(!real.isModified());
        SpriteFile again;
        QVERIFY2(again.fromFile(archive, name, false), qPrintable(again.errorString()));
        QCOMPARE(again.loadErrors(), QStringList());
        QCOMPARE(PlainSprites::linesOf(again), states.last().lines());
    }
}

void TestSpriteCollection::takesImagesByMode()
{
    SpriteFile file;
    const auto first = tableOfColors(someColors(0));
    const auto second = tableOfColors(someColors(1));
    FamilySprite* user = file.insertSprite(-1, {0, 0}, {}, indexed({6, 5}, 0, first));
    FamilySprite* sprite = file.insertSprite(0, {0, 1}, {}, indexed({6, 5}, 2, first));
    Zorv::Palette* shared = user->palette();
    QCOMPARE(file.palettes()->count(), 1);
    const QImage other = indexed({4, 4}, 1, second);

    sprite->setImage(other, false, Zorv::Sprite::ForcePalette, nullptr);
    QCOMPARE(sprite->palette(), shared);
    const QImage forced = sprite->image();
    QCOMPARE(forced.colorTable(), first);
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 4; ++x) {
            const auto distance = [&](QRgb to) {
                const QRgb from = other.pixel(x, y);
                const auto square = [](int d) { return d * d; };
                return square(qRed(from) - qRed(to)) + square(qGreen(from) - qGreen(to)) +
                       square(qBlue(from) - qBlue(to)) + square(qAlpha(from) - qAlpha(to));
            };
            for (const QRgb color : first) {
                QVERIFY(distance(forced.pixel(x, y)) <= distance(color));
            }
        }
    }

    sprite->setImage(other, false, Zorv::Sprite::ReplacePalette, shared);
    QCOMPARE(sprite->image(), other);
    QCOMPARE(user->image().colorTable(), second);
    QCOMPARE(file.palettes()->count(), 1);
    file.undo();
    QCOMPARE(user->image().colorTable(), first);

    sprite->setImage(other, true, Zorv::Sprite::ImagePalette, nullptr);
    QCOMPARE(file.palettes()->count(), 2);
    QCOMPARE(sprite->image().convertToFormat(QImage::Format_ARGB32),
             other.convertToFormat(QImage::Format_ARGB32));
    QCOMPARE(sprite->image().colorTable().last(), second.first());
    QCOMPARE(sprite->image().pixelIndex(1, 0), 255 - other.pixelIndex(1, 0));

    sprite->setImage(trueColor({3, 3}, 1), false, Zorv::Sprite::ImagePalette, shared);
    QCOMPARE(sprite->palette(), nullptr);
    QCOMPARE(sprite->image(), trueColor({3, 3}, 1));
    QCOMPARE(sprite->property(QStringLiteral("Codec")), QVariant(QStringLiteral("PNG")));
    sprite->setImage(trueColor({3, 3}, 1), false, Zorv::Sprite::ReplacePalette, shared);
    QCOMPARE(sprite->palette(), shared);
    QCOMPARE(user->palette(), shared);
    // Where nothing is to be seen the colour does not count.
    const auto visible = QImage::Format_ARGB32_Premultiplied;
    QCOMPARE(sprite->image().convertToFormat(visible),
             trueColor({3, 3}, 1).convertToFormat(visible));
}

void TestSpriteCollection::adaptsPixelsToNewColors()
{
    SpriteFile file;
    const PaletteColors before = someColors(0);
    PaletteColors after = before;
    std::reverse(after.begin(), after.end());
    Zorv::RGBA array[256];
    std::copy(after.begin(), after.end(), array);
    FamilySprite* sprite = file.insertSprite(-1, {}, {}, indexed({9, 7}, 1, tableOfColors(before)));
    const QImage picture = sprite->image().convertToFormat(QImage::Format_ARGB32);
    sprite->palette()->setColors(array, Zorv::Palette::AdaptPixels);
    QCOMPARE(sprite->image().colorTable(), tableOfColors(after));
    QCOMPARE(sprite->image().convertToFormat(QImage::Format_ARGB32), picture);
    file.undo();
    QCOMPARE(sprite->image().colorTable(), tableOfColors(before));
    QCOMPARE(sprite->image().convertToFormat(QImage::Format_ARGB32), picture);
}

void TestSpriteCollection::splitsChannels()
{
    SpriteFile file;
    const QImage picture = trueColor({5, 4}, 3);
    FamilySprite* sprite = file.insertSprite(-1, {7, 3}, {2, 1}, picture);
    file.insertSprite(0, {7, 5}, {}, trueColor({1, 1}, 0));
    sprite->splitChannels();
    QCOMPARE(file.count(), 5u);
    const QStringList names{QStringLiteral("7,3"), QStringLiteral("7,4"), QStringLiteral("7,6"),
                            QStringLiteral("7,7"), QStringLiteral("7,5")};
    for (int row = 0; row < names.size(); ++row) {
        QCOMPARE(file.index(row).data().toString(), names[row]);
    }
    for (int channel = 0; channel < 3; ++channel) {
        const FamilySprite* grey = file.sprite(1 + channel);
        QCOMPARE(grey->axis(), QPoint(2, 1));
        for (int y = 0; y < 4; ++y) {
            for (int x = 0; x < 5; ++x) {
                const QRgb color = picture.pixel(x, y);
                const int level = qAlpha(color) == 0 ? 0
                                  : channel == 0     ? qRed(color)
                                  : channel == 1     ? qGreen(color)
                                                     : qBlue(color);
                QCOMPARE(grey->image().pixel(x, y), qRgb(level, level, level));
            }
        }
    }
    file.undo();
    QCOMPARE(file.count(), 2u);
    QCOMPARE(file.palettes()->count(), 0);
}

void TestSpriteCollection::remapChangesWhatIsShown()
{
    SpriteFile file;
    const auto first = tableOfColors(someColors(0));
    const auto second = tableOfColors(someColors(1));
    FamilySprite* sprite = file.insertSprite(-1, {}, {}, indexed({3, 3}, 0, first));
    file.insertSprite(0, {}, {}, indexed({3, 3}, 0, second));
    QSignalSpy shown(&file, &QAbstractItemModel::dataChanged);
    file.palettes()->remaps()->add({1, 1}, {1, 2});
    QVERIFY(!shown.isEmpty());
    QCOMPARE(sprite->image().colorTable(), second);
    // What is shown can be given back: only pixels are replaced.
    sprite->setImage(indexed({2, 2}, 0, second));
    QCOMPARE(static_cast<FamilyPalette*>(sprite->palette())->id().text(), QStringLiteral("1,1"));
    file.undo();
    file.undo();
    QCOMPARE(sprite->image().colorTable(), first);
}

void TestSpriteCollection::keepsEqualPixelsOnce()
{
    QTemporaryDir folder;
    SpriteFile file;
    const QImage image = indexed({40, 30}, 1, tableOfColors(someColors(0)));
    for (int i = 0; i < 3; ++i) {
        file.insertSprite(i, {0, quint16(i)}, {}, image);
    }
    file.insertSprite(3, {1, 0}, {}, indexed({30, 40}, 1, image.colorTable()));
    const PixelData* shared = file.sprite(0)->state.pixels.get();
    QCOMPARE(file.sprite(2)->state.pixels.get(), shared);
    QVERIFY(file.sprite(3)->state.pixels.get() != shared);
    auto& archive = *Zorv::FileSystemArchive::instance();
    QVERIFY(file.toFile(archive, folder.filePath(QStringLiteral("a")), false));
    SpriteFile again;
    QVERIFY(again.fromFile(archive, folder.filePath(QStringLiteral("a")), false));
    QCOMPARE(again.sprite(2)->state.pixels.get(), again.sprite(0)->state.pixels.get());
    // Pixels of a file are found too, and none of them is unpacked for that but the one.
    FamilySprite* added = again.insertSprite(0, {9, 9}, {}, image);
    QCOMPARE(added->state.pixels.get(), again.sprite(0)->state.pixels.get());
}

void TestSpriteCollection::takesTheSmallestCodec()
{
    SpriteFile file;
    QImage flat(64, 64, QImage::Format_Indexed8);
    flat.fill(3);
    QImage noise(16, 16, QImage::Format_Indexed8);
    QRandomGenerator random(Seed);
    for (int i = 0; i < 256; ++i) {
        noise.scanLine(i / 16)[i % 16] = uchar(random.bounded(128, 256));
    }
    FamilySprite* sprite = file.insertSprite(-1, {}, {}, flat);
    for (const QImage& image : {flat, noise}) {
        sprite->setImage(image);
        const QByteArray rows = sprite->pixelRows();
        const int taken = file.store()->stream(sprite->state.pixels.get()).size();
        const QString chosen = sprite->property(QStringLiteral("Codec")).toString();
        for (const char* codec : {"LZ5", "RLE8", "PCX", "PNG"}) {
            sprite->setProperty(QStringLiteral("Codec"), QString::fromLatin1(codec));
            const bool fits = image == flat || qstrcmp(codec, "LZ5") != 0;
            QCOMPARE(sprite->property(QStringLiteral("Codec")).toString() ==
                         QString::fromLatin1(codec),
                     fits);
            sprite->reload();
            QCOMPARE(sprite->pixelRows(), rows);
            QVERIFY(file.store()->stream(sprite->state.pixels.get()).size() >= taken);
        }
        sprite->setProperty(QStringLiteral("Codec"), chosen);
    }
}

void TestSpriteCollection::telltalesFollowTheirSprite()
{
    SpriteFile file;
    for (quint16 i = 0; i < 6; ++i) {
        file.insertSprite(i, {0, quint16(9 - i)}, {}, trueColor({1, 1}, 0));
    }
    QSignalSpy changed(&file, &SpriteFile::changed);
    file.setCurrent(2);
    file.remove(0);
    QCOMPARE(file.currentIndex, 1);
    file.autoOrganize();
    QCOMPARE(file.currentIndex, 3);
    QCOMPARE(file.find(0, QStringLiteral("0, 7")), 3);
    QCOMPARE(file.find(4, QStringLiteral("0,7")), -1);
    QCOMPARE(file.freeId({0, 4}).text(), QStringLiteral("0,9"));
    file.removeSprites({0, 3, 4});
    QCOMPARE(file.count(), 2u);
    QCOMPARE(changed.size(), 3);
    QCOMPARE(changed.last().value(0).toBool(), true);
    file.undo();
    file.undo();
    file.undo();
    QCOMPARE(file.index(0).data().toString(), QStringLiteral("0,9"));
}

QTEST_GUILESS_MAIN(TestSpriteCollection)
#include "tst_spritecollection.moc"
