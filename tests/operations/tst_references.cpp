#include "operations/hostinterface.h"
#include "operations/references/referenceindex.h"
#include "support/folders.h"
#include "support/testtable.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

using Family::NameKind;
using Operations::NameUse;
using Operations::ReferenceIndex;
using Operations::Subject;

namespace {

const QByteArray hero = "[info]\nname = \"Ryn\"\n[files]\nsprites = \"ryn.sprites\"\n"
                        "code = \"moves.code\"\ncode = \"../../shared/common.code\"\n"
                        "animations = \"ryn.anim\"\n[constants]\nlife = 1\n[.walk]\n"
                        "animation = 200 # shown\n[commands]\njab = \"L\"\njab = \"M\"\n";
const QByteArray moves =
    "[move jab]\ncommand = jab\nanimation = 200\n[move hook]\ncancels = jab\n"
    "animation = 200x\n[.sound]\nhit = 5, 1\n[palette blue]\nfile = \"b.act\"\n";
const QByteArray anim = "animation 200\nframe 200,0\nframe 200, 1 loop\n# animation 200\n";
const QByteArray other = "[files]\ncode = \"../../shared/common.code\"\n"
                         "animations = \"o.anim\"\nsprites = \"o.sprites\"\n";

QStringList shown(const ReferenceIndex& index, const QVector<NameUse>& uses)
{
    QStringList lines;
    for (const NameUse& use : uses) {
        lines.append(QStringLiteral("%1:%2:%3+%4%5")
                         .arg(QDir(index.gameFolder()).relativeFilePath(use.path))
                         .arg(use.line)
                         .arg(use.column)
                         .arg(use.length)
                         .arg(QLatin1String(use.isDefinition ? "!" : "")));
    }
    return lines;
}

}  // namespace

class TestReferences : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void usesAreFound_data();
    void usesAreFound();
    void onlyWhatChangedIsRead();
    void anUnsavedTextCounts();

private:
    QString path(const char* name) const { return m_game->path() + QLatin1Char('/') + name; }
    QStringList uses(ReferenceIndex* index, NameKind kind, const QString& name,
                     const char* mainFile = "characters/ryn/ryn.character") const
    {
        QString error;
        index->update();
        return shown(*index, index->usesOf(Subject::fromText(path(mainFile), kind, name, &error)));
    }

    Operations::HostInterface m_host;
    std::unique_ptr<QTemporaryDir> m_game;
};

void TestReferences::init()
{
    Operations::startHost(&m_host);
    m_game = std::make_unique<QTemporaryDir>();
    writeFile(path("characters/ryn/ryn.character"), hero);
    writeFile(path("characters/ryn/moves.code"), moves);
    writeFile(path("characters/ryn/ryn.anim"), anim);
    writeFile(path("shared/common.code"), "[move throw]\nanimation = 800\n[move tech]\n"
                                          "animation = 200\n");
    writeFile(path("characters/other/other.character"), other);
    writeFile(path("characters/other/o.anim"), "animation 800\nframe 200,0 loop\n");
    writeFile(path("characters/third/third.character"),
              "[files]\nanimations = \"t.anim\"\nsprites = \"../ryn/ryn.sprites\"\n");
    writeFile(path("characters/third/t.anim"), "animation 200\nframe 200,0 loop\n");
}

void TestReferences::usesAreFound_data()
{
    columns<int, QString, QStringList>("kind", "name", "uses");
    const QString ryn = QStringLiteral("characters/ryn/");
    row("an animation, also where projects share a file, but not in another project",
        int(NameKind::Animation), QString("200"),
        QStringList{ryn + "moves.code:3:13+3", ryn + "ryn.anim:1:11+3!",
                    ryn + "ryn.character:11:13+3", "shared/common.code:4:13+3"});
    row("what only another project defines", int(NameKind::Animation), QString("800"),
        QStringList{"characters/other/o.anim:1:11+3!", "shared/common.code:2:13+3"});
    row("a move", int(NameKind::Move), QString("jab"),
        QStringList{ryn + "moves.code:1:7+3!", ryn + "moves.code:5:11+3"});
    row("a command that stands twice", int(NameKind::Command), QString("jab"),
        QStringList{ryn + "moves.code:2:11+3", ryn + "ryn.character:13:1+3!",
                    ryn + "ryn.character:14:1+3!"});
    row("a sprite of a file that projects share", int(NameKind::Sprite), QString("200,0"),
        QStringList{ryn + "ryn.anim:2:7+5", "characters/third/t.anim:2:7+5"});
    row("a sprite written with blanks", int(NameKind::Sprite), QString("200,1"),
        QStringList{ryn + "ryn.anim:3:7+6"});
    row("a sound", int(NameKind::Sound), QString("5,1"), QStringList{ryn + "moves.code:8:7+4"});
    row("a palette", int(NameKind::Palette), QString("blue"),
        QStringList{ryn + "moves.code:9:10+4!"});
    row("a file", int(NameKind::File), QString("../../shared/common.code"),
        QStringList{"characters/other/other.character:2:8+26", ryn + "ryn.character:6:8+26"});
    row("a resource", int(NameKind::File), QString("b.act"),
        QStringList{ryn + "moves.code:10:8+7"});
    row("nothing", int(NameKind::Animation), QString("999"), QStringList());
    row("no name", int(NameKind::Animation), QString("-1 x"), QStringList());
    row("no numbers", int(NameKind::Sprite), QString("200"), QStringList());
}

void TestReferences::usesAreFound()
{
    QFETCH(int, kind);
    QFETCH(QString, name);
    QFETCH(QStringList, uses);
    ReferenceIndex index(m_game->path());
    uses.sort();
    QCOMPARE(this->uses(&index, NameKind(kind), name), uses);
}

void TestReferences::onlyWhatChangedIsRead()
{
    ReferenceIndex index(m_game->path());
    uses(&index, NameKind::Animation, "200");
    const int before = index.readCount();
    QCOMPARE(before, 8);
    uses(&index, NameKind::Move, "jab");
    QCOMPARE(index.readCount(), before);
    writeFile(path("characters/ryn/moves.code"), "[move new]\nanimation = 200\n");
    QCOMPARE(uses(&index, NameKind::Animation, "200").size(), 4);
    QCOMPARE(uses(&index, NameKind::Move, "jab").size(), 0);
    QCOMPARE(index.readCount(), before + 1);
    // Who names a file decides what belongs to a project.
    writeFile(path("characters/ryn/ryn.character"), "[files]\nanimations = \"ryn.anim\"\n");
    QCOMPARE(uses(&index, NameKind::Animation, "200"),
             QStringList{"characters/ryn/ryn.anim:1:11+3!"});
    QVERIFY(QFile::remove(path("characters/ryn/ryn.character")));
    QCOMPARE(uses(&index, NameKind::Animation, "200"), QStringList());
}

void TestReferences::anUnsavedTextCounts()
{
    ReferenceIndex index(m_game->path());
    auto source = std::make_shared<Family::SourceText>();
    source->text = "animation 7\nframe 1,1 loop";
    index.setText(path("characters/ryn/ryn.anim"), source);
    QCOMPARE(uses(&index, NameKind::Animation, "7"),
             QStringList{"characters/ryn/ryn.anim:1:11+1!"});
    index.setText(path("characters/ryn/ryn.anim"), nullptr);
    QCOMPARE(uses(&index, NameKind::Animation, "7"), QStringList());
    QCOMPARE(uses(&index, NameKind::Sprite, "200,1").size(), 1);
}

QTEST_GUILESS_MAIN(TestReferences)
#include "tst_references.moc"
