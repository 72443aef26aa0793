#include "family/assets/remapmodel.h"
#include "family/assets/spritefile.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/framenode.h"
#include "family/stage/frameprovider.h"

#include <QRandomGenerator>
#include <QTextCursor>
#include <QtTest>

using namespace Family;

namespace {

constexpr quint32 Seed = 20261108;

QImage indexed(int side, int kind)
{
    QImage image(side, side, QImage::Format_Indexed8);
    QVector<QRgb> colors;
    for (int i = 0; i < 256; ++i) {
        colors.append(qRgb(i, i * kind, 255 - i));
    }
    image.setColorTable(colors);
    image.fill(uint(kind));
    return image;
}

/// What a stage keeps from one signal to the next.
struct Held
{
    Zorv::Sprite* sprite = nullptr;
    QVector<QVariant> properties;

    static Held of(const FrameProvider& provider)
    {
        Held held{provider.at(0), {}};
        for (unsigned key = 0; held.sprite && key < 8; ++key) {
            held.properties.append(provider.property(0, key));
        }
        return held;
    }
};

/// Edits of a text and of a collection of few sprites, so that most of them concern the one frame
/// that is shown.
class Edits
{
public:
    Edits(FamilyDocument& document, SpriteFile& sprites, QRandomGenerator& random)
        : m_document(document), m_sprites(sprites), m_random(random)
    {
    }

    void editText()
    {
        QTextCursor cursor(m_document.findBlockByNumber(m_random.bounded(m_document.blockCount())));
        switch (m_random.bounded(5)) {
        case 0:
            m_document.insertOnCursor(QStringLiteral("frame 0,%1 offset %2, 4 delay 3 flip h\n")
                                          .arg(m_random.bounded(4))
                                          .arg(m_random.bounded(9)),
                                      cursor);
            break;
        case 1:
            cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
            cursor.removeSelectedText();
            break;
        case 2:
            cursor.insertText(QStringLiteral("x"));
            break;
        default:
            m_random.bounded(3) ? m_document.undo() : m_document.redo();
            break;
        }
    }

    void editSprites()
    {
        const int row = m_random.bounded(int(m_sprites.count()) + 1);
        FamilySprite* sprite = m_sprites.sprite(row);
        const AssetId id{0, quint16(m_random.bounded(4))};
        const QImage image = indexed(1 + m_random.bounded(9), m_random.bounded(3));
        switch (m_random.bounded(sprite ? 12 : 2)) {
        case 0:
            m_sprites.insertSprite(row - 1, id, {m_random.bounded(5), 7}, image);
            break;
        case 1:
            m_sprites.undo();
            break;
        case 2:
            m_sprites.redo();
            break;
        case 3:
            m_sprites.removeSprite(row);
            break;
        case 4:
            sprite->setAxis({m_random.bounded(5), 8});
            break;
        case 5:
            sprite->setProperty(QStringLiteral("Identifier"), id.text());
            break;
        case 6:
            sprite->setImage(image);
            break;
        case 7:
            sprite->duplicate();
            break;
        case 8:
            m_sprites.autoOrganize();
            break;
        case 9:
            m_sprites.move(unsigned(row), 0);
            break;
        case 10:
            several(row);
            break;
        default:
            m_sprites.palettes()->remove(0);
            break;
        }
    }

private:
    void several(int row)
    {
        m_sprites.beginChange(QStringLiteral("several"));
        m_sprites.removeSprite(row);
        editSprites();
        m_sprites.insertSprite(-1, {0, 1}, {}, indexed(3, 1));
        m_sprites.endChange();
    }

    FamilyDocument& m_document;
    SpriteFile& m_sprites;
    QRandomGenerator& m_random;
};

}  // namespace

class TestFrameProvider : public QObject
{
    Q_OBJECT

private slots:
    void stageNeverHoldsADeadSprite();
    void colorsAreTold();
    void whatGoesIsLetGo_data();
    void whatGoesIsLetGo();
};

/// A stage that asks anew at each signal has, after every edit and while rows of the collection
/// come and go, what a search in text and collection finds.
void TestFrameProvider::stageNeverHoldsADeadSprite()
{
    qInfo("seed %u", Seed);
    QRandomGenerator random(Seed);
    FamilyDocument document(FileKind::Animations);
    const QString text =
        QStringLiteral("animation 1\nframe 0,1\nframe 0,2 scale 2, -3 angle 30\nframe 0,3\n");
    document.fromString(text);
    SpriteFile sprites;
    Zorv::FollowedAnimation animation;
    animation.setAnimation(document.animations()->animation(0));
    FrameProvider provider;
    provider.setAnimation(&animation);
    provider.setSprites(&sprites);
    Held held;
    connect(&provider, &FrameProvider::changed, this, [&] { held = Held::of(provider); });
    connect(&sprites, &QAbstractItemModel::rowsRemoved, this,
            [&] { QVERIFY(!held.sprite || static_cast<FamilySprite*>(held.sprite)->row >= 0); });
    connect(&sprites, &QAbstractItemModel::modelReset, this, [&] { QVERIFY(!held.sprite); });

    Edits edits(document, sprites, random);
    int shown = 0;
    for (int step = 0; step < 5000; ++step) {
        if (step % 40 == 0) {
            document.fromString(text);
        }
        switch (random.bounded(20)) {
        case 0:
            provider.setFrame(random.bounded(-1, 4));
            break;
        case 1:
            random.bounded(10) == 0 ? sprites.reset() : edits.editSprites();
            break;
        default:
            random.bounded(2) ? edits.editText() : edits.editSprites();
            break;
        }
        const auto* frame = static_cast<FrameNode*>(animation.frame(provider.frameIndex()));
        FamilySprite* sprite =
            frame ? sprites.sprite(sprites.find(0, frame->identifier())) : nullptr;
        QCOMPARE(held.sprite, static_cast<Zorv::Sprite*>(sprite));
        QCOMPARE(held.sprite, provider.at(0));
        if (sprite) {
            ++shown;
            const FramePose pose = poseOf(frame->data(), sprite->size(), sprite->axis());
            const QVector<QVariant> wanted = {pose.position, 2, 1, pose.size, pose.scale, pose.flip,
                                              pose.rotation, 0};
            for (int key = 0; key < wanted.size(); ++key) {
                QCOMPARE(held.properties[key].toString(), wanted[key].toString());
                QCOMPARE(held.properties[key].toSize(), wanted[key].toSize());
            }
            QCOMPARE(provider.pose(), pose);
            QCOMPARE(provider.onionOffset(), sprite->axis() - frame->offset());
        }
    }
    QVERIFY2(shown > 1000, qPrintable(QString::number(shown)));
    QCOMPARE(provider.at(1), nullptr);
}

/// Other colours are told even though sprite and frame are the same.
void TestFrameProvider::colorsAreTold()
{
    FamilyDocument document(FileKind::Animations);
    document.fromString(QStringLiteral("animation 1\nframe 0,1\n"));
    SpriteFile sprites;
    FamilySprite* sprite = sprites.insertSprite(-1, {0, 1}, {}, indexed(4, 1));
    Zorv::FollowedAnimation animation;
    animation.setAnimation(document.animations()->animation(0));
    FrameProvider provider;
    provider.setAnimation(&animation);
    provider.setSprites(&sprites);
    QSignalSpy spy(&provider, &FrameProvider::changed);

    Zorv::RGBA colors[256] = {};
    sprite->palette()->setColors(colors, Zorv::Palette::KeepPixels);
    QCOMPARE(spy.count(), 1);
    sprites.undo();
    QCOMPARE(spy.count(), 2);
    sprites.palettes()->remaps()->add({1, 1}, {1, 2});
    QCOMPARE(spy.count(), 3);
    QTextCursor(document.findBlockByNumber(1)).insertText(QStringLiteral("\n"));
    QCOMPARE(spy.count(), 3);
    QVERIFY(!sprite->texture() || QGuiApplication::platformName() != QLatin1String("offscreen"));
}

void TestFrameProvider::whatGoesIsLetGo_data()
{
    QTest::addColumn<int>("what");
    QTest::newRow("collection") << 0;
    QTest::newRow("document") << 1;
    QTest::newRow("followed animation") << 2;
}

void TestFrameProvider::whatGoesIsLetGo()
{
    QFETCH(int, what);
    auto document = std::make_unique<FamilyDocument>(FileKind::Animations);
    document->fromString(QStringLiteral("animation 1\nframe 0,1\n"));
    auto sprites = std::make_unique<SpriteFile>();
    sprites->insertSprite(-1, {0, 1}, {}, indexed(4, 1));
    auto animation = std::make_unique<Zorv::FollowedAnimation>();
    animation->setAnimation(document->animations()->animation(0));
    FrameProvider provider;
    provider.setAnimation(animation.get());
    provider.setSprites(sprites.get());
    Held held = Held::of(provider);
    QVERIFY(held.sprite);
    connect(&provider, &FrameProvider::changed, this, [&] {
        if (held.sprite) {
            held = {};
            provider.setFrame(1);
            provider.setFrame(0);
        }
        held = Held::of(provider);
    });
    switch (what) {
    case 0:
        sprites.reset();
        break;
    case 1:
        document.reset();
        break;
    default:
        animation.reset();
        break;
    }
    QVERIFY(!held.sprite);
    QCOMPARE(provider.count(), 0U);
}

QTEST_MAIN(TestFrameProvider)
#include "tst_frameprovider.moc"
