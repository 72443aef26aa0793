#include "support/editorwalk.h"
#include "support/gltest.h"
#include "support/reelstudio.h"

#include <QAction>
#include <QRegularExpression>

using namespace Zorv;

namespace {

constexpr quint32 Seed = 20261122;
constexpr int Acts = 400;  // ZORV_TEST_RUNS=20000 looks for rarer faults

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

private:
    ReelStudio m{QStringLiteral("<walk>\nb -10 -20 20 30\n+ 0 0 0 0 4 0\na 5 5 9 9\n+ 0 1 3 4 4 1\n"
                                "<jab>\n+ 0 0 1 1 3 0 *\nb 1 2 3 4\n+ 0 1 0 0 -1 0\n")};
};

}  // namespace

/// Whatever is done with the editor, it shows what the text says.
class TestAnimationEditorWalk : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatTheTextSays();
};

void TestAnimationEditorWalk::showsWhatTheTextSays()
{
    ReelHost host;
    EditorWalk(Seed, &host, Text).walk(qMax(Acts, qEnvironmentVariableIntValue("ZORV_TEST_RUNS")));
}

ZORV_GL_TEST_MAIN(TestAnimationEditorWalk)
#include "tst_animationeditorwalk.moc"
