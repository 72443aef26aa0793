#include "animation/thumbnails/thumbnailseditor.h"

#include "animation/animationeditor.h"
#include "animation/import/assetrequest.h"
#include "animation/thumbnails/spritelist.h"
#include "editors/code/codeworkspace.h"
#include "graphics/graphicwork/graphicsworkspace.h"
#include "support/folders.h"
#include "support/planneddialogs.h"
#include "support/testgrammar.h"
#include "support/testinterface.h"
#include "support/testproject.h"
#include "support/testsprites.h"
#include "support/testtable.h"
#include "text/zorvtranslator.h"

#include <QAction>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace Zorv;

namespace {

const char* const toolNames[] = {"thumb_add", "thumb_add_all", "thumb_new", "thumb_new_all",
                                 "thumb_save"};
constexpr unsigned FirstText = 167;

const char* const someText = "!one\n-0,1\n-0,2\n!two\n";

/// A host that brings an editor forward by activating it.
class Host : public TestInterface
{
public:
    void activateEditor(Editor* newEditor) override
    {
        editor = newEditor;
        newEditor->activate();
    }
};

class Editing : public AnimationEditor
{
public:
    using AnimationEditor::AnimationEditor;
    void find(const QString&, unsigned) override {}

    bool agrees = true;
    QString text;
    int place = 0;

protected:
    FieldRange fieldRange(Field) const override { return {-100, 100}; }
    ContactBoxCode* addContactBox(FrameCode*, ContactBoxCode::BoxType, QPoint, QPoint) override
    {
        return nullptr;
    }
    void copyContactBoxes(FrameCode*, FrameCode*) override {}
    AssetResult importAssets(const AssetRequest&) override { return {}; }
    bool saveAnimationGIF(const QString&, QString*) override { return false; }
    bool newAnimationData(QString& identifier, QString& code, int& position) override
    {
        identifier = QStringLiteral("made");
        code = text;
        position = place;
        return agrees;
    }
};

QImage picture(int kind)
{
    QImage image(5 + kind, 4, QImage::Format_Indexed8);
    image.setColorTable({qRgb(0, 0, 0), qRgb(10 * kind, 200, 7)});
    image.fill(1);
    return image;
}

}  // namespace

class TestThumbnails : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void toolsAreOfUse();
    void addsFrames();
    void makesAnimations_data();
    void makesAnimations();
    void followsTheProject();
    void savesImages();
    void savesAFolder();
    void whatCannotBeSavedIsTold();

private:
    QAction* action(const char* name) const { return m_host->actions.value(QLatin1String(name)); }
    void trigger(const char* name) const { action(name)->trigger(); }
    void select(const QVector<int>& rows);
    QString text() const { return m_document->text(); }

    std::unique_ptr<Host> m_host;
    std::unique_ptr<PlannedDialogs> m_dialogs;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<TestParent> m_game;
    std::unique_ptr<CodeWorkspace> m_code;
    std::unique_ptr<GraphicsWorkspace> m_stage;
    std::unique_ptr<GraphicsRenderer> m_renderer;
    std::unique_ptr<Editing> m_editor;
    std::unique_ptr<ThumbnailsEditor> m_panel;
    TestProject* m_project = nullptr;       // the game's
    TestSprites* m_sprites = nullptr;       // the project's
    GrammarDocument* m_document = nullptr;  // the project's
    SpriteList* m_list = nullptr;           // the host's
};

void TestThumbnails::init()
{
    m_host = std::make_unique<Host>();
    m_dialogs = std::make_unique<PlannedDialogs>();
    m_folder = std::make_unique<QTemporaryDir>();
    m_game = std::make_unique<TestParent>(m_folder->path() + QLatin1Char('/'));
    m_project = m_game->open(QStringLiteral("a.txt"), {});
    m_sprites = new TestSprites;
    for (int i = 0; i < 6; ++i) {
        m_sprites->insert(i, {0, i}, picture(i));
    }
    m_project->addFile(m_sprites, FileID::Sprites);
    m_document = new GrammarDocument(QLatin1String(someText));
    m_document->registerDocumentEditor(new TestAnimations(m_document), CodeNode::Animation, 0);
    m_document->reparse();
    m_document->clearUndoRedoStacks();
    m_project->addFile(m_document, FileID::Animations);

    m_code = std::make_unique<CodeWorkspace>();
    m_stage = std::make_unique<GraphicsWorkspace>();
    m_renderer = std::make_unique<GraphicsRenderer>();
    m_editor = std::make_unique<Editing>(m_code.get(), m_stage.get(), m_renderer.get());
    m_panel = std::make_unique<ThumbnailsEditor>();
    m_list = m_panel->list();
    m_host->controlsWindow()->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_host->controlsWindow()));
    m_panel->setProject(m_project);
    m_editor->setDocument(m_document);
    m_editor->activate();
    m_panel->setAnimationEditor(m_editor.get());
}

void TestThumbnails::cleanup()
{
    m_panel.reset();
    m_editor.reset();
    m_renderer.reset();
    m_stage.reset();
    m_code.reset();
    m_game.reset();
    m_folder.reset();
    m_dialogs.reset();
    m_host.reset();
}

void TestThumbnails::select(const QVector<int>& rows)
{
    m_list->clearSelection();
    for (int row : rows) {
        m_list->selectionModel()->setCurrentIndex(m_sprites->index(row, 0),
                                                  QItemSelectionModel::Select);
    }
}

void TestThumbnails::toolsAreOfUse()
{
    const auto isOn = [this] {
        QString states;
        for (const char* name : toolNames) {
            states += QLatin1Char(action(name)->isEnabled() ? '1' : '0');
        }
        return states;
    };
    QCOMPARE(isOn(), QStringLiteral("01010"));
    select({1});
    QCOMPARE(isOn(), QStringLiteral("11111"));
    m_document->setPlainText(QString());
    QTRY_COMPARE(isOn(), QStringLiteral("00111"));
    m_panel->setAnimationEditor(nullptr);
    QCOMPARE(isOn(), QStringLiteral("00001"));
    m_sprites->remove(1);
    QCOMPARE(isOn(), QStringLiteral("00000"));
    m_panel->setAnimationEditor(m_editor.get());
    QCOMPARE(isOn(), QStringLiteral("00010"));
    m_editor.reset();
    QCOMPARE(isOn(), QStringLiteral("00000"));
}

/// Behind the frame that is shown, in the order of the list; again and again.
void TestThumbnails::addsFrames()
{
    const QString before = text();
    m_editor->selectFrame(0);
    select({3, 1});
    QTest::keyClick(m_list, Qt::Key_Return);
    QCOMPARE(text(), QStringLiteral("!one\n-0,1\n-0,1\n-0,3\n-0,2\n!two\n"));
    QCOMPARE(m_editor->frameIndex(), 2);
    select({5});
    trigger("thumb_add");
    QCOMPARE(text(), QStringLiteral("!one\n-0,1\n-0,1\n-0,3\n-0,5\n-0,2\n!two\n"));
    m_editor->undo();
    m_editor->undo();
    QCOMPARE(text(), before);
    QVERIFY(!m_document->isUndoAvailable());

    m_editor->selectAnimation(1);
    m_list->setFocus();
    QTest::keyClick(m_list, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(m_list->selectedRows().size(), 6);
    trigger("thumb_add_all");
    QCOMPARE(text(), before + QStringLiteral("-0,0\n-0,1\n-0,2\n-0,3\n-0,4\n-0,5\n"));
    m_editor->undo();
    QCOMPARE(text(), before);
}

void TestThumbnails::makesAnimations_data()
{
    columns<QString, int, QString>("code", "place", "after");
    const QString text = QLatin1String(someText);
    const QString made = QStringLiteral("!made\n-0,2\n-0,4\n");
    row("in front", QString(), 0, made + text);
    row("at the end", QString(), 2, text + made);
    row("nowhere", QString(), -1, text + made);
    row("own frames stay", QStringLiteral("!made\n-0,5"), 1,
        QStringLiteral("!one\n-0,1\n-0,2\n!made\n-0,5\n-0,2\n-0,4\n!two\n"));
    row("no animation", QStringLiteral("# nothing"), 2, text + QStringLiteral("# nothing\n"));
}

void TestThumbnails::makesAnimations()
{
    const auto [code, place, after] = fetched<QString, int, QString>();
    const QString before = text();
    m_editor->text = code;
    m_editor->place = place;
    select({2, 4});
    m_editor->agrees = false;
    trigger("thumb_new");
    QCOMPARE(text(), before);
    m_editor->agrees = true;
    trigger("thumb_new");
    QCOMPARE(text(), after);
    m_editor->undo();
    QCOMPARE(text(), before);
    QVERIFY(!m_document->isUndoAvailable());
}

void TestThumbnails::followsTheProject()
{
    const auto marked = [this] {
        QVector<int> rows;
        for (int row = 0; m_list->isMarked(row) || row < 6; ++row) {
            if (m_list->isMarked(row)) {
                rows.append(row);
            }
        }
        return rows;
    };
    QCOMPARE(m_list->sprites(), m_sprites);
    QCOMPARE(marked(), (QVector<int>{0, 3, 4, 5}));
    auto* more = new GrammarDocument(QStringLiteral("!three\n-0,3\n"));
    more->registerDocumentEditor(new TestAnimations(more), CodeNode::Animation, 0);
    more->reparse();
    m_project->addFile(more, FileID::Animations);
    m_panel->setProject(m_project);
    QCOMPARE(marked(), (QVector<int>{0, 4, 5}));
    m_project->removeFile(more);
    QCOMPARE(marked(), (QVector<int>{0, 3, 4, 5}));

    TestProject* other = m_game->open(QStringLiteral("b.txt"), {});
    m_panel->setProject(other);
    QVERIFY(!m_list->sprites() && !action("thumb_new_all")->isEnabled());
    m_panel->setProject(m_project);
    select({0, 1});
    m_editor->setDocument(nullptr);
    m_game->close(m_project);
    QTRY_VERIFY(!action("thumb_save")->isEnabled());
    QVERIFY(!m_list->sprites() && m_list->selectedSprites().isEmpty());
    trigger("thumb_save");
    QCOMPARE(m_dialogs->count(), 0);
}

void TestThumbnails::savesImages()
{
    select({3});
    const QString place = m_folder->filePath(QStringLiteral("one.png"));
    m_dialogs->fileAnswers = {{place}};
    trigger("thumb_save");
    QCOMPARE(QImage(place).convertToFormat(QImage::Format_RGB32),
             picture(3).convertToFormat(QImage::Format_RGB32));
    QVERIFY(m_host->status(0).contains(QLatin1Char('1')));
    QCOMPARE(m_project->option(QStringLiteral("spr_path")).toString(), m_folder->path());
    trigger("thumb_save");
    QCOMPARE(m_dialogs->shown.last().folder, m_folder->filePath(QStringLiteral("0-3.png")));
}

void TestThumbnails::savesAFolder()
{
    m_sprites->insert(6, {0, 1}, picture(9));
    select({1, 2, 6});
    m_dialogs->fileAnswers = {{m_folder->path()}, {m_folder->path()}, {m_folder->path()}};
    trigger("thumb_save");  // no format: the person gives up
    m_dialogs->choiceAnswers = {3, 3};
    trigger("thumb_save");
    const QStringList names{QStringLiteral("0-1.bmp"), QStringLiteral("0-1_2.bmp"),
                            QStringLiteral("0-2.bmp")};
    QCOMPARE(QDir(m_folder->path()).entryList({QStringLiteral("0-*")}), names);
    QCOMPARE(QImage(m_folder->filePath(names.at(1))).width(), picture(9).width());

    // What is there is kept unless the person says otherwise.
    writeFile(m_folder->filePath(names.at(2)), "mine");
    m_dialogs->buttonAnswers = {Dialogs::No};
    trigger("thumb_save");
    QVERIFY(m_dialogs->texts(QStringLiteral("question")).last().contains(QLatin1Char('3')));
    QCOMPARE(readFile(m_folder->filePath(names.at(2))), QByteArray("mine"));
}

/// The others are written all the same.
void TestThumbnails::whatCannotBeSavedIsTold()
{
    m_sprites->setImage(1, QImage());
    // A folder stands where a file is to go.
    QVERIFY(QDir().mkpath(m_folder->filePath(QStringLiteral("0-2.png/x"))));
    select({1, 2, 3, 4});
    m_dialogs->fileAnswers = {{m_folder->path()}};
    m_dialogs->choiceAnswers = {0};
    m_dialogs->buttonAnswers = {Dialogs::Yes};
    m_dialogs->whileOpen = [this](const PlannedDialogs::Shown& dialog) {
        if (dialog.kind == QLatin1String("question")) {
            m_sprites->remove(3);
            m_sprites->move(0, 4);
        }
    };
    trigger("thumb_save");
    const QStringList errors = m_dialogs->texts(QStringLiteral("error"));
    QCOMPARE(errors.size(), 1);
    QVERIFY(errors.first().contains(QStringLiteral("0-1.png")));
    QVERIFY(errors.first().contains(QStringLiteral("0-2.png")));
    QVERIFY(errors.first().contains(QStringLiteral("0-3.png")));
    QVERIFY(!errors.first().contains(QStringLiteral("0-4.png")));
    QCOMPARE(QImage(m_folder->filePath(QStringLiteral("0-4.png"))).width(), picture(4).width());
}

QTEST_MAIN(TestThumbnails)
#include "tst_thumbnails.moc"
