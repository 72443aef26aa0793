#include "windowfixture.h"

#include "app/paint/paintcommands.h"

#include "app/actions/actionregistry.h"
#include "app/controls/activeareas.h"
#include "app/stage/familyanimationeditor.h"
#include "app/stage/stagecommands.h"
#include "app/window/editorregistry.h"
#include "support/testproject.h"

#include <zorv/editors/framework/workspace.h>
#include <zorv/graphics/graphicwork/graphicsworkspace.h>

#include <zorv/image/spriteeditor.h>

#include <QAction>
#include <QInputDialog>
#include <QLineEdit>
#include <QSplitter>
#include <QTimer>
#include <QToolBar>

namespace {

/// A file that counts its steps.
class CountedFile : public TestFile
{
public:
    using TestFile::TestFile;

    Zorv::Project* project() const override { return owner; }
    void undo() override { --done; }
    void redo() override { ++done; }
    bool canUndo() const override { return done > 0; }
    bool canRedo() const override { return done < 2; }
    QString undoTitle() const override { return QStringLiteral("step %1").arg(done); }

    Zorv::Project* owner = nullptr;
    int done = 1;
};

class SecondWorkspace : public Zorv::Workspace
{
public:
    QString name() const override { return QStringLiteral("image"); }
    QWidget* widget() const override { return m_widget; }
    void activate() override { log.append(QStringLiteral("shown")); }
    void deactivate() override { log.append(QStringLiteral("hidden")); }
    void zoomIn() override { log.append(QStringLiteral("larger")); }

    QStringList log;

private:
    QWidget* m_widget = new QLineEdit;  // it only has to take the keyboard
};

/// Tells what the window asks of it.
class SecondEditor : public Zorv::FileEditor
{
public:
    explicit SecondEditor(SecondWorkspace* workspace)
        : m_workspace(workspace),
          m_action(host()->createEditorAction(QStringLiteral("editor_own"), nullptr, 0))
    {
    }

    QAction* action() const override { return m_action; }
    QString name() const override { return QStringLiteral("own"); }
    int canEditFileType() const override { return 0; }
    QStringList areas() const override { return {QStringLiteral("owns")}; }
    Zorv::Workspace* workspace() const override { return m_workspace; }
    void activate() override
    {
        FileEditor::activate();
        log.append(QStringLiteral("active"));
    }
    void deactivate() override
    {
        FileEditor::deactivate();
        log.append(QStringLiteral("inactive"));
    }
    void retranslate() override {}
    void setProject(Zorv::Project* project) override
    {
        file_.owner = project;
        log.append(project ? QStringLiteral("project") : QStringLiteral("none"));
    }
    void projectAboutToClose(Zorv::Project*) override { log.append(QStringLiteral("closing")); }
    void find(const QString& text, unsigned flags) override
    {
        log.append(QStringLiteral("find %1 %2").arg(text).arg(flags));
    }
    void replace(const QString&, const QString&, unsigned, bool) override {}
    void selectAll() override { log.append(QStringLiteral("all")); }
    Zorv::ProjectFile* file() const override { return const_cast<CountedFile*>(&file_); }
    bool canDiscard() const override
    {
        log.append(QStringLiteral("asked"));
        return mayGo;
    }
    void cut() override { log.append(QStringLiteral("cut")); }
    void copy() override { log.append(QStringLiteral("copy")); }
    void paste() override { log.append(QStringLiteral("paste")); }
    void save() override { log.append(QStringLiteral("save")); }

    CountedFile file_{QStringLiteral("second")};
    mutable QStringList log;
    bool mayGo = true;

private:
    SecondWorkspace* m_workspace;
    QAction* m_action;
};

}  // namespace

/// A second editor with its workspace, added to the real window.
class TestEditors : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void comesToTheFront();
    void textsComeWithTheStage();
    void isFoundByItsNames();
    void takesTheCommands();
    void isToldOfProjects();
    void isAskedBeforeItsFileGoes();

private:
    App::MainWindow* window() const { return m->window.get(); }
    void press(const QKeySequence& key) const;

    TemporaryGame m_game;
    std::unique_ptr<WindowFixture> m;
    std::unique_ptr<SecondWorkspace> m_workspace;
    std::unique_ptr<SecondEditor> m_editor;
};

void TestEditors::init()
{
    m = std::make_unique<WindowFixture>();
    m_workspace = std::make_unique<SecondWorkspace>();
    m_editor = std::make_unique<SecondEditor>(m_workspace.get());
    window()->editors()->add(m_editor.get(), Zorv::FileID::Commands);
    m->open(m_game, m_game.ryn());
    m_editor->log.clear();
}

void TestEditors::cleanup()
{
    m_editor->mayGo = true;
    m_editor.reset();
    m_workspace.reset();
    m.reset();
}

void TestEditors::press(const QKeySequence& key) const
{
    QCoreApplication::processEvents();
    QTest::keyClick(m_workspace->widget(), Qt::Key(key[0] & ~int(Qt::KeyboardModifierMask)),
                    Qt::KeyboardModifiers(key[0] & int(Qt::KeyboardModifierMask)));
}

void TestEditors::comesToTheFront()
{
    m->goTo(3, 2);
    auto* bar = window()->findChild<QToolBar*>(QStringLiteral("editors_bar"));
    QTRY_VERIFY(bar->isVisible());
    QCOMPARE(bar->actions().size(), 5);
    QTest::mouseClick(bar->widgetForAction(m_editor->action()), Qt::LeftButton);
    QCOMPARE(m->host.currentEditor(), m_editor.get());
    QCOMPARE(m_editor->log, QStringList(QStringLiteral("active")));
    QCOMPARE(m_workspace->log, QStringList(QStringLiteral("shown")));
    QVERIFY(m_workspace->widget()->isVisible() && !window()->middle()->isVisible());
    QCOMPARE(QApplication::focusWidget(), m_workspace->widget());
    QVERIFY(m_editor->action()->isChecked() && !window()->textEditor()->isActive());
    // Tools of the area that is in front are of use, and those of texts are not.
    QTRY_COMPARE(window()->registry()->activeAreas()->areas(),
                 QSet<QString>{QStringLiteral("owns")});
    QVERIFY(!m->action("code_goto")->isEnabled() && !m->action("close_text")->isEnabled());

    window()->textEditor()->action()->trigger();
    QCOMPARE(m->host.currentEditor(), window()->textEditor());
    QCOMPARE(m_editor->log.last(), QStringLiteral("inactive"));
    QCOMPARE(m_workspace->log.last(), QStringLiteral("hidden"));
    QCOMPARE(m->place().line, 3);
    QCOMPARE(m->place().column, 2);

    // By hand, and by a file that is shown in another editor.
    m->host.activateEditor(m_editor.get());
    QVERIFY(m_editor->isActive());
    QVERIFY(window()->openFile(m_game.ryn()));
    QVERIFY(!m_editor->isActive() && m->edit()->hasFocus());

    // Without anything to work on it goes.
    m_editor->action()->trigger();
    m_editor->action()->setVisible(false);
    emit m_editor->modified();
    QTRY_COMPARE(m->host.currentEditor(), window()->textEditor());
    m->host.activateEditor(m_editor.get());
    QVERIFY(!m_editor->isActive());
}

/// Whoever wants the text alone has it, of all texts, and nothing in it moves.
void TestEditors::textsComeWithTheStage()
{
    QVERIFY(window()->openFile(m_game.animations()));
    const auto* stage = window()->stage();
    const auto isStage = [&](bool isShown) {
        QCoreApplication::processEvents();
        return m->host.currentEditor() == (isShown ? static_cast<Zorv::Editor*>(stage->editor())
                                                   : window()->textEditor()) &&
               m->action("view_stage")->isChecked() == isShown &&
               stage->workspace()->widget()->isVisible() == isShown;
    };
    QVERIFY(isStage(true));
    m->goTo(2, 3, 4);
    const QTextCursor cursor = m->edit()->textCursor();
    const App::NodeModel* nodes = window()->textEditor()->nodes();
    QTRY_COMPARE(nodes->lineNo(m->tree()->currentIndex()), 2);
    const QModelIndex node = m->tree()->currentIndex();
    const auto isUntouched = [&] {
        return m->edit()->textCursor() == cursor && m->tree()->currentIndex() == node &&
               m->edit()->textCursor().selectedText() == cursor.selectedText();
    };
    window()->textEditor()->action()->trigger();
    QVERIFY(isStage(false) && isUntouched());
    m->action("view_stage")->trigger();
    QVERIFY(isStage(true) && isUntouched());
    m->action("view_stage")->trigger();
    QVERIFY(isStage(false) && isUntouched());
    QVERIFY(window()->openFile(m_game.ryn()));
    QVERIFY(window()->openFile(m_game.animations()));
    QVERIFY(isStage(false));
    stage->editor()->action()->trigger();
    QVERIFY(isStage(true));
    // A text without animations has no stage, and gets it with the first.
    QVERIFY(window()->openFile(m_game.ryn()));
    QCoreApplication::processEvents();
    QVERIFY(!stage->workspace()->widget()->isVisible() && !stage->editor()->action()->isEnabled());
    QTextCursor end(m->document());
    end.movePosition(QTextCursor::End);
    end.insertText(QStringLiteral("\nanimation 5\nframe 0,0"));
    QTRY_VERIFY(isStage(true));
}

void TestEditors::isFoundByItsNames()
{
    for (const char* name : {"own", "owns"}) {
        QCOMPARE(m->host.editorByName(name), m_editor.get());
    }
    for (const char* name : {"spr", "sprites", "pal"}) {
        QCOMPARE(m->host.editorByName(name), window()->paint()->editor());
    }
    QCOMPARE(m->host.editorByName("code"), window()->textEditor());
    for (const char* name : {"anim", "animations"}) {
        QCOMPARE(m->host.editorByName(name), window()->stage()->editor());
    }
    for (const char* name : {"all", ""}) {
        QVERIFY2(!m->host.editorByName(name), name);
    }
    m_editor->action()->trigger();  // others are in charge of the kind as well
    QCOMPARE(m->host.fileEditor(&m_editor->file_, Zorv::FileID::Commands), m_editor.get());
}

void TestEditors::takesTheCommands()
{
    m->host.activateEditor(m_editor.get());
    // The field that stands for a workspace would take most keys itself.
    m_workspace->widget()->setFocusPolicy(Qt::NoFocus);
    window()->gameTree()->setFocus();
    const QString text = m->document()->text();
    QTRY_COMPARE(m->action("undo")->text(), QStringLiteral("&Undo: step 1"));
    m->action("undo")->trigger();
    QCOMPARE(m_editor->file_.done, 0);
    emit m_editor->modified();
    QTRY_VERIFY(!m->action("undo")->isEnabled());
    m->action("redo")->trigger();
    QCOMPARE(m_editor->file_.done, 1);
    m->action("zoom_in")->trigger();
    QCOMPARE(m_workspace->log.last(), QStringLiteral("larger"));
    m_editor->file_.modified = true;
    emit m_editor->modified();
    QTRY_VERIFY(m->action("save")->isEnabled());
    m->action("save")->trigger();
    QCOMPARE(m_editor->log.last(), QStringLiteral("save"));
    QTimer::singleShot(0, this, [] {
        auto* dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        dialog->setTextValue(QStringLiteral("9"));
        dialog->accept();
    });
    m->action("find")->trigger();
    QCOMPARE(m_editor->log.last(), QStringLiteral("find 9 8"));
    m->action("find_previous")->trigger();
    QCOMPARE(m_editor->log.last(), QStringLiteral("find 9 12"));
    // What concerns a selection stays away from it, with the keyboard in a panel.
    m_editor->log.clear();
    for (const char* name : {"cut", "copy", "paste", "select_all", "delete"}) {
        QVERIFY2(!m->action(name)->isEnabled(), name);
    }
    QCOMPARE(m->document()->text(), text);
}

void TestEditors::isToldOfProjects()
{
    QVERIFY(window()->openFile(m_game.oda()));
    QTRY_COMPARE(m_editor->log, QStringList(QStringLiteral("project")));
    m_editor->log.clear();
    m->action("close_project")->trigger();
    QTRY_COMPARE(m_editor->log.join(' '), QStringLiteral("asked closing project"));
    m->action("close_folder")->trigger();
    QCOMPARE(m_editor->file_.owner, nullptr);
}

void TestEditors::isAskedBeforeItsFileGoes()
{
    m_editor->mayGo = false;
    m->action("close_project")->trigger();
    QCOMPARE(window()->session()->projects().size(), 1);
    QVERIFY(!window()->close());
    QCOMPARE(m_editor->log, (QStringList{QStringLiteral("asked"), QStringLiteral("asked")}));
    m_editor->mayGo = true;
    QVERIFY(window()->close());
}

QTEST_MAIN(TestEditors)
#include "tst_editors.moc"
