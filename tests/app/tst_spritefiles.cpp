#include "spritefixture.h"

#include "support/faultrows.h"
#include "support/testtable.h"

#include <zorv/core/dialogs/itemsdlg.h>
#include <zorv/media/pcx.h>

#include <QDropEvent>
#include <QMimeData>
#include <QProgressDialog>

/// Image files become sprites, and sprites files, in the real window.
class TestSpriteFiles : public SpriteTest
{
    Q_OBJECT

private slots:
    void init() { begin(); }
    void cleanup() { end(); }
    void addsFiles_data();
    void addsFiles();
    void addsNothingWhenGivenUp();
    void takesDroppedFiles();
    void savesImages();
    void failedSavesLoseNothing_data();
    void failedSavesLoseNothing();
};

void TestSpriteFiles::addsFiles_data()
{
    columns<QStringList, int, QStringList>("files", "answer", "added");
    const int yes = Dialogs::Yes;
    const int no = Dialogs::No;
    QTest::newRow("in order") << QStringList{"b.png", "a.png"} << no << QStringList{"0,3", "0,4"};
    QTest::newRow("named") << QStringList{"7-3.png", "0-1.png"} << no << QStringList{"0,3", "7,3"};
    QTest::newRow("cropped") << QStringList{"9-9.png"} << yes << QStringList{"9,9"};
    QTest::newRow("broken between")
        << QStringList{"a.png", "broken.png", "c.png"} << no << QStringList{"0,3", "0,5"};
    QTest::newRow("other forms") << QStringList{"two.png", "true.png", "257.bmp", "grey.pcx"} << no
                                 << QStringList{"0,3", "0,4", "0,5", "0,6"};
    QTest::newRow("nothing readable")
        << QStringList{"broken.png", "gone.png"} << no << QStringList();
    QTest::newRow("given up") << QStringList{"a.png"} << int(Dialogs::Cancel) << QStringList();
}

void TestSpriteFiles::addsFiles()
{
    const auto [files, answer, added] = fetched<QStringList, int, QStringList>();
    const QByteArray first = written();
    const QStringList before = names();
    QImage framed(20, 20, QImage::Format_Indexed8);
    framed.setColorTable(Colours);
    framed.fill(0);
    framed.setPixel(5, 7, 1);
    framed.setText(QStringLiteral("axis"), QStringLiteral("10,19"));
    for (const char* name : {"a.png", "b.png", "c.png", "7-3.png", "0-1.png", "9-9.png"}) {
        QVERIFY(!file(QString::fromLatin1(name), framed).isEmpty());
    }
    file("two.png", QImage(3, 3, QImage::Format_Mono));
    QImage colours(257, 1, QImage::Format_ARGB32);
    for (int x = 0; x < 257; ++x) {
        colours.setPixel(x, 0, qRgba(x / 2, 255 - x / 2, x & 1, 100 + x / 2));
    }
    file("true.png", colours);
    file("257.bmp", colours.convertToFormat(QImage::Format_RGB32));
    QFile grey(m_folder->filePath("grey.pcx"));
    QVERIFY(grey.open(QIODevice::WriteOnly) && Zorv::savePCX(framed, &grey));
    grey.close();
    QVERIFY(QFile::resize(grey.fileName(), QFileInfo(grey).size() - 769));
    writeFile(m_folder->filePath("broken.png"), "no picture");

    QStringList paths;
    for (const QString& name : files) {
        paths.append(m_folder->filePath(name));
    }
    show(0);
    m->dialogs.fileAnswers = {paths};
    answerImages(answer != Dialogs::Cancel, answer == Dialogs::Yes);
    trigger("spr_add");
    QCOMPARE(names(), before + added);
    const QString folder =
        m->window->tabs()->currentDocument()->project()->option("spr_path").toString();
    QCOMPARE(folder, QFileInfo(m_folder->path()).absoluteFilePath());
    const bool isAnyBroken = files.contains("broken.png");
    QCOMPARE(m->dialogs.count("warning"), isAnyBroken ? 1 : 0);
    QCOMPARE(editor()->spriteIndex(), added.isEmpty() ? 0 : int(sprites()->count()) - 1);
    if (isAnyBroken) {
        QVERIFY(m->dialogs.texts("warning").first().contains("broken.png"));
    }
    if (!added.isEmpty() && files.first() != "two.png") {
        const Family::FamilySprite* last = sprites()->sprite(int(sprites()->count()) - 1);
        const bool isCropped = answer == Dialogs::Yes;
        QCOMPARE(last->size(), isCropped ? QSize(1, 1) : QSize(20, 20));
        QCOMPARE(last->axis(), isCropped ? QPoint(5, 12) : QPoint(10, 19));
        QCOMPARE(last->palette(), sprites()->sprite(0)->palette());
    }
    if (!added.isEmpty()) {
        sprites()->undo();
    }
    QCOMPARE(written(), first);
    QVERIFY(!sprites()->canUndo());
}

void TestSpriteFiles::addsNothingWhenGivenUp()
{
    const QByteArray first = written();
    QStringList many;
    for (int i = 0; i < 40; ++i) {
        many.append(file(QStringLiteral("%1.png").arg(i), picture(i)));
    }
    show(0);
    QTimer giveUp;
    connect(&giveUp, &QTimer::timeout, this, [&] {
        if (auto* progress = m->window->findChild<QProgressDialog*>()) {
            progress->cancel();
            m_isSeen = true;
        }
    });
    giveUp.start(0);
    answerImages(true);
    editor()->addFiles(many);
    QVERIFY(m_isSeen || sprites()->count() == 44);
    if (m_isSeen) {
        QCOMPARE(sprites()->count(), 4U);
        QCOMPARE(written(), first);
    }
}

/// As a file manager drags them, onto the canvas and onto the list.
void TestSpriteFiles::takesDroppedFiles()
{
    const QUrl image = QUrl::fromLocalFile(file("8-8 100%.png", picture(1)));
    QMimeData data;
    data.setUrls({image, QUrl(QStringLiteral("http://example.org/a.png")),
                  QUrl::fromLocalFile(m_game->ryn())});
    QMimeData text;
    text.setUrls({QUrl::fromLocalFile(m_game->ryn())});
    show(0);
    unsigned count = 4;
    for (QWidget* target :
         {static_cast<QWidget*>(m->window->spritePanel()), editor()->workspace()->widget()}) {
        for (QMimeData* dragged : {&text, &data}) {
            QDragEnterEvent enter({9, 9}, Qt::CopyAction, dragged, Qt::LeftButton, {});
            enter.setAccepted(false);
            QCoreApplication::sendEvent(target, &enter);
            QCOMPARE(enter.isAccepted(), dragged == &data);
        }
        QDropEvent drop({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(target, &drop);
        answerImages(true);
        ++count;
        QTRY_COMPARE(sprites()->count(), count);
    }
    QCOMPARE(names().mid(4), QStringList({"0,3", "0,4"}));
}

/// One file is asked for by its name; several are called like it, and what is there stays.
void TestSpriteFiles::savesImages()
{
    const QString path = m_folder->filePath("out%1.png");
    for (const bool all : {false, true}) {
        show(1);
        m->dialogs.fileAnswers = {{path}};
        m->dialogs.buttonAnswers = {Dialogs::No};
        inDialog<ItemsDlg>([all](ItemsDlg* dialog) {
            if (all) {
                dialog->findChild<QAbstractItemView*>()->selectAll();
            }
            dialog->accept();
        });
        if (all) {
            writeFile(m_folder->filePath("out%1_0-2.png"), "mine");
        } else {
            paint();
        }
        const QImage shown = canvas()->mergeLayers(nullptr);
        trigger("spr_saveimgas");
        QVERIFY(m_isSeen);
        if (!all) {
            const QImage saved(path);
            QCOMPARE(saved.convertToFormat(QImage::Format_ARGB32),
                     shown.convertToFormat(QImage::Format_ARGB32));
            QCOMPARE(saved.text("axis"), QStringLiteral("8,11"));
            continue;
        }
        QCOMPARE(readFile(m_folder->filePath("out%1_0-2.png")), QByteArray("mine"));
        QVERIFY(!QFileInfo::exists(m_folder->filePath("out%1_0-1.png")));
        m->dialogs.fileAnswers = {{path}};
        m->dialogs.buttonAnswers = {Dialogs::Yes};
        inDialog<ItemsDlg>([](ItemsDlg* dialog) {
            dialog->findChild<QAbstractItemView*>()->selectAll();
            dialog->accept();
        });
        trigger("spr_saveimgas");
        QCOMPARE(QDir(m_folder->path()).entryList({"out%1_*.png"}).size(), 4);
    }
}

void TestSpriteFiles::failedSavesLoseNothing_data()
{
    columns<int, int>("call", "error");
    faultRows();
}

/// Of all sprites one cannot be written. What was painted is in the sprite all the same.
void TestSpriteFiles::failedSavesLoseNothing()
{
    const auto [call, error] = fetched<int, int>();
    const QString old = m_folder->filePath("out_0-2.png");
    QVERIFY(writeFile(old, "mine"));
    show(1);
    paint();
    const QImage painted = canvas()->mergeLayers(nullptr);
    m->dialogs.fileAnswers = {{m_folder->filePath("out.png")}};
    m->dialogs.buttonAnswers = {Dialogs::Yes};
    inDialog<ItemsDlg>([call = call, error = error](ItemsDlg* dialog) {
        dialog->findChild<QAbstractItemView*>()->selectAll();
        faultArm("out_0-2", FaultCall(call), 1, error, call == FaultWrite);
        dialog->accept();
    });
    trigger("spr_saveimgas");
    faultArm("", FaultOpen, 0, 0, 0);
    QString told;
    for (const auto& each : qAsConst(m->dialogs.shown)) {
        told += each.text;
    }
    QVERIFY2(told.contains(old) && told.contains(qt_error_string(error)), qPrintable(told));
    QCOMPARE(readFile(old), QByteArray("mine"));
    QCOMPARE(QDir(m_folder->path()).entryList({"out*"}, QDir::Files).size(), 4);
    QVERIFY(!QImage(m_folder->filePath("out_1-0.png")).isNull());
    QCOMPARE(sprites()->sprite(1)->image(), painted);
}

QTEST_MAIN(TestSpriteFiles)
#include "tst_spritefiles.moc"
