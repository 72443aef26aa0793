#include "app/paint/paintcommands.h"
#include "app/recovery/recoverydialog.h"
#include "app/recovery/workrecovery.h"
#include "app/window/editorregistry.h"
#include "family/assets/familysound.h"
#include "operations/recovery/abandonedwork.h"
#include "operations/recovery/recoverykeeper.h"
#include "support/testsounds.h"
#include "windowfixture.h"

#include <zorv/image/canvas/imagecanvas.h>
#include <zorv/image/canvas/imagelayer.h>
#include <zorv/image/canvas/imagelayers.h>
#include <zorv/image/imagerenderer.h>
#include <zorv/image/spriteeditor.h>
#include <zorv/media/soundsample.h>

#include <QApplication>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTimer>
#include <QTreeWidget>

using App::RecoveryDialog;
using App::WorkRecovery;
using Operations::AbandonedWorks;

namespace {

constexpr int Patience = 120000;  // ms, until a busy machine has started a program
constexpr int MostAtOnce = 20;
constexpr int Kills = 50;
constexpr int KillsWithWindow = 10;
constexpr int AssetKills = 25;
constexpr int KillsWithAssetWindow = 4;
constexpr int KillsWithCanvas = 4;

QChar letter(int number)
{
    return QChar('a' + number % 26);
}

/// The window as another process, which does something again and again until it is killed. Prints
/// how often it did whenever all has been put aside.
int workUntilKilled(const QString& root, const QString& folder, const QString& file,
                    const std::function<void(WindowFixture&, int)>& work)
{
    WindowFixture fixture(folder + "/child.ini");
    WorkRecovery recovery(fixture.window->services(), root);
    recovery.keeper()->setInterval(20);
    fixture.window->openPath(folder);
    fixture.window->openFile(file);
    int done = 0;
    int copied = 0;
    QObject::connect(recovery.keeper(), &Operations::RecoveryKeeper::copied, [&] {
        copied = done;
        printf("%d\n", copied);
        fflush(stdout);
    });
    // A person pauses. Without a pause a slow machine never has all of it put aside.
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (done < copied + MostAtOnce) {
            work(fixture, done++);
        }
    });
    timer.start(2);
    return QApplication::exec();
}

/// Sprites, palettes and sounds that tell which one they are.
void addTo(const Family::FamilyProject* project, int number)
{
    QImage image(4, 4, QImage::Format_Indexed8);
    image.setColorTable({qRgb(0, 0, 0), qRgb(number, 1, 1)});
    image.fill(number % 2);
    Family::SpriteCollection* sprites = project->sprites();
    sprites->insertSprite(int(sprites->count()) - 1, {9, quint16(number)}, {number, 1}, image);
    project->sounds()->add(int(project->sounds()->count()), QString("9,%1").arg(number),
                           soundOf(QByteArray(100 + number, char(number)), 1, 8));
}

/// At least so many have come back, each as it was, and as one step.
void compareAdded(Family::SpriteCollection* sprites, Family::SoundFile* sounds, int least)
{
    QVERIFY(int(std::min(sprites->count(), sounds->count())) >= least);
    for (int at = 0; at < int(sprites->count()); ++at) {
        QCOMPARE(sprites->sprite(at)->axis(), QPoint(at, 1));
        QCOMPARE(sprites->sprite(at)->image().pixel(1, 1), at % 2 ? qRgb(at, 1, 1) : qRgb(0, 0, 0));
    }
    for (int at = 0; at < int(sounds->count()); ++at) {
        QCOMPARE(sounds->sound(at)->sampleData(), QByteArray(100 + at, char(at)));
    }
    QVERIFY(sprites->isModified() && sounds->isModified());
    sprites->undo();
    sounds->undo();
    QVERIFY(sprites->isEmpty() && !sprites->isModified());
    QVERIFY(sounds->isEmpty() && !sounds->isModified());
}

/// A layer on the canvas of the first sprite, every second one hidden.
void addLayer(const WindowFixture& fixture, int number)
{
    Zorv::SpriteEditor* editor = fixture.window->paint()->editor();
    if (editor->spriteIndex() < 0) {
        fixture.window->editors()->activate(editor);
    }
    Zorv::ImageCanvas* canvas = editor->renderer()->canvas();
    Zorv::ImageLayer* layer = canvas->newRasterLayer(canvas->mergeLayers(nullptr));
    layer->setName(QString::number(number), true);
    layer->setVisible(number % 2 == 0);
}

/// Does something with the recovery dialog once it is open.
void whenAsked(const std::function<void(RecoveryDialog*)>& answer)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, [timer, answer] {
        if (auto* dialog = qobject_cast<RecoveryDialog*>(QApplication::activeModalWidget())) {
            timer->deleteLater();
            answer(dialog);
        }
    });
    timer->start(5);
}

void clickButton(const QWidget* dialog, const QString& text)
{
    const QList<QAbstractButton*> buttons = dialog->findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons) {
        if (button->text().remove('&') == text) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    QFAIL(qPrintable("no button " + text));
}

}  // namespace

class TestWorkRecovery : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void killedWindowLosesLittle();
    void killedWindowLosesFewSpritesAndSounds();
    void killedWindowLosesFewLayers();
    void decisionsAreKept();
    void otherGameIsOpened();
    void gameIsAskedAboutWhenOpened();
    void newFileComesBack();
    void normalEndLeavesNothing();

private:
    QString root() const { return m_dir->filePath("recovery"); }
    QString settings() const { return m_dir->filePath("settings.ini"); }
    void leave(const QString& name, const QString& file, const QString& text);
    int killWhile(const QString& task, const QString& file, QRandomGenerator* random);

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<TemporaryGame> m_game;
};

void TestWorkRecovery::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_game = std::make_unique<TemporaryGame>();
}

/// Gives the letters that were typed when the last copy but one was whole.
int TestWorkRecovery::killWhile(const QString& task, const QString& file, QRandomGenerator* random)
{
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), {task, root(), m_game->root(), file});
    QList<int> reported;
    const auto read = [&] {
        while (child.canReadLine()) {
            reported.append(child.readLine().trimmed().toInt());
        }
    };
    while (reported.size() < 2 && child.waitForReadyRead(Patience)) {
        read();
    }
    QTest::qWait(random->bounded(60));
    child.kill();
    child.waitForFinished();
    read();
    return reported.size() < 2 ? -1 : reported.at(reported.size() - 2);
}

void TestWorkRecovery::killedWindowLosesLittle()
{
    const quint32 seed = 20240611;
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    const QByteArray before = m_game->read("characters/ryn/moves.code");
    const QString text = QString::fromLatin1(before).replace("\r\n", "\n");
    for (int i = 0; i < Kills; ++i) {
        const int safe = killWhile("type", m_game->path("characters/ryn/moves.code"), &random);
        QVERIFY(safe > 0);
        QCOMPARE(m_game->read("characters/ryn/moves.code"), before);
        QString recovered;
        if (i < KillsWithWindow) {
            WindowFixture fixture(settings());
            WorkRecovery recovery(fixture.window->services(), root());
            whenAsked([](RecoveryDialog* dialog) { clickButton(dialog, "Restore all"); });
            recovery.offerAll();
            QVERIFY(fixture.document());
            recovered = fixture.document()->text();
            QVERIFY(fixture.document()->isModified());
            fixture.press(Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(fixture.document()->text(), text);
        } else {
            const AbandonedWorks found(root());
            QCOMPARE(found.all().size(), 1);
            QCOMPARE(found.all().first().state, Operations::AbandonedWork::Applicable);
            recovered = found.all().first().copy.text;
            QVERIFY(found.all().first().discard());
        }
        QVERIFY(recovered.endsWith(text));
        const int count = recovered.size() - text.size();
        QVERIFY2(count >= safe, qPrintable(QString("%1 of %2").arg(count).arg(safe)));
        for (int at = 0; at < count; ++at) {
            QCOMPARE(recovered.at(at), letter(at));
        }
        QVERIFY(AbandonedWorks(root()).all().isEmpty());
    }
}

// What was there when the last copy but one was whole comes back, step for step.
void TestWorkRecovery::killedWindowLosesFewSpritesAndSounds()
{
    const quint32 seed = 20241122;
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    m_game->addAssets();
    const auto bytes = [this] {
        return m_game->read("characters/ryn/a.sprites") + m_game->read("characters/ryn/a.sounds");
    };
    const QByteArray before = bytes();
    for (int i = 0; i < AssetKills; ++i) {
        const int safe = killWhile("add", m_game->ryn(), &random);
        QVERIFY(safe > 0);
        QCOMPARE(bytes(), before);
        if (i >= KillsWithAssetWindow) {
            Family::SpriteFile sprites;
            Family::SoundFile sounds;
            const AbandonedWorks found(root());
            for (const Operations::AbandonedWork& work : found.all()) {
                QString error;
                const bool areSprites = work.copy.content == Operations::RecoveryCopy::Sprites;
                QVERIFY(areSprites ? work.restore(&sprites, &error)
                                   : work.restore(&sounds, &error));
                QCOMPARE(work.state, Operations::AbandonedWork::Applicable);
                QVERIFY(work.discard());
            }
            compareAdded(&sprites, &sounds, safe);
            continue;
        }
        WindowFixture fixture(settings());
        WorkRecovery recovery(fixture.window->services(), root());
        whenAsked([](RecoveryDialog* dialog) {
            const QString diff = dialog->findChild<QPlainTextEdit*>()->toPlainText();
            QVERIFY(diff.contains("+sprite 9,0 axis 0,1") || diff.contains("+sound 9,0 22050 Hz"));
            clickButton(dialog, "Restore all");
        });
        recovery.offerAll();
        const Family::FamilyProject* project = fixture.window->currentProject();
        QVERIFY(project);
        compareAdded(project->sprites(), project->sounds(), safe);
        QVERIFY(AbandonedWorks(root()).all().isEmpty());
    }
}

/// The canvas comes back on its sprite with all that was put aside, as one step.
void TestWorkRecovery::killedWindowLosesFewLayers()
{
    QRandomGenerator random(20260101);
    m_game->addAssets();
    const QString name = m_game->path("characters/ryn/a.sprites");
    Family::SpriteFile file;
    QImage image(4, 4, QImage::Format_Indexed8);
    image.setColorTable({qRgb(0, 0, 0), qRgb(1, 1, 1)});
    image.fill(1);
    QVERIFY(file.insertSprite(-1, {0, 0}, {2, 3}, image));
    QVERIFY(file.toFile(*Zorv::FileSystemArchive::instance(), name, true));
    const QByteArray before = m_game->read("characters/ryn/a.sprites");
    for (int i = 0; i < KillsWithCanvas; ++i) {
        const int safe = killWhile("paint", m_game->ryn(), &random);
        QVERIFY(safe > 0);
        QCOMPARE(m_game->read("characters/ryn/a.sprites"), before);
        WindowFixture fixture(settings());
        WorkRecovery recovery(fixture.window->services(), root());
        whenAsked([](RecoveryDialog* dialog) {
            const QString diff = dialog->findChild<QPlainTextEdit*>()->toPlainText();
            QVERIFY(diff.contains("+canvas of sprite 0,0 axis 2,3 4x4"));
            QVERIFY(diff.contains("+layer 1 hidden"));
            clickButton(dialog, "Restore all");
        });
        recovery.offerAll();
        Zorv::SpriteEditor* editor = fixture.window->paint()->editor();
        QVERIFY(editor->isActive() && editor->isCanvasModified());
        QTRY_VERIFY(fixture.window->isWindowModified());
        const Zorv::ImageLayers& layers = *editor->renderer()->canvas()->layers();
        QVERIFY(int(layers.count()) > safe);
        for (unsigned at = 0; at + 1 < layers.count(); ++at) {
            const int number = int(layers.count()) - 2 - int(at);
            QCOMPARE(layers.at(at)->name(), QString::number(number));
            QCOMPARE(layers.at(at)->isVisible(), number % 2 == 0);
        }
        QVERIFY(AbandonedWorks(root()).all().isEmpty());
        editor->undo();
        QCOMPARE(layers.count(), 1U);
        QVERIFY(!editor->isCanvasModified() && !editor->sprites()->isModified());
    }
}

/// As a window that was killed: a copy of an unsaved text, in a folder that
/// nobody has locked.
void TestWorkRecovery::leave(const QString& name, const QString& file, const QString& text)
{
    Operations::RecoveryCopy copy;
    copy.fileName = file;
    copy.gameFolder = m_game->root() + '/';
    copy.mainFile = file.contains("/oda/") ? m_game->oda() : m_game->ryn();
    copy.kind = file.isEmpty() ? Family::FileKind::Animations : Family::fileKindOf(file);
    copy.codec = "UTF-8";
    copy.time = QDateTime::currentDateTime();
    copy.stamp = Operations::FileStamp::of(file);
    copy.stamp.addHash(file);
    copy.text = text;
    QDir().mkpath(root() + "/dead");
    QFile out(root() + "/dead/" + name + ".zorvcopy");
    QVERIFY(out.open(QIODevice::WriteOnly));
    QVERIFY(copy.write(&out));
}

void TestWorkRecovery::decisionsAreKept()
{
    leave("1", m_game->ryn(), "restored\n");
    leave("2", m_game->animations(), "discarded\n");
    leave("3", m_game->oda(), "older\n");
    leave("4", m_game->path("characters/ryn/moves.code"), "later\n");
    m_game->write("characters/oda/oda.character", "[info]\r\nname = \"New\"\r\n");
    WindowFixture fixture(settings());
    QVERIFY(fixture.window->openPath(m_game->root()));
    WorkRecovery recovery(fixture.window->services(), root());
    fixture.dialogs.fileAnswers = {{m_game->path("rescued.character")}};
    whenAsked([](RecoveryDialog* dialog) {
        auto* list = dialog->findChild<QTreeWidget*>("works");
        QCOMPARE(list->topLevelItemCount(), 4);
        QVERIFY(dialog->findChild<QPlainTextEdit*>()->toPlainText().contains("+restored"));
        QTest::keyClick(list, Qt::Key_Down);
        clickButton(dialog, "Discard");
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Down);
        for (const QRadioButton* button : dialog->findChildren<QRadioButton*>()) {
            QCOMPARE(button->isEnabled(), button->text() != "Restore");
        }
        clickButton(dialog, "Save the copy as...");
        QTest::keyClick(list, Qt::Key_Down);
        clickButton(dialog, "Later");
        clickButton(dialog, "OK");
    });
    recovery.offerAll();
    QCOMPARE(fixture.document()->fileName(), m_game->ryn());
    QCOMPARE(fixture.document()->text(), QString("restored\n"));
    QCOMPARE(fixture.window->session()->modifiedDocuments().size(), 1);
    const AbandonedWorks left(root());
    QCOMPARE(left.all().size(), 2);
    QCOMPARE(left.all().first().copy.text, QString("older\n"));
    QCOMPARE(left.all().last().copy.text, QString("later\n"));
    QCOMPARE(m_game->read("rescued.character"), QByteArray("older\r\n"));
    QCOMPARE(m_game->read("characters/oda/oda.character"),
             QByteArray("[info]\r\nname = \"New\"\r\n"));
}

void TestWorkRecovery::otherGameIsOpened()
{
    leave("1", m_game->animations(), "animation 9\n");
    const TemporaryGame other;
    WindowFixture fixture(settings());
    QVERIFY(fixture.window->openPath(other.root()));
    WorkRecovery recovery(fixture.window->services(), root());
    whenAsked([](RecoveryDialog* dialog) { clickButton(dialog, "Restore all"); });
    recovery.offerAll();
    QCOMPARE(fixture.window->session()->folder(), m_game->root() + '/');
    QCOMPARE(fixture.document()->fileName(), m_game->animations());
    QCOMPARE(fixture.document()->text(), QString("animation 9\n"));
}

void TestWorkRecovery::gameIsAskedAboutWhenOpened()
{
    leave("1", m_game->animations(), "animation 9\n");
    const TemporaryGame other;
    WindowFixture fixture(settings());
    WorkRecovery recovery(fixture.window->services(), root());
    QVERIFY(fixture.window->openPath(other.root()));
    QCoreApplication::processEvents();
    QVERIFY(fixture.window->openPath(m_game->root()));
    int asked = 0;
    whenAsked([&asked](RecoveryDialog* dialog) {
        ++asked;
        clickButton(dialog, "Cancel");
    });
    QTRY_COMPARE(asked, 1);
    QCOMPARE(AbandonedWorks(root()).all().size(), 1);
}

void TestWorkRecovery::newFileComesBack()
{
    leave("1", QString(), "animation 9\n");
    WindowFixture fixture(settings());
    WorkRecovery recovery(fixture.window->services(), root());
    whenAsked([](RecoveryDialog* dialog) { clickButton(dialog, "Restore all"); });
    recovery.offerAll();
    QVERIFY(fixture.document()->fileName().isEmpty());
    QCOMPARE(fixture.document()->kind(), Family::FileKind::Animations);
    QCOMPARE(fixture.document()->text(), QString("animation 9\n"));
    QCOMPARE(App::projectOf(fixture.document())->fileName(), m_game->ryn());
}

void TestWorkRecovery::normalEndLeavesNothing()
{
    {
        WindowFixture fixture(settings());
        WorkRecovery recovery(fixture.window->services(), root());
        fixture.open(*m_game, m_game->ryn());
        fixture.type("x");
        QVERIFY(recovery.keeper()->flush());
        QVERIFY(QDir(recovery.keeper()->folder()).exists());
        fixture.dialogs.choiceAnswers = {1};
        QVERIFY(fixture.window->close());
    }
    QVERIFY(QDir(root()).isEmpty());
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "type" && arguments.size() == 5) {
        return workUntilKilled(
            arguments[2], arguments[3], arguments[4],
            [](WindowFixture& fixture, int number) { fixture.type(letter(number)); });
    }
    if (arguments.value(1) == "add" && arguments.size() == 5) {
        return workUntilKilled(arguments[2], arguments[3], arguments[4],
                               [](WindowFixture& fixture, int number) {
                                   addTo(fixture.window->currentProject(), number);
                               });
    }
    if (arguments.value(1) == "paint" && arguments.size() == 5) {
        return workUntilKilled(
            arguments[2], arguments[3], arguments[4],
            [](WindowFixture& fixture, int number) { addLayer(fixture, number); });
    }
    TestWorkRecovery test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_workrecovery.moc"
