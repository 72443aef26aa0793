#include "paintingfixture.h"

#include "family/assets/pixelstore.h"
#include "support/testtable.h"

#include <zorv/cache/pixelcopy.h>
#include <zorv/image/dialogs/sprimport.h>

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListView>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

namespace {

using Family::AssetId;
using Family::FamilySprite;
using Family::SpriteCollection;

const char OdaSprites[] = "characters/oda/oda.sprites";

/// All that a person sees of a sprite, and its colours, as they are and not as they are shown. The
/// alpha of the first of them tells no palettes apart.
struct Look
{
    explicit Look(const FamilySprite& sprite)
        : image(sprite.image()), axis(sprite.axis()), codec(sprite.codec())
    {
        if (const auto& palette = sprite.state.palette) {
            colors = palette->colorTable();
            colors[0] |= 0xff000000;
            image.setColor(0, colors[0]);
        }
    }
    bool operator==(const Look& other) const
    {
        return image == other.image && axis == other.axis && codec == other.codec &&
               colors == other.colors;
    }
    QImage image;
    QPoint axis;
    Family::PixelCodec codec;
    QVector<QRgb> colors;
};

}  // namespace

/// Sprites of another project come into the one in front, in the real window.
class TestSpriteImport : public PaintingTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m.reset(); }
    void importsWhatIsChosen_data();
    void importsWhatIsChosen();
    void copiesAreTheSame();
    void asksBeforePaintedWorkGoes_data();
    void asksBeforePaintedWorkGoes();
    void comesBeforeSavedLayers();
    void comesIntoTheProjectInFront();
    void noPixelsAndRefusedOnes();
    void anythingCanGoBehindTheDialog_data();
    void anythingCanGoBehindTheDialog();
    void canBeGivenUp();
    void needsAnotherProject();

private:
    SpriteCollection* source() const { return spritesOf(m_game->oda()); }
    SpriteCollection* spritesOf(const QString& mainFile) const
    {
        for (unsigned i = 0; i < m->host.projectCount(); ++i) {
            Zorv::Project* project = m->host.projectAt(i);
            if (project->fileName() == mainFile) {
                return static_cast<Family::FamilyProject*>(project)->sprites();
            }
        }
        return nullptr;
    }
    void close(const SpriteCollection* of) const
    {
        m->window->session()->closeProject(static_cast<Family::FamilyProject*>(of->project()));
    }
    QByteArray written() const
    {
        const QString path = m_folder->filePath(QStringLiteral("written.sprites"));
        sprites()->toFile(*Zorv::FileSystemArchive::instance(), path, true);
        return readFile(path);
    }

    /// What the person does in the dialog, which opens by its tool.
    void importBy(const std::function<void(SprImport*)>& person)
    {
        bool isSeen = false;
        QTimer::singleShot(0, this, [&] {
            auto* dialog = qobject_cast<SprImport*>(QApplication::activeModalWidget());
            QVERIFY(dialog && QTest::qWaitForWindowExposed(dialog));
            isSeen = true;
            person(dialog);
        });
        m->action("spr_import_proj")->trigger();
        QVERIFY(isSeen);
    }
    static void chooseAll(const SprImport* dialog, bool replaces)
    {
        dialog->findChild<QPushButton*>("all")->click();
        dialog->findChild<QPushButton*>("add")->click();
        dialog->findChild<QRadioButton*>(replaces ? "replace" : "skip")->click();
    }
    static void rename(const SprImport* dialog, int row, const QString& name)
    {
        auto* list = dialog->findChild<QListView*>("destination");
        doubleClickRow(list, list->model()->index(row, 0));
        auto* field = list->findChild<QLineEdit*>();
        QVERIFY(field);
        field->setText(name);
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_VERIFY(!list->findChild<QLineEdit*>());
    }
    static void accept(const SprImport* dialog)
    {
        dialog->findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Ok)->click();
    }
};

/// The other one has a sprite of the same number and palette, one of another palette under the
/// number of ours, one of true colour, one without palette, and a broken one.
void TestSpriteImport::init()
{
    begin();
    m_game->write("characters/oda/oda.character",
                  "[info]\r\nname = \"Oda\"\r\n[files]\r\nsprites = \"oda.sprites\"\r\n"
                  "animations = \"oda.anim\"\r\n");
    m_game->write("characters/oda/oda.anim", "animation 1 \"One\"\r\nframe 0,0 loop\r\n");
    Family::SpriteFile file;
    QImage alike = picture(2);
    alike.setColor(0, 0xff000000);
    file.insertSprite(-1, {0, 0}, {3, 4}, alike);
    QImage others = picture(3);
    others.setColor(2, 0xff123456);
    file.insertSprite(0, {0, 9}, {-2, 30}, others);
    file.insertSprite(1, {4, 4}, {1, 1}, picture(1).convertToFormat(QImage::Format_ARGB32));
    file.insertSprite(2, {4, 5}, {2, 2}, alike)->setPalette(nullptr);
    FamilySprite* broken = file.insertSprite(3, {4, 6}, {2, 2}, picture(5));
    FamilySprite::State state = broken->state;
    state.pixels = file.store()->adopt({{16, 12}, 8, Family::PixelCodec::Lz5}, "no stream", 7, 8);
    file.change(broken, state);
    file.palettes()->palette(1)->setProperty(QStringLiteral("Identifier"),
                                             file.palettes()->palette(0)->id().text());
    QVERIFY(file.toFile(*Zorv::FileSystemArchive::instance(), m_game->path(OdaSprites), false));
    QVERIFY(m->window->openFile(m_game->oda()));
    QVERIFY(m->window->openFile(m_game->ryn()));
    QVERIFY(source() && source() != sprites());
}

void TestSpriteImport::importsWhatIsChosen_data()
{
    columns<bool, QStringList, QStringList>("replaces", "ours", "theirs");
    row("skip", false, QStringList{"0,0", "0,1", "0,7", "4,4", "4,5"},
        QStringList{"", "", "0,9", "4,4", "4,5"});
    row("replace", true, QStringList{"0,0", "0,1", "0,7", "4,4", "4,5"},
        QStringList{"0,0", "", "0,9", "4,4", "4,5"});
}

void TestSpriteImport::importsWhatIsChosen()
{
    const auto [replaces, ours, theirs] = fetched<bool, QStringList, QStringList>();
    const QByteArray first = written();
    QVector<Look> before;
    for (const auto& sprite : sprites()->items()) {
        before.append(Look(*sprite));
    }
    importBy([replaces = replaces](SprImport* dialog) {
        chooseAll(dialog, replaces);
        rename(dialog, 1, QStringLiteral("hero"));
        rename(dialog, 1, QStringLiteral("0,7"));
        accept(dialog);
    });
    QCOMPARE(m->dialogs.count("warning"), 1);
    QCOMPARE(sprites()->rowCount(), ours.size());
    for (int row = 0; row < ours.size(); ++row) {
        const FamilySprite* sprite = sprites()->sprite(row);
        QCOMPARE(sprite->id().text(), ours[row]);
        QVERIFY2(Look(*sprite) == (theirs[row].isEmpty()
                                       ? before[row]
                                       : Look(*source()->sprite(source()->find(0, theirs[row])))),
                 qPrintable(ours[row]));
    }
    QCOMPARE(sprites()->palettes()->count(), 2);
    QVERIFY(sprites()->palettes()->palette(0)->id() != sprites()->palettes()->palette(1)->id());
    QCOMPARE(editor()->spriteIndex(), 2);
    const QString report = m->dialogs.texts("information").value(0);
    QVERIFY2(report.startsWith(replaces ? "4 sprite" : "3 sprite") && report.contains("'4,6'") &&
                 report.contains(replaces ? "1 of them" : "1 was skipped") &&
                 report.contains("1 palette"),
             qPrintable(report));
    sprites()->undo();
    QCOMPARE(written(), first);
    QVERIFY(!sprites()->canUndo());
}

/// The one of a host that knows images alone, and the packed one.
void TestSpriteImport::copiesAreTheSame()
{
    for (const auto& sprite : source()->items()) {
        for (const auto& copy : {sprite->copyPixels(), sprite->Zorv::Sprite::copyPixels()}) {
            const bool isWhole = sprite->id() != AssetId{4, 6};
            QCOMPARE(copy->read(), isWhole);
            for (int row = -1; row < 2 && isWhole; ++row) {
                FamilySprite* target = row < 0 ? sprites()->addSprite() : sprites()->sprite(row);
                QVERIFY(copy->putInto(target));
                QCOMPARE(target->pixelRows(), sprite->pixelRows());
                QCOMPARE(target->size(), sprite->size());
                sprites()->refresh();
            }
        }
    }
    QCOMPARE(sprites()->palettes()->count(), 1);
}

void TestSpriteImport::asksBeforePaintedWorkGoes_data()
{
    columns<int, bool, bool>("answer", "replaces", "comes");
    row("saved", 0, true, true);
    row("discarded", 1, true, true);
    row("kept", -1, true, false);
    row("not replaced", -1, false, true);
}

void TestSpriteImport::asksBeforePaintedWorkGoes()
{
    const auto [answer, replaces, comes] = fetched<int, bool, bool>();
    const QByteArray first = written();
    openFirst();
    canvas()->flip(true, false);
    const QImage painted = canvas()->mergeLayers(nullptr);
    m->dialogs.choiceAnswers = {answer};
    importBy([replaces = replaces](SprImport* dialog) {
        chooseAll(dialog, replaces);
        accept(dialog);
    });
    // Only the way to the first new sprite is asked about, if nothing is in danger.
    QCOMPARE(m->dialogs.count("choose"), 1);
    QCOMPARE(written() != first, comes);
    const bool isKept = answer < 0;
    QCOMPARE(editor()->isCanvasModified(), isKept);
    QCOMPARE(editor()->spriteIndex(), isKept ? 0 : 2);
    QVERIFY(!isKept || canvas()->mergeLayers(nullptr) == painted);
    while (sprites()->canUndo()) {
        sprites()->undo();
    }
    QCOMPARE(written(), first);
}

/// They are saved, so there is nothing to ask, and nothing of them in the new picture.
void TestSpriteImport::comesBeforeSavedLayers()
{
    openFirst();
    canvas()->flip(true, false);
    trigger("spr_layer_add");
    trigger("spr_saveimg");
    importBy([](SprImport* dialog) {
        chooseAll(dialog, true);
        accept(dialog);
    });
    editor()->showSprite(sprites(), 0);
    QCOMPARE(m->dialogs.count("choose"), 0);
    QVERIFY(!editor()->isCanvasModified());
    QVERIFY(differences(canvas()->mergeLayers(nullptr), picture(2)).isEmpty());
    trigger("save");
    QVERIFY(differences(sprites()->sprite(0)->image(), picture(2)).isEmpty());
}

/// What the canvas keeps of another one stays.
void TestSpriteImport::comesIntoTheProjectInFront()
{
    SpriteCollection* own = sprites();
    openFirst();
    canvas()->flip(true, false);
    QVERIFY(m->window->openFile(m_game->path("characters/oda/oda.anim")));
    trigger("editor_anim");
    QVERIFY(sprites() == source() && editor()->sprites() == own);
    m->dialogs.choiceAnswers = {-1};
    importBy([](SprImport* dialog) {
        chooseAll(dialog, true);
        accept(dialog);
    });
    QCOMPARE(m->dialogs.count("choose"), 1);  // on the way to the first new sprite
    QVERIFY(!own->canUndo() && editor()->isCanvasModified());
    QVERIFY(Look(*source()->sprite(0)) == Look(*own->sprite(0)));
    QVERIFY(Look(*source()->sprite(5)) == Look(*own->sprite(1)));
}

/// A sprite may lose its pixels by an import, never by a picture that cannot be stored.
void TestSpriteImport::noPixelsAndRefusedOnes()
{
    FamilySprite* sprite = sprites()->sprite(0);
    const Look before(*sprite);
    QImage large(70000, 1, QImage::Format_Indexed8);
    large.fill(0);
    for (const auto& colours : {Colours, QVector<QRgb>{0, 1}}) {
        large.setColorTable(colours);
        sprite->setImage(large);
        sprite->setPrepared(*sprites()->imagePreparer()(large));
        for (const int mode : {Zorv::Sprite::ImagePalette, Zorv::Sprite::ReplacePalette,
                               Zorv::Sprite::ForcePalette}) {
            sprite->setImage(large, false, mode, sprite->palette());
        }
        QVERIFY(Look(*sprite) == before);
    }
    const auto nothing = source()->addSprite()->copyPixels();
    QVERIFY(nothing->read() && nothing->putInto(sprite));
    QVERIFY(sprite->image().isNull());
}

void TestSpriteImport::anythingCanGoBehindTheDialog_data()
{
    columns<QString>("what");
    for (const char* what : {"canceled", "source", "destination", "game", "source read anew",
                             "destination read anew"}) {
        row(what, QString(what));
    }
}

void TestSpriteImport::anythingCanGoBehindTheDialog()
{
    const auto [what] = fetched<QString>();
    const QByteArray first = written();
    QPointer<SpriteCollection> left = sprites();
    importBy([&, what = what](SprImport* dialog) {
        const QPointer<SprImport> alive(dialog);
        chooseAll(dialog, true);
        if (what == "source") {
            close(source());
        } else if (what == "destination") {
            close(sprites());
        } else if (what == "game") {
            m->action("close_folder")->trigger();
        } else if (what != "canceled") {
            SpriteCollection* read = what.startsWith("source") ? source() : sprites();
            QVERIFY(static_cast<Family::SpriteFile*>(read)->reload());
        }
        if (alive && alive->isVisible()) {
            what == "canceled" ? alive->reject() : accept(alive);
        }
        if (alive && alive->isVisible()) {
            alive->reject();  // nothing is left to be chosen
        }
    });
    const bool comes = what == "destination read anew";
    QCOMPARE(m->dialogs.count("information"), int(comes));
    if (left) {
        QCOMPARE(written() != first, comes);
        QCOMPARE(left->canUndo(), comes);
    }
}

/// In the middle of a large file.
void TestSpriteImport::canBeGivenUp()
{
    for (int i = 0; i < 3000; ++i) {
        source()->addSprite()->setImage(picture(i));
    }
    source()->refresh();
    const QByteArray first = written();
    bool isSeen = false;
    int largest = 0;
    QTimer giveUp;
    connect(&giveUp, &QTimer::timeout, this, [&] {
        auto* progress = m->window->findChild<QProgressDialog*>();
        if (progress) {
            progress->setMinimumDuration(0);  // shown however fast it goes
            largest = qMax(largest, progress->value());
        }
        if (progress && progress->value() > 100) {
            progress->cancel();
            isSeen = true;
        }
    });
    giveUp.start(0);
    importBy([](SprImport* dialog) {
        chooseAll(dialog, true);
        accept(dialog);
    });
    QVERIFY2(isSeen, qPrintable(QString::number(largest)));
    QCOMPARE(written(), first);
    QVERIFY(!sprites()->canUndo());
    QCOMPARE(m->dialogs.count("information"), 0);
}

void TestSpriteImport::needsAnotherProject()
{
    close(source());
    m->action("spr_import_proj")->trigger();
    QCOMPARE(m->dialogs.texts("warning"),
             QStringList{"You can't import from the destination project!"});
}

QTEST_MAIN(TestSpriteImport)
#include "tst_spriteimport.moc"
