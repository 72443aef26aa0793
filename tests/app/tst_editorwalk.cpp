#include "stagefixture.h"

#include "app/actions/actionregistry.h"
#include "support/editorwalk.h"
#include "support/gltest.h"

#include <QRegularExpression>

namespace {

constexpr quint32 Seed = 20261122;
constexpr int Acts = 300;   // ZORV_TEST_RUNS=20000 looks for rarer faults
constexpr int Discard = 1;  // in the question about what is unsaved

const RandomText Text({"animation 1 \"A\"",
                       "animation 2",
                       "frame 0,0 delay 2",
                       "frame 0,1 flip h",
                       "frame 0,0 offset 3,-4 delay 3 loop",
                       "frame 9,9",
                       "frame 0,0 scale 2,-1.5",
                       "frame 0,1 angle 90 delay -1",
                       "body 0,0, 9,9",
                       "body -30,-40, -10,-20",
                       "body 20,-40, 39,-9",
                       "attack -60,-30, -41,-21",
                       "attack 10,-20, 60,-5",
                       "attack 9,9, 0,0",
                       "body 1,2",
                       "",
                       "# note",
                       "frame 0,0 delay 0",
                       "frame 0,0 offset 32767,-32768",
                       "body -32768,-32768, 32767,32767"},
                      QStringLiteral("0123456789-, fx\n"));

/// The window, with the editor of the family.
class WindowHost : public EditorWalk::Host
{
public:
    Zorv::AnimationEditor* editor() override { return m.editor(); }
    Zorv::CodeEditor* edit() override { return m.fixture.edit(); }
    QAction* action(const QString& name) override { return m.window()->registry()->action(name); }
    QWidget* control(const QString& name) override { return m.window()->findChild<QWidget*>(name); }
    QStringList actions() override
    {
        return m.window()->registry()->names().filter(QRegularExpression("^(anim|view|stage)_"));
    }
    void undo() override { m.trigger("undo"); }
    void redo() override { m.trigger("redo"); }
    void bringForward() override
    {
        if (!action("view_stage")->isChecked()) {
            m.trigger("view_stage");
        }
        QVERIFY(m.window()->openFile(m.game.animations()));
    }
    bool followsAtOnce() const override { return false; }
    void closeAndOpen() override;
    void changeOther(QRandomGenerator& random) override;
    Zorv::CodeDocument* parsed(const QString& text) override
    {
        auto* document = new Family::FamilyDocument(Family::FileKind::Animations);
        document->setPlainText(text);
        return document;
    }
    QVector<QVariant> pose(const Zorv::FrameCode* frame, const Zorv::Sprite*) override
    {
        StillFrame still;
        still.show(static_cast<const Family::FrameNode*>(frame), sprites());
        QVector<QVariant> values;
        for (unsigned key = 0; key < 8; ++key) {
            values.append(still.property(0, key));
        }
        return values;
    }
    Zorv::Sprite* sprite(const Zorv::FrameCode* frame) override
    {
        return sprites()->byId({quint16(frame->spriteGroup()), quint16(frame->spriteNumber())});
    }
    void setUp(Zorv::GraphicsRenderer* other, const Zorv::FrameCode* frame) override
    {
        other->setItemPositionMode(Zorv::GraphicsRenderer::MainCross, 1, 0, 0);
        if (frame) {
            other->setItemPosition(Zorv::GraphicsRenderer::SecondaryCross, frame->offset(), 0);
        }
    }

private:
    Family::SpriteCollection* sprites() { return m.window()->spritePanel()->sprites(); }

    StageFixture m;
};

void WindowHost::closeAndOpen()
{
    QVERIFY(m.window()->openFile(m.game.animations()));
    static_cast<PlannedDialogs*>(Zorv::Dialogs::instance())->choiceAnswers = {Discard};
    m.trigger("close_text");
    QVERIFY(m.window()->openFile(m.game.animations()));
}

/// Sprites, settings, size and zoom.
void WindowHost::changeOther(QRandomGenerator& random)
{
    const char* const keys[] = {"zoom_mode", "zoom_center", "background_type", "onion_effect"};
    const Family::AssetId id{0, quint16(random.bounded(2))};
    QImage image(1 + random.bounded(40), 1 + random.bounded(40), QImage::Format_Indexed8);
    image.setColorTable({0, 0xffff0000, 0xff00ff00});
    image.fill(uint(random.bounded(3)));
    switch (random.bounded(7)) {
    case 0:
        sprites()->insertSprite(-1, id, {random.bounded(60), random.bounded(60)}, image);
        break;
    case 1:
        if (sprites()->count() > 0) {
            sprites()->removeSprites({random.bounded(int(sprites()->count()))});
        }
        break;
    case 2:
        sprites()->undo();
        break;
    case 3:
        sprites()->redo();
        break;
    case 4:
        m.fixture.host.setOption(QLatin1String(keys[random.bounded(4)]), random.bounded(4) - 1);
        m.window()->reconfig();
        break;
    case 5:
        m.window()->resize(900 + random.bounded(300), 700 + random.bounded(300));
        break;
    default:
        m.trigger(random.bounded(2) ? "zoom_in" : "zoom_out");
    }
}

}  // namespace

/// Whatever is done in the window, its editor of animations shows what the text says.
class TestEditorWalk : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatTheTextSays();
};

void TestEditorWalk::showsWhatTheTextSays()
{
    WindowHost host;
    EditorWalk(Seed, &host, Text).walk(qMax(Acts, qEnvironmentVariableIntValue("ZORV_TEST_RUNS")));
}

ZORV_GL_TEST_MAIN(TestEditorWalk)
#include "tst_editorwalk.moc"
