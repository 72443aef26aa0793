#include "operations/media/filepatterns.h"

#include "operations/hostinterface.h"
#include "operations/media/assetnames.h"
#include "operations/media/mediaresult.h"
#include "operations/media/outputfiles.h"
#include "operations/media/selection.h"
#include "support/testtable.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace Family;
using namespace Operations;

// In a folder of its own, which is the current one.
class TestMediaFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void patterns_data();
    void patterns();
    void places_data();
    void places();
    void nothingIsReplaced();
    void selections_data();
    void selections();
    void targets_data();
    void targets();
    void newSoundsHaveNames();

private:
    QTemporaryDir m_folder;
    HostInterface m_host;
};

void TestMediaFiles::initTestCase()
{
    startHost(&m_host);
    QVERIFY(QDir::setCurrent(m_folder.path()));
    for (const char* name :
         {"a/x10.png", "a/x9.png", "a/y.pcx", "b/x1.png", "b/[x].png", "B.png", ".hidden.png"}) {
        QDir().mkpath(QFileInfo(name).path());
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
}

void TestMediaFiles::patterns_data()
{
    columns<QStringList, QString>("names", "files");
    const auto row = [](const char* names, const char* files) {
        QTest::newRow(names) << QString(names).split(' ') << QString(files);
    };
    row("a/*.png", "a/x9.png a/x10.png");
    row("a/x?.png", "a/x9.png");
    row("*/x1*", "a/x10.png b/x1.png");
    row("[ab]/[^y]*.png", "a/x9.png a/x10.png b/[x].png b/x1.png");
    row("b/[x].png", "b/[x].png");
    row("a/y.pcx a/* ./a/y.pcx", "a/y.pcx a/x9.png a/x10.png");
    row("*.png", "B.png");
    row("*.PNG", "");
    row("a", "");
    row("a/y.pcx nosuch", "");
    row("a/*/*.png", "");
}

void TestMediaFiles::patterns()
{
    const auto [names, files] = fetched<QStringList, QString>();
    QString error;
    QCOMPARE(expandPatterns(names, &error).join(' '), files);
    QCOMPARE(error.isEmpty(), !files.isEmpty());
}

void TestMediaFiles::places_data()
{
    columns<QString, QString, QByteArray, QString>("names", "place", "format", "paths");
    const auto row = [](const char* names, const char* place, const char* format,
                        const char* paths) {
        QTest::newRow(qPrintable(QString("%1 > %2 %3").arg(names, place, format)))
            << QString(names) << QString(place) << QByteArray(format) << QString(paths);
    };
    row("a/x9.png b/x1.png", "out", "", "out/x9.png out/x1.png");
    row("a/x9.png b/x1.png", "out.d/", "PCX", "out.d/x9.pcx out.d/x1.pcx");
    row("a/x9.png", "b", "", "b/x9.png");
    row("a/x9.png", "b/new.pcx", "", "b/new.pcx");
    row("a/x9.png b/x1.png", "o/*-2.gif", "", "o/x9-2.gif o/x1-2.gif");
    row("a/x9.png", "o/*-2", "", "o/x9-2.png");
    row("a/x9.png x.png", "", "PCX", "a/x9.pcx x.pcx");
    row("7-1", "o", "PNG", "o/7-1.png");
    row("a/x9.png b/x1.png", "one.png", "", "");
    row("a/x.png b/x.png", "out", "", "");
    row("a/x.png a/x.pcx", "", "BMP", "");
}

void TestMediaFiles::places()
{
    const auto [names, place, format, paths] = fetched<QString, QString, QByteArray, QString>();
    OutputFiles outputs;
    OutputRequest request;
    request.place = place;
    request.format = format;
    Operations::MediaResult refusal;
    QCOMPARE(outputs.plan(names.split(' '), request, {}, &refusal), !paths.isEmpty());
    QVERIFY(!refusal.isTaken);
    QStringList planned;
    for (int i = 0; i < outputs.count() && refusal.errors.isEmpty(); ++i) {
        planned.append(outputs.path(i));
    }
    QCOMPARE(planned.join(' '), paths);
}

void TestMediaFiles::nothingIsReplaced()
{
    OutputFiles outputs;
    OutputRequest request;
    Operations::MediaResult refusal;
    QVERIFY(!outputs.plan({"a/y.pcx"}, request, {}, &refusal) && refusal.isTaken);
    request.force = true;
    QVERIFY(outputs.plan({"a/y.pcx"}, request, {}, &refusal));
    QCOMPARE(outputs.write(0, "new"), QString());
    // A file that comes between the plan and the writing stays.
    request = {};
    request.place = "late/";
    QVERIFY(outputs.plan({"a/y.pcx"}, request, {}, &refusal));
    QVERIFY(QDir().mkdir("late") && QFile::copy("a/y.pcx", "late/y.pcx"));
    QVERIFY(!outputs.write(0, "other").isEmpty());
    QFile file("late/y.pcx");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("new"));
    QCOMPARE(QDir("late").entryList(QDir::Files | QDir::Hidden), QStringList("y.pcx"));
}

void TestMediaFiles::selections_data()
{
    columns<QString, QString>("text", "meant");
    const auto row = [](const char* text, const char* meant) {
        QTest::newRow(text) << QString(text) << QString(meant);
    };
    row("200", "200,0 200,3");
    row("200-201", "200,0 200,3 201,0");
    row("200,3 65535", "200,3 65535,0");
    for (const char* wrong :
         {"", " ", "65536", "3-2", "a", "1,", "1-2,3", "1,65536", "-1", "1;2"}) {
        row(wrong, "not read");
    }
}

void TestMediaFiles::selections()
{
    const auto [text, meant] = fetched<QString, QString>();
    Selection selection;
    const bool isRead = selection.add(text);
    QStringList found;
    for (const char* id : {"200,0", "200,3", "201,0", "65535,0"}) {
        const QStringList parts = QString(id).split(',');
        if (selection.contains(parts[0].toInt(), parts[1].toInt())) {
            found.append(id);
        }
    }
    QCOMPARE(isRead ? found.join(' ') : QString("not read"), meant);
    QVERIFY(isRead || selection.isAll());
}

void TestMediaFiles::targets_data()
{
    columns<QString, QString>("name", "target");
    const auto row = [](const char* name, const char* target) {
        QTest::newRow(name) << QString(name) << QString(target);
    };
    row("200-3.png", "200,3 1");
    row("in/ash-200-3_2.tar.png", "");
    row("in/ash.v2-200-3_2.png", "200,3 2");
    row("ash200-3.png", "200,3 1");
    row("1-200-3.png", "200,3 1");
    row("65536-0.png", "");
    row("200_3.png", "200,3 1");
    row("65536-0_1.png", "");
    row("200-3_0.png", "");
    row("123456-1.png", "");
}

void TestMediaFiles::targets()
{
    const auto [name, target] = fetched<QString, QString>();
    ImportTarget found;
    const bool isFound = importTarget(name, &found);
    QCOMPARE(isFound ? QString("%1 %2").arg(found.id.text()).arg(found.copy) : QString(), target);
}

void TestMediaFiles::newSoundsHaveNames()
{
    const auto ids = newIds({"hit.wav", "ash-200-3.wav", "miss.wav", "rai-200-3.wav", "0-2.wav"},
                            [](AssetId from) { return from.key() ? from : AssetId::fromKey(1); });
    QStringList texts;
    for (const AssetId id : ids) {
        texts.append(id.text());
    }
    QCOMPARE(texts, QStringList({"0,1", "200,3", "0,3", "200,4", "0,2"}));
    // A host that does not say takes the names of the files, the window those.
    const QStringList files{"in/200-3.wav", "in/hit.2.wav"};
    QVariantList names;
    HostInterface host;
    host.Interface::soundIdentifiers(files, &names);
    QCOMPARE(names, QVariantList({"200-3", "hit.2"}));
    host.soundIdentifiers(files, &names);
    QCOMPARE(names, QVariantList({"200,3", "0,0"}));
    QVERIFY(host.text(3).contains(QLatin1String("%1")) &&
            host.text(4).contains(QLatin1String("%3")));
}

QTEST_MAIN(TestMediaFiles)
#include "tst_mediafiles.moc"
