#include "editors/framework/fileeditor.h"

#include "support/blobeditor.h"
#include "support/planneddialogs.h"
#include "support/testinterface.h"
#include "support/testproject.h"
#include "support/testtable.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace Zorv;

namespace {

class BlobFile : public TestFile
{
public:
    using TestFile::TestFile;
    int capabilities() const override { return bits; }
    bool canSave() const override { return isSavable; }
    void reset() override { content.clear(); }

    int bits = 0;
    bool isSavable = true;
};

}  // namespace

/// An editor of blobs on a project in a folder of its own, with another folder beside it.
class TestFileEditor : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void commandsComeForward();
    void canDiscard_data();
    void canDiscard();
    void reset();
    void openFilters_data();
    void openFilters();
    void open_data();
    void open();
    void startFolder();
    void save();
    void failedSaveAsksForName();
    void saveAs_data();
    void saveAs();
    void saveAsRefuses();
    void otherFileOfProject();

private:
    QString path(const char* name) const { return m_root->path() + QLatin1String(name); }
    QString option(const char* key) const { return m_project->option(key).toString(); }

    std::unique_ptr<QTemporaryDir> m_root;
    std::unique_ptr<TestInterface> m_host;
    std::unique_ptr<PlannedDialogs> m_dialogs;
    std::unique_ptr<TestParent> m_parent;
    std::unique_ptr<BlobEditor> m_editor;
    std::unique_ptr<QSignalSpy> m_modified;
    TestProject* m_project = nullptr;
    BlobFile* m_file = nullptr;
};

void TestFileEditor::init()
{
    m_root = std::make_unique<QTemporaryDir>();
    QVERIFY(writeFile(path("/game/in.blob"), "inside"));
    QVERIFY(writeFile(path("/gamefolder/out.blob"), "outside"));
    m_host = std::make_unique<TestInterface>();
    m_host->texts[7] = QStringLiteral("All formats");
    m_dialogs = std::make_unique<PlannedDialogs>();
    m_parent = std::make_unique<TestParent>(path("/game"));
    m_project = m_parent->open(QStringLiteral("main.txt"), QStringLiteral("2 in.blob"));
    m_file = new BlobFile(path("/game/in.blob"), "work");
    m_file->modified = true;
    m_project->addFile(m_file, FileID::Sprites);
    m_editor = std::make_unique<BlobEditor>();
    m_editor->blob = m_file;
    m_editor->activate();
    m_modified = std::make_unique<QSignalSpy>(m_editor.get(), &Editor::modified);
}

void TestFileEditor::cleanup()
{
    m_editor.reset();
    m_parent.reset();
    m_dialogs.reset();
    m_host.reset();
}

void TestFileEditor::commandsComeForward()
{
    const QString call = QStringLiteral("activateEditor()");
    for (const auto command :
         {&FileEditor::reset, &FileEditor::open, &FileEditor::save, &FileEditor::saveAs}) {
        m_file->modified = false;
        m_editor->deactivate();
        m_host->calls.clear();
        (m_editor.get()->*command)();
        QCOMPARE(m_host->calls.count(call), 1);
        QCOMPARE(m_host->editor, m_editor.get());
        m_editor->activate();
        (m_editor.get()->*command)();
        QCOMPARE(m_host->calls.count(call), 1);
    }
    // Without a file there is nothing to do, and nobody to ask.
    m_dialogs->shown.clear();
    m_editor->blob = nullptr;
    for (const auto command :
         {&FileEditor::reset, &FileEditor::open, &FileEditor::save, &FileEditor::saveAs}) {
        (m_editor.get()->*command)();
    }
    QCOMPARE(m_dialogs->count(), 0);
}

void TestFileEditor::canDiscard_data()
{
    columns<int, bool, int, int, bool>("bits", "modified", "answer", "questions", "result");
    row("saved with its owner", 1, true, int(Dialogs::No), 0, true);
    row("another capability", 2, true, int(Dialogs::No), 1, false);
    row("no changes", 0, false, int(Dialogs::No), 0, true);
    row("yes", 0, true, int(Dialogs::Yes), 1, true);
    row("closed", 0, true, int(Dialogs::NoButton), 1, false);
}

void TestFileEditor::canDiscard()
{
    const auto [bits, modified, answer, questions, result] = fetched<int, bool, int, int, bool>();
    m_file->bits = bits;
    m_file->modified = modified;
    m_dialogs->buttonAnswers = {Dialogs::Button(answer)};
    QCOMPARE(m_editor->canDiscard(), result);
    QCOMPARE(m_dialogs->texts(QStringLiteral("question")).size(), questions);
    if (questions > 0) {
        QCOMPARE(m_dialogs->shown[0].title, QStringLiteral("Discard changes?"));
        QCOMPARE(m_dialogs->shown[0].text,
                 QStringLiteral("Do you want to discard the changes made in file 2/0?"));
        QCOMPARE(m_dialogs->shown[0].defaultButton, Dialogs::No);
    }
}

void TestFileEditor::reset()
{
    m_editor->fileType = 1;
    m_editor->reset();
    QCOMPARE(m_file->content, QByteArray("work"));
    QCOMPARE(m_modified->count(), 0);

    m_dialogs->buttonAnswers = {Dialogs::Yes};
    m_editor->reset();
    QCOMPARE(m_file->content, QByteArray());
    QCOMPARE(m_modified->count(), 1);
    QCOMPARE(m_dialogs->shown.last().title, QStringLiteral("No file reference!"));

    m_file->modified = false;
    m_editor->fileType = 2;
    m_editor->reset();
    QCOMPARE(m_dialogs->count(QStringLiteral("warning")), 1);
}

void TestFileEditor::openFilters_data()
{
    columns<QString, QString, QString>("filter", "open", "save");
    row("none", "", "", "");
    row("one", "Blob;.blob", "Blob (*.blob)", "Blob (*.blob)");
    row("two", "Blob;.blob;T %1;.txt", "All formats (*.blob *.txt);;Blob (*.blob);;T %1 (*.txt)",
        "Blob (*.blob);;T %1 (*.txt)");
    row("any file", "Any;;Blob;.blob", "All formats (* *.blob);;Any (*);;Blob (*.blob)",
        "Any (*);;Blob (*.blob)");
}

void TestFileEditor::openFilters()
{
    const auto [filter, open, save] = fetched<QString, QString, QString>();
    m_editor->filter = filter;
    m_editor->open();
    QCOMPARE(m_dialogs->texts(QStringLiteral("openFile")), QStringList(open));
    QCOMPARE(m_dialogs->shown[0].title, QStringLiteral("Open file 2/0..."));
    m_editor->saveAs();
    QCOMPARE(m_dialogs->texts(QStringLiteral("saveFile")),
             save.isEmpty() ? QStringList() : QStringList(save));
    QCOMPARE(m_dialogs->count(QStringLiteral("warning")), 0);
}

void TestFileEditor::open_data()
{
    columns<QString, int, int, QByteArray, QString, QString>("choice", "answer", "questions",
                                                             "content", "name", "folder");
    const QString in = QStringLiteral("/game/in.blob");
    const QString out = QStringLiteral("/gamefolder/out.blob");
    row("inside", in, 0, 0, QByteArray("inside"), in, "/game");
    row("outside", out, int(Dialogs::No), 1, QByteArray("outside"), out, "/gamefolder");
    row("a copy", out, int(Dialogs::Yes), 1, QByteArray("outside"), in, "/gamefolder");
    row("given up", QString(), 0, 0, QByteArray("work"), in, "");
    row("missing", "/game/no.blob", 0, 0, QByteArray("work"), in, "/game");
}

void TestFileEditor::open()
{
    QFETCH(QString, choice);
    QFETCH(int, answer);
    QFETCH(QByteArray, content);
    QFETCH(QString, name);
    QFETCH(QString, folder);
    if (!choice.isEmpty()) {
        m_dialogs->fileAnswers = {{m_root->path() + choice}};
    }
    m_dialogs->buttonAnswers = {Dialogs::Button(answer)};
    m_editor->open();
    QTEST(m_dialogs->count(QStringLiteral("warning")), "questions");
    QCOMPARE(m_file->content, content);
    QCOMPARE(m_file->name, m_root->path() + name);
    QCOMPARE(option("blob_path"), folder.isEmpty() ? QString() : m_root->path() + folder);
    QCOMPARE(m_host->options.value(QStringLiteral("blob_path")).toString(), option("blob_path"));
    QCOMPARE(m_modified->count(), choice.isEmpty() ? 0 : 1);
}

void TestFileEditor::startFolder()
{
    m_host->options[QStringLiteral("project_path")] = QStringLiteral("/all");
    m_editor->open();
    m_host->options[QStringLiteral("blob_path")] = QStringLiteral("/host");
    m_editor->open();
    m_project->setOption(QStringLiteral("blob_path"), QStringLiteral("/mine"), false);
    m_editor->open();
    m_editor->saveAs();
    QStringList folders;
    for (const PlannedDialogs::Shown& dialog : qAsConst(m_dialogs->shown)) {
        folders.append(dialog.folder);
    }
    QCOMPARE(folders, QStringList({"/all", "/host", "/mine", "/mine"}));
}

void TestFileEditor::save()
{
    m_file->isSavable = false;
    m_editor->save();
    m_file->isSavable = true;
    m_file->modified = false;
    m_editor->save();
    QCOMPARE(m_modified->count(), 0);
    QCOMPARE(readFile(path("/game/in.blob")), QByteArray("inside"));

    m_file->modified = true;
    m_editor->save();
    QCOMPARE(m_modified->count(), 1);
    QCOMPARE(readFile(path("/game/in.blob")), QByteArray("work"));
    QVERIFY(!m_file->isModified());
    QCOMPARE(m_dialogs->count(), 0);
}

void TestFileEditor::failedSaveAsksForName()
{
    m_file->name = path("/game");
    m_dialogs->fileAnswers = {{path("/game/new.blob")}};
    m_editor->save();
    QCOMPARE(m_dialogs->count(QStringLiteral("saveFile")), 1);
    QCOMPARE(readFile(path("/game/new.blob")), QByteArray("work"));
    QCOMPARE(m_file->name, path("/game/new.blob"));
}

void TestFileEditor::saveAs_data()
{
    columns<QString, int, QString, QString>("choice", "answer", "written", "name");
    const QString in = QStringLiteral("/game/in.blob");
    row("outside", "/gamefolder/a.blob", int(Dialogs::No), "/gamefolder/a.blob",
        "/gamefolder/a.blob");
    row("copy inside", "/game/a.txt", int(Dialogs::Yes), "/game/a.txt", in);
    row("no extension", "/game/a", int(Dialogs::No), "/game/a.blob", "/game/a.blob");
    row("in capitals", "/game/A.TXT", int(Dialogs::Yes), "/game/A.TXT", in);
    row("foreign extension", "/game/a.png", int(Dialogs::Yes), "/game/a.png.blob", in);
    row("fails", "/game/in.blob/x", int(Dialogs::No), QString(), in);
}

void TestFileEditor::saveAs()
{
    const auto [choice, answer, written, name] = fetched<QString, int, QString, QString>();
    m_dialogs->fileAnswers = {{m_root->path() + choice}};
    m_dialogs->buttonAnswers = {Dialogs::Button(answer)};
    m_editor->saveAs();
    QCOMPARE(m_dialogs->shown[0].title, QStringLiteral("Save file 2/0 as..."));
    QCOMPARE(m_dialogs->count(QStringLiteral("question")), 1);
    QCOMPARE(m_dialogs->shown[1].defaultButton, Dialogs::No);
    QCOMPARE(m_file->name, m_root->path() + name);
    if (!written.isEmpty()) {
        QCOMPARE(readFile(m_root->path() + written), QByteArray("work"));
    }
    QCOMPARE(m_file->isModified(), written.isEmpty() || answer == Dialogs::Yes);
    QCOMPARE(option("blob_path"), QFileInfo(m_root->path() + choice).path());
    QCOMPARE(m_modified->count(), 1);
}

void TestFileEditor::saveAsRefuses()
{
    m_file->isSavable = false;
    m_editor->saveAs();
    QCOMPARE(m_dialogs->count(), 0);
    m_file->isSavable = true;
    m_editor->saveAs();
    QCOMPARE(m_dialogs->count(), 1);
    QCOMPARE(m_modified->count(), 0);
}

void TestFileEditor::otherFileOfProject()
{
    auto* other = new BlobFile(path("/game/other.blob"), "other");
    m_project->addFile(other, FileID::Sprites);
    m_dialogs->fileAnswers = {{path("/game/x")}};
    QVERIFY(FileEditor::saveFileAs(other, m_editor.get(), m_host.get()));
    QCOMPARE(readFile(path("/game/x.blob")), QByteArray("other"));
    QCOMPARE(m_dialogs->shown[0].title, QStringLiteral("Save file 2/1 as..."));
    m_dialogs->fileAnswers = {{path("/game/x.blob/no")}};
    QVERIFY(!FileEditor::saveFileAs(other, m_editor.get(), m_host.get()));
    QVERIFY(!FileEditor::saveFileAs(other, m_editor.get(), m_host.get()));
}

QTEST_MAIN(TestFileEditor)
#include "tst_fileeditor.moc"
