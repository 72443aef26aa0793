#include "core/archive.h"
#include "core/filesystemarchive.h"
#include "core/messagelist.h"
#include "core/messages.h"
#include "support/testgrammar.h"
#include "support/testinterface.h"
#include "support/testproject.h"
#include "support/testtable.h"

#include <QDirIterator>
#include <QPointer>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <cstddef>
#include <memory>

using namespace Zorv;

namespace {

constexpr auto Sprites = FileID::Sprites;
constexpr auto Sounds = FileID::Sounds;

/// An archive on plain folders that is not that of the library.
class OtherArchive : public FileSystemArchive
{
public:
    void release() override { ++released; }
    int released = 0;
};

/// Memory for objects of a test, in an order that the test chooses.
struct Slots
{
    static constexpr std::size_t Size = 1024;
    static int next;

    static void* take(std::size_t size)
    {
        alignas(std::max_align_t) static char memory[3][Size];
        return size <= Size ? memory[next] : nullptr;
    }
};

int Slots::next = 0;

class PlacedDocument : public GrammarDocument
{
public:
    using GrammarDocument::GrammarDocument;
    ~PlacedDocument() override { delete diesWith; }
    static void* operator new(std::size_t size) { return Slots::take(size); }
    static void operator delete(void*) {}

    Project* diesWith = nullptr;
};

class PlacedEditor : public TestAnimations
{
public:
    using TestAnimations::TestAnimations;
    void release() override
    {
        ++released;
        TestAnimations::release();
    }
    static void* operator new(std::size_t size) { return Slots::take(size); }
    static void operator delete(void*) {}

    static int released;
};

int PlacedEditor::released = 0;

enum End { ProjectGoes, DocumentGoes, FilesAreRemoved, ProjectDiesWithin };

/// The files below a folder with their content, as "name=content", sorted.
QStringList contents(const QString& folder)
{
    QStringList lines;
    QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString name = it.next();
        lines << QDir(folder).relativeFilePath(name) + QLatin1Char('=') +
                     QString::fromUtf8(readFile(name));
    }
    lines.sort();
    return lines;
}

}  // namespace

class TestProjects : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void settingsFallThrough();
    void settingsOfTheDocumentMove();
    void filesByKind();
    void staleSelection();
    void removeOneOfTwoKinds();
    void moveInsideAKind();
    void reloadKeepsVanishedFiles();
    void releaseGivesEverythingUp();
    void projectDiesBeforeItsFiles();
    void filesLeaveTheirProject();
    void editorThatIsAFileToo_data();
    void editorThatIsAFileToo();
    void editorOutlivesItsDocument();

    void copyOfUnmodifiedProject();
    void copyWritesWhatIsModified();
    void copyKeepsSeveralFilesOfOneKind();
    void writtenFileIsNotCopiedOver();
    void fileWithoutNameTakesReferredPath();
    void moveToNewPlace();
    void filesOutsideStay();
    void targetOutsideIsRefused();
    void failedFilesAreTold();

private:
    QString path(const QString& name) const { return m_dir->filePath(name); }
    TestProject* openCharacter(const QString& files);

    OtherArchive m_other;
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<TestParent> m_parent;
};

void TestProjects::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_parent = std::make_unique<TestParent>(path("game/"));
    TestFile::alive = 0;
}

void TestProjects::cleanup()
{
    m_parent.reset();
    QCOMPARE(TestFile::alive, 0);
}

/// A project in "game/chars/hero/", with its main document on disk.
TestProject* TestProjects::openCharacter(const QString& files)
{
    writeFile(path("game/chars/hero/hero.code"), files.toUtf8());
    return m_parent->open("chars/hero/hero.code", files);
}

void TestProjects::settingsFallThrough()
{
    TestInterface host;
    TestProject* project = openCharacter({});
    auto* file = new TestFile;
    const QString key = QStringLiteral("tabs");
    host.options[key] = "host";
    QCOMPARE(file->option(key), QVariant());
    file->setOption(key, "lost", false, true);
    QCOMPARE(host.options.value(key), QVariant("host"));
    file->setOption(key, {}, true, true);
    QVERIFY(!file->option(key).isValid());

    project->addFile(file, Sprites);
    QCOMPARE(file->option(key), QVariant("host"));
    file->setOption(key, "project", true, false);
    QCOMPARE(host.options.value(key), QVariant("host"));
    QCOMPARE(project->option(key), QVariant("project"));
    file->setOption(key, "file", false, true);
    QCOMPARE(file->option(key), QVariant("file"));
    QCOMPARE(project->option(key), QVariant("project"));
    file->setOption(key, {}, false, false);
    QCOMPARE(file->option(key), QVariant("project"));
    file->setOption(key, "both", true, true);
    QCOMPARE(host.options.value(key), QVariant("both"));
    project->setOption(key, {}, false);
    QCOMPARE(project->option(key), QVariant("both"));
}

void TestProjects::settingsOfTheDocumentMove()
{
    auto* main = new TestDocument;
    main->setOption("parseCode", false, false, false);
    TestProject project(m_parent.get(), main);
    QCOMPARE(project.kind(), 7);
    QCOMPARE(project.option("parseCode"), QVariant(false));
    QVERIFY(!project.option("highlightCode").isValid());
    project.setOption("parseCode", {}, false);
    QVERIFY(!main->option("parseCode").isValid());
    project.release();
}

void TestProjects::filesByKind()
{
    TestProject* project = openCharacter({});
    auto* file = new TestFile;
    project->addFile(file, Sprites);
    project->addFile(file, quint32(Sprites) | Sounds | 0x80000000);
    QCOMPARE(quint32(project->fileID(file)), 0x80000006u);
    QCOMPARE(project->filesByType(Sprites).size(), 1);
    QCOMPARE(project->filesByType(Sounds).size(), 1);
    QCOMPARE(project->filesByType(static_cast<FileID::Type>(0x80000000)).size(), 1);
    QCOMPARE(project->files().size(), 2);
    QCOMPARE(project->messages()->lists().count(file->messages()), 2);
    QCOMPARE(file->project(), project);
    QCOMPARE(quint32(project->fileID(nullptr)), 0u);

    project->takeFile(file);
    QVERIFY(project->filesByType(Sprites).isEmpty());
    QVERIFY(project->filesByType(Sounds).isEmpty());
    QCOMPARE(project->files().size(), 1);
    file->release();
}

void TestProjects::staleSelection()
{
    TestProject* project = openCharacter({});
    QCOMPARE(project->file(Sprites), nullptr);
    auto* first = new TestFile;
    auto* second = new TestFile;
    project->addFile(first, Sprites);
    project->addFile(second, Sprites);
    project->setSelectedFile(Sprites, 1);
    QCOMPARE(project->file(Sprites), second);
    project->removeFile(Sprites, 1);
    QCOMPARE(project->selectedFile(Sprites), 1u);
    QCOMPARE(project->file(Sprites), first);
    QCOMPARE(TestFile::alive, 1);
}

void TestProjects::removeOneOfTwoKinds()
{
    TestProject* project = openCharacter({});
    auto* file = new TestFile;
    project->addFile(file, quint32(Sprites) | Sounds);
    project->removeFile(Sprites, 0);
    project->removeFile(Sprites, 0);
    QCOMPARE(TestFile::alive, 1);
    QCOMPARE(quint32(project->fileID(file)), quint32(Sounds));
    QVERIFY(project->filesByType(Sprites).isEmpty());
    QCOMPARE(project->filesByType(Sounds), QList<ProjectFile*>{file});
    project->removeFile(Sounds, 0);
    QCOMPARE(TestFile::alive, 0);
    QCOMPARE(project->files().size(), 1);
}

void TestProjects::moveInsideAKind()
{
    TestProject* project = openCharacter({});
    QList<ProjectFile*> files;
    for (int i = 0; i < 3; ++i) {
        files << new TestFile;
        project->addFile(files.last(), Sounds);
    }
    project->moveFile(Sounds, 0, 3);
    project->moveFile(Sounds, 3, 0);
    project->moveFile(Sprites, 0, 0);
    QCOMPARE(project->filesByType(Sounds), files);
    project->moveFile(Sounds, 2, 0);
    QCOMPARE(project->filesByType(Sounds),
             QList<ProjectFile*>({files.at(2), files.at(0), files.at(1)}));
}

void TestProjects::reloadKeepsVanishedFiles()
{
    TestProject* project = openCharacter({});
    writeFile(path("game/chars/hero/a"), "new");
    auto* there = new TestFile(path("game/chars/hero/a"), "old");
    auto* gone = new TestFile(path("game/chars/hero/b"), "kept");
    project->addFile(there, Sprites);
    project->addFile(gone, Sprites);
    project->reload();
    QCOMPARE(there->content, QByteArray("new"));
    QCOMPARE(gone->content, QByteArray("kept"));
}

void TestProjects::releaseGivesEverythingUp()
{
    auto* main = new TestDocument;
    const QPointer<QObject> document(main);
    OtherArchive projectArchive, fileArchive;
    TestProject project(m_parent.get(), main);
    project.addToParent();
    project.setArchive(&projectArchive);
    auto* own = new TestFile;
    own->setArchive(&fileArchive);
    auto* shared = new TestFile;
    shared->setArchive(&projectArchive);
    project.addFile(own, Sprites);
    project.addFile(shared, Sprites);

    project.release();
    QCOMPARE(TestFile::alive, 0);
    QVERIFY(document.isNull());
    QCOMPARE(projectArchive.released, 1);
    QCOMPARE(fileArchive.released, 1);
    QVERIFY(m_parent->openedProjects().isEmpty());
    QCOMPARE(m_parent->goneCount, 1);
}

void TestProjects::projectDiesBeforeItsFiles()
{
    auto* main = new TestDocument;
    auto project = std::make_unique<TestProject>(m_parent.get(), main);
    auto* file = new TestFile;
    auto* taken = new TestFile;
    project->addFile(file, Sprites);
    project->addFile(taken, Sprites);
    project->takeFile(taken);
    project.reset();
    QCOMPARE(file->project(), nullptr);
    QCOMPARE(taken->project(), nullptr);
    QVERIFY(!file->option("x").isValid());
    file->messages()->add(Message::Error, "a", 0, 0);
    file->release();
    taken->release();
    main->release();
}

void TestProjects::filesLeaveTheirProject()
{
    auto* main = new TestDocument;
    TestProject first(m_parent.get(), main);
    TestProject second(m_parent.get(), new TestDocument);
    auto* file = new TestFile;
    first.addFile(file, Sprites);
    second.addFile(file, Sounds);
    second.addFile(main, FileID::Code);
    QVERIFY(first.files().isEmpty());
    QVERIFY(first.fileName().isEmpty());
    first.addToParent();
    first.release();
    QCOMPARE(second.files().size(), 3);
    file->release();
    QVERIFY(second.filesByType(Sounds).isEmpty());
    QVERIFY(second.isEmpty());
    second.release();
    QVERIFY(second.files().isEmpty());
}

void TestProjects::editorThatIsAFileToo_data()
{
    columns<QVector<int>, int>("order", "end");
    QVector<int> order{0, 1, 2};
    do {
        const QByteArray name = QByteArray::number(order[0] * 100 + order[1] * 10 + order[2]);
        QTest::addRow("%s, project goes", name.data()) << order << int(ProjectGoes);
        QTest::addRow("%s, document goes", name.data()) << order << int(DocumentGoes);
        QTest::addRow("%s, files are removed", name.data()) << order << int(FilesAreRemoved);
        QTest::addRow("%s, project dies within", name.data()) << order << int(ProjectDiesWithin);
    } while (std::next_permutation(order.begin(), order.end()));
}

/// Wherever document and editors stand in the project, which goes through its files by their
/// addresses, and under however many kinds of nodes: each is released once.
void TestProjects::editorThatIsAFileToo()
{
    const auto [order, end] = fetched<QVector<int>, int>();
    PlacedEditor::released = 0;
    Slots::next = order.at(0);
    auto* main = new PlacedDocument(QStringLiteral("!a\n[1]\n"));
    const QPointer<QObject> document(main);
    auto* project = new TestProject(m_parent.get(), main);
    project->setOption("key", 5, false);
    for (int i = 0; i < 2; ++i) {
        Slots::next = order.at(i + 1);
        auto* editor = new PlacedEditor(main);
        main->registerDocumentEditor(editor, i ? CodeNode::Group : CodeNode::Animation, 0);
        main->registerDocumentEditor(editor, CodeNode::Group, 5u + unsigned(i));
        project->addFile(editor, FileID::Animations);
        QCOMPARE(editor->option("key"), QVariant(5));
    }
    switch (end) {
    case DocumentGoes:
        main->release();
        QVERIFY(project->files().isEmpty());
        break;
    case FilesAreRemoved:
        project->removeFile(project->filesByType(FileID::Animations).first());
        project->removeFile(FileID::Animations, 0);
        QVERIFY(!main->documentEditor(CodeNode::Animation, 0));
        QVERIFY(!main->documentEditor(CodeNode::Group, 6));
        break;
    case ProjectDiesWithin:
        main->diesWith = project;
        break;
    default:
        break;
    }
    const QPointer<Project> rest(project);
    project->release();
    QCOMPARE(PlacedEditor::released, 2);
    QVERIFY(document.isNull());
    delete rest;
}

/// An editor that is not registered any more can outlive its document.
void TestProjects::editorOutlivesItsDocument()
{
    auto* main = new GrammarDocument(QStringLiteral("!a\n"));
    TestAnimations editor(main);
    main->registerDocumentEditor(&editor, CodeNode::Animation, 0);
    main->reparse();
    QCOMPARE(editor.count(), 1);
    main->unregisterDocumentEditor(&editor);
    main->release();
    QCOMPARE(editor.count(), 0);
    QVERIFY(editor.isEmpty() && !editor.canSave() && !editor.isModified());
    QVERIFY(!editor.project() && editor.messages() && editor.fileName().isEmpty());
    QVERIFY(!editor.add(QStringLiteral("b")));
    editor.autoOrganize();
}

void TestProjects::copyOfUnmodifiedProject()
{
    writeFile(path("game/chars/hero/a.spr"), "sprites");
    writeFile(path("game/chars/hero/sub/b.snd"), "sounds");
    writeFile(path("game/chars/hero/unknown"), "stays");
    TestProject* project = openCharacter("2 a.spr\n4 sub/b.snd");
    auto* file = new TestFile(path("game/chars/hero/a.spr"), "not what is on disk");
    project->addFile(file, Sprites);
    QCOMPARE(project->basePath(), QString("chars/hero/"));

    QStringList files = {"before"};
    project->saveAll(path("copy/"), true, &files);
    QCOMPARE(contents(path("copy")),
             QStringList({"chars/hero/a.spr=sprites", "chars/hero/hero.code=2 a.spr\n4 sub/b.snd",
                          "chars/hero/sub/b.snd=sounds"}));
    QCOMPARE(files, QStringList({"before", "hero.code", "a.spr", "sub/b.snd"}));
    QCOMPARE(file->name, path("game/chars/hero/a.spr"));
    QCOMPARE(project->fileName(), path("game/chars/hero/hero.code"));
    QVERIFY(project->failedFiles().isEmpty());
}

void TestProjects::copyWritesWhatIsModified()
{
    writeFile(path("game/chars/hero/a.spr"), "old");
    TestProject* project = openCharacter("2 a.spr\n4 new.snd");
    auto* changed = new TestFile(path("game/chars/hero/a.spr"), "new");
    changed->modified = true;
    auto* unwritten = new TestFile(path("game/chars/hero/new.snd"), "never saved");
    project->addFile(changed, Sprites);
    project->addFile(unwritten, Sounds);
    auto* main = static_cast<CodeDocument*>(project->file(FileID::MainCode));
    QTextCursor(main).insertText("8 missing\n");

    project->saveAll(path("copy/"), true, nullptr);
    QCOMPARE(contents(path("copy")),
             QStringList({"chars/hero/a.spr=new",
                          "chars/hero/hero.code=8 missing\r\n2 a.spr\r\n4 new.snd",
                          "chars/hero/new.snd=never saved"}));
    QVERIFY(changed->modified);
    QVERIFY(main->isModified());
    QCOMPARE(readFile(path("game/chars/hero/a.spr")), QByteArray("old"));
    QCOMPARE(project->failedFiles(), QStringList("missing"));
}

void TestProjects::copyKeepsSeveralFilesOfOneKind()
{
    QString list;
    QStringList expected;
    for (int i = 0; i < 5; ++i) {
        const QString name = QStringLiteral("part%1").arg(i);
        writeFile(path("game/chars/hero/") + name, name.toUtf8());
        list += QStringLiteral("32 %1\n").arg(name);
        expected << QStringLiteral("chars/hero/%1=%1").arg(name);
    }
    TestProject* project = openCharacter(list);
    auto* one = new TestFile(path("game/chars/hero/part3"), "edited");
    one->modified = true;
    project->addFile(one, FileID::Code);
    expected[3] = "chars/hero/part3=edited";

    QStringList files;
    project->saveAll(path("copy/"), true, &files);
    QCOMPARE(contents(path("copy")).mid(1), expected);
    QCOMPARE(files.size(), 6);
}

// A file is registered under more kinds than the document names it with, and
// under another spelling of its path.
void TestProjects::writtenFileIsNotCopiedOver()
{
    writeFile(path("game/chars/hero/a"), "old");
    TestProject* project = openCharacter("2 ./a\n4 a");
    auto* file = new TestFile(path("game/chars/hero/a"), "new");
    file->modified = true;
    project->addFile(file, quint32(Sprites) | Sounds);
    project->saveAll(path("copy/"), true, nullptr);
    QCOMPARE(readFile(path("copy/chars/hero/a")), QByteArray("new"));
}

void TestProjects::fileWithoutNameTakesReferredPath()
{
    TestProject* project = openCharacter("2 a.spr");
    auto* file = new TestFile({}, "made in memory");
    auto* stranger = new TestFile({}, "not referred to");
    project->addFile(file, Sprites);
    project->addFile(stranger, Sounds);
    project->saveAll(path("copy/"), true, nullptr);
    QCOMPARE(contents(path("copy")),
             QStringList({"chars/hero/a.spr=made in memory", "chars/hero/hero.code=2 a.spr"}));
    QVERIFY(file->name.isEmpty());
}

void TestProjects::moveToNewPlace()
{
    writeFile(path("game/chars/hero/a.spr"), "on disk");
    writeFile(path("game/chars/hero/b.snd"), "never loaded");
    TestProject* project = openCharacter("2 a.spr\n4 b.snd");
    auto* file = new TestFile(path("game/chars/hero/a.spr"), "in memory");
    project->addFile(file, Sprites);
    project->saveAll(path("moved/"), false, nullptr);
    // The main document is the caller's to write.
    QCOMPARE(contents(path("moved")),
             QStringList({"chars/hero/a.spr=in memory", "chars/hero/b.snd=never loaded"}));
    QCOMPARE(file->name, path("moved/chars/hero/a.spr"));
    QCOMPARE(readFile(path("game/chars/hero/a.spr")), QByteArray("on disk"));
    QCOMPARE(project->archive(), FileSystemArchive::instance());
}

void TestProjects::filesOutsideStay()
{
    writeFile(path("elsewhere/a"), "a");
    TestProject* project = openCharacter({});
    auto* outside = new TestFile(path("elsewhere/a"), "changed");
    outside->modified = true;
    auto* archived = new TestFile(path("game/chars/hero/b"), "b");
    archived->setArchive(&m_other);
    archived->modified = true;
    project->addFile(outside, Sprites);
    project->addFile(archived, Sprites);
    project->saveAll(path("copy/"), true, nullptr);
    QCOMPARE(contents(path("copy")), QStringList("chars/hero/hero.code="));
    QCOMPARE(readFile(path("elsewhere/a")), QByteArray("a"));
}

// What leaves the project but not the game goes with it; what would be written
// outside of the target is not.
void TestProjects::targetOutsideIsRefused()
{
    writeFile(path("game/common"), "shared");
    writeFile(path("secret"), "s");
    TestProject* project = openCharacter("32 ../../common\n32 ../../../secret");
    project->saveAll(path("out/copy/"), true, nullptr);
    QCOMPARE(contents(path("out")),
             QStringList({"copy/chars/hero/hero.code=32 ../../common\n32 ../../../secret",
                          "copy/common=shared"}));
    QCOMPARE(project->failedFiles(), QStringList("../../../secret"));
}

void TestProjects::failedFilesAreTold()
{
    // A file stands where the target needs a folder.
    writeFile(path("copy"), "in the way");
    writeFile(path("game/chars/hero/a"), "a");
    TestProject* project = openCharacter("2 a");
    auto* file = new TestFile(path("game/chars/hero/b"), "b");
    project->addFile(file, Sounds);
    project->saveAll(path("copy/"), true, nullptr);
    QStringList failed = project->failedFiles();
    failed.sort();
    QCOMPARE(failed, QStringList({"a", "b", "hero.code"}));
    project->saveAll(path("copy2/"), true, nullptr);
    QVERIFY(project->failedFiles().isEmpty());
}

QTEST_MAIN(TestProjects)
#include "tst_project.moc"
