#include "animation/timeline/timelinewidget.h"
#include "graphics/renderwidget.h"
#include "support/editorwalk.h"
#include "support/gltest.h"
#include "support/reelstudio.h"
#include "support/testtable.h"

#include <QAction>
#include <QRegularExpression>
#include <QTextBlock>

using namespace Zorv;

namespace {

constexpr quint32 Seed = 20261122;
constexpr int WalkedActs = 400;  // ZORV_TEST_RUNS=20000 looks for rarer faults

const RandomText Text(ReelGrammar::lines(), QStringLiteral("0123456789- ab*<>+\n"));

class ReelHost : public EditorWalk::Host
{
public:
    AnimationEditor* editor() override { return m.editor.get(); }
    CodeEditor* edit() override { return m.code->editor(); }
    QAction* action(const QString& name) override { return m.host.actions.value(name); }
    QWidget* control(const QString& name) override { return m.host.controls.value(name); }
    QStringList actions() override
    {
        return QStringList(m.host.actions.keys()).filter(QRegularExpression("^(anim|view)_"));
    }
    void undo() override { m.editor->undo(); }
    void redo() override { m.editor->redo(); }
    void closeAndOpen() override
    {
        const QString text = m.document->text();
        m.close();
        m.open(text);
    }
    CodeDocument* parsed(const QString& text) override { return new ReelDocument(text); }
    Sprite* sprite(const FrameCode* frame) override
    {
        return m.document->sprite(frame->spriteGroup(), frame->spriteNumber());
    }

    ReelStudio m{QStringLiteral("<walk>\nb -10 -20 20 30\n+ 0 0 0 0 4 0\na 5 5 9 9\n+ 0 1 3 4 4 1\n"
                                "<jab>\n+ 0 0 1 1 3 0 *\nb 1 2 3 4\n+ 0 1 0 0 -1 0\n")};
};

/// What a person has begun and not ended.
enum Act { Play, DragBox, DragSprite, CodeWindow, Acts };
const char* const actNames[] = {"play", "a box is dragged", "a sprite is dragged", "code window"};

/// What happens to the text meanwhile.
enum Change { EditFrame, DeleteLines, MoveLines, DeleteAll, CloseProject, Changes };
const char* const changeNames[] = {"edited", "deleted", "moved", "all gone", "closed"};

void change(CodeDocument* text, Change change)
{
    QTextCursor cursor(text);
    cursor.beginEditBlock();
    switch (change) {
    case EditFrame:
        cursor.setPosition(text->findBlockByNumber(2).position());
        cursor.insertText(QStringLiteral("+ 0 1 9 9 1 1\n"));
        break;
    case DeleteLines:
    case MoveLines:
        cursor.setPosition(text->findBlockByNumber(5).position(), QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
        if (change == MoveLines) {
            cursor.movePosition(QTextCursor::End);
            cursor.insertText(QStringLiteral("<walk>\nb -10 -20 20 30\n+ 0 0 0 0 4 0\n"));
        }
        break;
    default:
        cursor.select(QTextCursor::Document);
        cursor.removeSelectedText();
    }
    cursor.endEditBlock();
}

QString manyFrames()
{
    return QStringLiteral("<a>\n") + QStringLiteral("b 1 2 3 4\n+ 0 0 0 0 2 0\n").repeated(10000);
}

}  // namespace

/// Whatever is done with the editor, it shows what the text says.
class TestAnimationEditorWalk : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatTheTextSays();
    void allToolsOnBadText_data();
    void allToolsOnBadText();
    void textChangesUnderAnAct_data();
    void textChangesUnderAnAct();
    void textChangesUnderAQuestion_data();
    void textChangesUnderAQuestion();
};

void TestAnimationEditorWalk::showsWhatTheTextSays()
{
    ReelHost host;
    EditorWalk(Seed, &host, Text)
        .walk(qMax(WalkedActs, qEnvironmentVariableIntValue("ZORV_TEST_RUNS")));
}

void TestAnimationEditorWalk::allToolsOnBadText_data()
{
    QTest::addColumn<QString>("text");
    row("nothing", QString());
    row("no animation", QStringLiteral("+ 0 0 0 0 2 0\nb 1 2 3 4\n"));
    row("no frames", QStringLiteral("<a>\nb 1 2 3 4\n<b>"));
    row("no sprites", QStringLiteral("<a>\n+ -1 -1 0 0 2 0\n+ 70000 8 0 0 2 0\n"));
    row("broken sprite", QStringLiteral("<a>\nb 1 2 3 4\n+ 0 2 0 0 2 0\n+ 0 2 0 0 2 0"));
    row("odd times", QStringLiteral("<a>\n+ 0 0 0 0 2000000000 0\n"
                                    "+ 0 0 0 0 2000000000 0\n+ 0 0 0 0 0 0\n"
                                    "+ 0 0 0 0 -7 0\n+ 0 0 0 0 2147483647 0\n"));
    row("no time", QStringLiteral("<a>\n+ 0 0 0 0 0 0\n+ 0 1 0 0 0 0 *\n"));
    row("far away",
        QStringLiteral("<a>\na -2147483648 -2147483648 2147483647 2147483647\n"
                       "b 2147483647 2147483647 2147483647 2147483647\n"
                       "+ 0 0 2147483647 -2147483648 2 3\n+ 0 0 -2147483648 2147483647 2 3\n"));
    row("names twice", QStringLiteral("<a>\n+ 0 0 0 0 2 0\n<a>\n+ 0 1 0 0 2 0\n<a>\n"));
    row("10,000 frames", manyFrames());
}

void TestAnimationEditorWalk::allToolsOnBadText()
{
    QFETCH(QString, text);
    ReelHost host;
    host.m.close();
    host.m.open(text);
    EditorWalk walk(Seed, &host, Text);
    walk.triggerAll();
}

void TestAnimationEditorWalk::textChangesUnderAnAct_data()
{
    columns<int, int>("act", "change");
    for (int act = 0; act < Acts; ++act) {
        for (int change = 0; change < Changes; ++change) {
            QTest::addRow("%s, %s", actNames[act], changeNames[change]) << act << change;
        }
    }
}

void TestAnimationEditorWalk::textChangesUnderAnAct()
{
    const auto [act, change] = fetched<int, int>();
    ReelHost host;
    ReelStudio& m = host.m;
    EditorWalk walk(Seed, &host, Text);
    host.action(QStringLiteral("view_collision_box"))->trigger();
    const QPoint place = m.stage.origin() + (act == DragBox ? QPoint(-5, -10) : QPoint(20, 15));
    QWidget* stage = m.graphics->renderWidget();
    if (act == Play || act == CodeWindow) {
        host.action(act == Play ? QStringLiteral("anim_play") : QStringLiteral("anim_code"))
            ->trigger();
    } else {
        QTest::mousePress(stage, Qt::LeftButton, {}, place);
        m.stage.mouseMoved(place + QPoint(7, 3), {});
    }
    if (change == CloseProject) {
        m.close();
    } else {
        ::change(m.document, Change(change));
    }
    QTest::qWait(act == Play ? 50 : 1);
    m.stage.mouseMoved(place + QPoint(9, 4), {});
    QTest::mouseRelease(stage, Qt::LeftButton, {}, place + QPoint(9, 4));
    if (change == CloseProject) {
        QVERIFY(!m.editor->currentFrame());
        QVERIFY(!m.graphics->timeLine()->isPlaying());
        m.open(QStringLiteral("<walk>\n+ 0 0 0 0 4 0\n"));
    }
    QCOMPARE(walk.fault(), QString());
}

void TestAnimationEditorWalk::textChangesUnderAQuestion_data()
{
    QTest::addColumn<int>("change");
    for (const char* tool : {"anim_delete", "anim_frame_delete", "anim_duplicate", "anim_save_gif",
                             "anim_box_allinst", "anim_optimize"}) {
        for (int change = 0; change < Changes; ++change) {
            QTest::addRow("%s, %s", tool, changeNames[change]) << change;
        }
    }
}

void TestAnimationEditorWalk::textChangesUnderAQuestion()
{
    QFETCH(int, change);
    ReelHost host;
    ReelStudio& m = host.m;
    EditorWalk walk(Seed, &host, Text);
    m.host.setOption(QStringLiteral("confirm_delete"), true);
    m.document->insert(QStringLiteral("\n\n"));
    PlannedDialogs dialogs;
    dialogs.buttonAnswers = {Dialogs::Yes, Dialogs::Yes};
    dialogs.textAnswers << QStringLiteral("jab") << QStringLiteral("other");
    dialogs.fileAnswers = {{m.folder.filePath(QStringLiteral("a.gif"))}};
    const QString tool = QString::fromLatin1(QTest::currentDataTag()).section(QChar(','), 0, 0);
    const bool isNamed = tool == QLatin1String("anim_duplicate");
    bool isDone = false;
    dialogs.whileOpen = [&](const PlannedDialogs::Shown& shown) {
        if (std::exchange(isDone, isDone || !isNamed || shown.kind == QLatin1String("askText")) ||
            !isDone) {
            return;
        }
        if (change == CloseProject) {
            m.close();
        } else {
            ::change(m.document, Change(change));
        }
    };
    host.action(tool)->trigger();
    QVERIFY(isDone);
    dialogs.whileOpen = nullptr;
    if (change == CloseProject) {
        QVERIFY(!m.editor->currentFrame());
        m.open(QStringLiteral("<walk>\n+ 0 0 0 0 4 0\n"));
    }
    QCOMPARE(walk.fault(), QString());
}

ZORV_GL_TEST_MAIN(TestAnimationEditorWalk)
#include "tst_animationeditorwalk.moc"
