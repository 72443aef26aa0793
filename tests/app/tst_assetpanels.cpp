#include "windowfixture.h"

#include "app/assets/spritepanel.h"
#include "app/assets/thumbnailcommands.h"
#include "app/sounds/soundpanel.h"
#include "app/window/panelplace.h"
#include "family/assets/soundfile.h"
#include "family/assets/spritefile.h"
#include "support/testsounds.h"
#include "support/testtable.h"

#include <zorv/animation/thumbnails/spritelist.h>
#include <zorv/animation/thumbnails/thumbnailseditor.h>
#include <zorv/core/filesystemarchive.h>
#include <zorv/editors/framework/rowlist.h>
#include <zorv/media/soundsample.h>
#include <zorv/media/wav.h>

#include <QAction>
#include <QHelpEvent>
#include <QImage>
#include <QSignalSpy>

using Family::AssetId;
using Family::SoundFile;
using Family::SpriteFile;

namespace {

constexpr QRgb Colors[] = {0x00000000, 0xffff0000, 0xff00c000, 0xff0000ff};

/// A block of one colour of four.
QImage block(int index, const QSize& size = {8, 6})
{
    QImage image(size, QImage::Format_Indexed8);
    image.setColorTable(QVector<QRgb>(std::begin(Colors), std::end(Colors)));
    image.fill(uint(index));
    return image;
}

bool hasColor(const QWidget* widget, const QColor& color)
{
    const QImage picture = const_cast<QWidget*>(widget)->grab().toImage();
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == color) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace

/// Sprites, palettes and sounds of the project in the real window: seen, taken out, saved.
class TestAssetPanels : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m.reset(); }

    void showsWhatIsInSight();
    void followsTheCursor();
    void thumbnailsAreThoseOfTheProject();
    void keepsWhatItHas();
    void soundsComeAndGo();
    void asksForSpritesThatAreNamedNoMore();
    void asksBeforeSpritesAreLost_data();
    void asksBeforeSpritesAreLost();

private:
    App::SpritePanel* panel() const { return m->fixture.window->spritePanel(); }
    Family::SpriteCollection* sprites() const { return panel()->sprites(); }
    void trigger(const char* name) const { m->fixture.action(name)->trigger(); }

    static void undo(QWidget* list)
    {
        App::bringForward(list);
        pressIn(list, QKeySequence::Undo);
    }

    struct Open
    {
        TemporaryGame game;
        QTemporaryDir folder;
        WindowFixture fixture{folder.filePath(QStringLiteral("settings.ini"))};
    };
    std::unique_ptr<Open> m;
};

void TestAssetPanels::init()
{
    m = std::make_unique<Open>();
    m->game.write("characters/ryn/ryn.character", "[info]\r\nname = \"Ryn\"\r\n[files]\r\n"
                                                  "sprites = \"ryn.sprites\"\r\n"
                                                  "sounds = \"ryn.sounds\"\r\n"
                                                  "animations = \"basic.anim\"\r\n"
                                                  "[constants]\r\nlife = 1000\r\n[.walk]\r\n"
                                                  "forward = 2.5\r\nback = -2\r\n");
    SpriteFile file;
    for (int i = 0; i < 500; ++i) {
        QVERIFY(file.insertSprite(i - 1, {0, quint16(i)}, {4, 6}, block(1 + i % 3)));
    }
    const QString folder = m->game.path("characters/ryn/");
    Zorv::Archive* archive = Zorv::FileSystemArchive::instance();
    QVERIFY(file.toFile(*archive, folder + "ryn.sprites", false));
    SoundFile sounds;
    QVERIFY(sounds.add(0, QStringLiteral("5,0"), soundOf(QByteArray(4410, 1))));
    QVERIFY(sounds.toFile(*archive, folder + "ryn.sounds", false));
    m->fixture.open(m->game, m->game.ryn(), m->game.animations());
    QTRY_VERIFY(sprites());
}

void TestAssetPanels::showsWhatIsInSight()
{
    Zorv::SpriteList* list = panel()->list();
    QCOMPARE(list->model()->rowCount(), 500);
    QTRY_VERIFY(hasColor(list->viewport(), QColor(0xff, 0, 0)));
}

void TestAssetPanels::followsTheCursor()
{
    m->fixture.goTo(8);
    QCoreApplication::processEvents();
    QCOMPARE(panel()->currentSprite()->id(), (AssetId{0, 2}));
    m->fixture.goTo(2);
    QCoreApplication::processEvents();
    QCOMPARE(panel()->currentSprite()->id(), (AssetId{0, 0}));
}

void TestAssetPanels::thumbnailsAreThoseOfTheProject()
{
    const Zorv::SpriteList* list = m->fixture.window->thumbnails()->panel()->list();
    QCOMPARE(list->sprites(), sprites());
    QVERIFY(!list->isMarked(2) && list->isMarked(499));
    m->fixture.document()->insert(QStringLiteral("frame 0,499  delay 3\n"));
    QVERIFY(!list->isMarked(499));
    undo(m->fixture.edit());
    QVERIFY(list->isMarked(499));
}

/// What cannot be read is told, and what is in memory stays.
void TestAssetPanels::keepsWhatItHas()
{
    const QRgb color = sprites()->sprite(400)->image().pixel(2, 2);
    m->game.write("characters/ryn/ryn.sprites", "no sprites");
    QVERIFY(!static_cast<SpriteFile*>(sprites())->reload());
    QCOMPARE(m->fixture.dialogs.count(QStringLiteral("error")), 1);
    QCOMPARE(sprites()->sprite(400)->image().pixel(2, 2), color);
}

void TestAssetPanels::soundsComeAndGo()
{
    App::SoundPanel* sounds = m->fixture.window->soundPanel();
    QTRY_VERIFY(sounds->sounds());
    const QString file = m->folder.filePath("5-9.wav");
    QFile plain(file);
    QVERIFY(Zorv::soundToWAV(soundOf(QByteArray(4410, 1)), &plain));
    m->fixture.dialogs.fileAnswers = {{file}};
    trigger("snd_add");
    QCOMPARE(sounds->sounds()->find(0, QStringLiteral("5,9")), 1);
    App::bringForward(sounds->list());
    sounds->list()->selectAll();
    pressIn(sounds->list(), Qt::Key_Delete);
    QCOMPARE(sounds->sounds()->count(), 0U);
    undo(sounds->list());
    QCOMPARE(sounds->sounds()->sound(1)->sampleData(), QByteArray(4410, 1));

    // The size of the whole as a program leaves it that records without an end.
    QFile wave(file);
    QVERIFY(wave.open(QIODevice::ReadWrite) && wave.seek(4));
    QVERIFY(wave.write(QByteArrayLiteral("\44\0\0\0")) == 4 &&
            wave.rename(m->folder.filePath("6-0.wav")));
    wave.close();
    using Zorv::Dialogs;
    for (const auto answer : {Dialogs::Cancel, Dialogs::No, Dialogs::Yes}) {
        m->fixture.dialogs.fileAnswers = {{wave.fileName()}};
        m->fixture.dialogs.buttonAnswers = {answer};
        trigger("snd_add");
        const int row = sounds->sounds()->find(0, QStringLiteral("6,0"));
        QCOMPARE(row >= 0, answer != Dialogs::Cancel);
        if (row >= 0) {
            QCOMPARE(sounds->sounds()->sound(row)->sampleData().size(),
                     answer == Dialogs::Yes ? 4410 : 4);
            undo(sounds->list());
        }
    }
    QCOMPARE(m->fixture.dialogs.count(QStringLiteral("question")), 3);
}

void TestAssetPanels::asksForSpritesThatAreNamedNoMore()
{
    const QByteArray before = m->game.read("characters/ryn/ryn.character");
    QVERIFY(QFile::copy(m->game.path("characters/ryn/ryn.sprites"),
                        m->game.path("characters/ryn/new.sprites")));
    panel()->setCurrentRow(10);
    pressIn(panel()->list(), Qt::Key_Delete);
    auto* project = App::projectOf(m->fixture.document());
    for (const char* name : {"new.sprites", "ryn.sprites"}) {
        QByteArray text = before;
        m->game.write("characters/ryn/ryn.character", text.replace("ryn.sprites", name));
        QVERIFY(project->mainDocument()->reload());
        project->loadFiles();
        QCOMPARE(QFileInfo(project->sprites()->fileName()).fileName(), QString(name));
        QCOMPARE(project->sprites()->count(), name[0] == 'n' ? 500U : 499U);
        QCOMPARE(m->fixture.window->session()->modifiedFiles().last()->fileName(),
                 m->game.path("characters/ryn/ryn.sprites"));
    }
}

void TestAssetPanels::asksBeforeSpritesAreLost_data()
{
    columns<int, unsigned>("answer", "left");
    QTest::newRow("saved") << 0 << 499U;
    QTest::newRow("discarded") << 1 << 500U;
    QTest::newRow("stays open") << -1 << 499U;
}

void TestAssetPanels::asksBeforeSpritesAreLost()
{
    const auto [answer, left] = fetched<int, unsigned>();
    panel()->setCurrentRow(10);
    pressIn(panel()->list(), Qt::Key_Delete);
    m->fixture.dialogs.choiceAnswers = {answer};
    trigger("close_project");
    QCOMPARE(m->fixture.dialogs.count(QStringLiteral("choose")), 1);
    if (answer >= 0) {
        QVERIFY(m->fixture.window->openFile(m->game.ryn()));
    }
    QTRY_VERIFY(sprites());
    QCOMPARE(sprites()->count(), left);
}

QTEST_MAIN(TestAssetPanels)
#include "tst_assetpanels.moc"
