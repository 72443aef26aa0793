#include "graphics/stage/graphicsrenderer.h"

#include "support/randomtext.h"
#include "support/testtable.h"

#include "code/codedoc/animationcode.h"
#include "code/codedoc/contactboxescode.h"
#include "code/codedoc/framecode.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/nodes/familyparser.h"

#include <QRandomGenerator>
#include <QtTest>

#include <functional>
#include <memory>

using namespace Zorv;
using Stage = GraphicsRenderer;

namespace {

const unsigned Seed = 1973;
const QPoint Origin(200, 200);

const char* const Text = "animation 1\n"
                         "  body -20,-60, 19,-1 # torso\n"
                         "  attack 30,-50,69,-41\n"
                         "  body -10,-90, 9,-71\n"
                         "  frame 0,0\n"
                         "  body 0,0, 9,9\n"
                         "  frame 0,1";

/// The grammar, with a new node for every line that is parsed: frames die at edits beside them.
class RenewingParser : public CodeParser
{
public:
    CodeNode* parse(const QString& text, CodeNode*, CodeNode* previous, RootCode* root,
                    CodeParserSyntax* syntax) override
    {
        return Family::FamilyParser::instance()->parse(text, nullptr, previous, root, syntax);
    }
};

/// A stage with the boxes of the first frame of a text, and what a host does about them.
class Editor
{
public:
    /// The stage follows each edit within it, not when it is asked to; the nodes are renewed.
    enum Way { AtOnce = 1, Renewing = 2 };

    explicit Editor(int ways) : followsAtOnce(ways & AtOnce), renews(ways & Renewing)
    {
        renderer.setVisibility(false, false, false, true, true, false, false);
        renderer.setOrigin(Origin);
        QObject::connect(
            &renderer, &Stage::appendContactBox, &renderer,
            [this](ContactBoxCode::BoxType type, const QRect& rect) -> ContactBoxCode* {
                ContactBoxesCode* boxes = renderer.boxes(type);
                return boxes ? boxes->add(rect) : nullptr;
            });
        QObject::connect(&renderer, &Stage::itemReleased, &renderer, &Stage::updateSelectedBoxes);
        open();
    }

    void open()
    {
        document = std::make_unique<Family::FamilyDocument>(Family::FileKind::Animations);
        if (renews) {
            document->setParser(&parser);
        }
        document->fromString(QString::fromLatin1(Text));
        if (followsAtOnce) {
            QObject::connect(document.get(), &CodeDocument::codeChanged, &renderer,
                             [this] { follow(); });
        }
        follow();
    }

    FrameCode* frame() const
    {
        const AnimationCode* animation = document->animations()->at(0);
        return animation ? static_cast<FrameCode*>(animation->childAt(0)) : nullptr;
    }

    void follow()
    {
        for (const auto type : {ContactBoxCode::Attack, ContactBoxCode::Collision}) {
            renderer.setContactBoxes(type, frame() ? frame()->contactBoxes(type) : nullptr);
        }
    }

    void press(QPoint pos, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        renderer.mousePressed(Origin + pos, Qt::LeftButton, modifiers);
    }
    void move(QPoint pos) { renderer.mouseMoved(Origin + pos, Qt::NoModifier); }
    void release(Qt::MouseButton button = Qt::LeftButton)
    {
        renderer.mouseReleased({}, button, Qt::NoModifier);
    }
    void drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        press(from, modifiers);
        move((from + to) / 2);
        move(to);
        release();
    }
    void key(int key) { renderer.keyPressed(key, Qt::NoModifier); }

    /// False where the stage shows a box that the text does not have, or the other way round.
    bool agrees(QRandomGenerator& random)
    {
        renderer.setPositioningMode();
        renderer.deselectContactBoxes();
        QVector<QRect> rects;
        for (const auto type : {ContactBoxCode::Attack, ContactBoxCode::Collision}) {
            const ContactBoxesCode* boxes = frame() ? frame()->contactBoxes(type) : nullptr;
            for (int i = 0; boxes && i < boxes->count(); ++i) {
                rects.append(boxes->at(i)->rect());
            }
        }
        for (int i = 0; i < 60; ++i) {
            QPoint pos(random.bounded(-150, 150), random.bounded(-150, 150));
            if (!rects.isEmpty() && i % 2) {
                const QRect& rect = rects.at(random.bounded(rects.size()));
                pos = (i % 4 == 1 ? rect.topLeft() : rect.bottomRight()) +
                      QPoint(random.bounded(-1, 2), random.bounded(-1, 2));
            }
            const bool isBox = std::any_of(rects.begin(), rects.end(),
                                           [pos](const QRect& rect) { return rect.contains(pos); });
            const QPoint at = Origin + pos;
            const bool isRuler = (at.x() >= 0 && at.x() < 30) || (at.y() >= 0 && at.y() < 30);
            if ((renderer.hitTest(at) == Stage::ContactBoxElement) != (isBox && !isRuler)) {
                return false;
            }
        }
        return true;
    }

    const bool followsAtOnce;
    const bool renews;
    RenewingParser parser;
    std::unique_ptr<Family::FamilyDocument> document;
    Stage renderer;
};

using Action = std::function<void(Editor&)>;

}  // namespace

Q_DECLARE_METATYPE(Action)

class TestContactEditing : public QObject
{
    Q_OBJECT

private slots:
    void textFollows_data();
    void textFollows();
    void staysSafeWithoutItsText_data();
    void staysSafeWithoutItsText();
    void textAndStageAgree();
};

void TestContactEditing::textFollows_data()
{
    // `line`: changed or gone
    // `after`: what stands there then
    columns<Action, QString, QString>("action", "line", "after");
    const auto row = [](const char* name, const Action& action, const char* line,
                        const char* after) {
        QTest::newRow(name) << action << QString::fromLatin1(line) << QString::fromLatin1(after);
    };
    const auto selectBodies = [](Editor& editor) {
        editor.drag({0, -30}, {0, -30});
        editor.drag({0, -80}, {0, -80}, Qt::ShiftModifier);
    };
    const auto drag = [](QPoint from, QPoint to) -> Action {
        return [=](Editor& e) { e.drag(from, to); };
    };
    const auto draw = [](QPoint from, QPoint to) -> Action {
        return [=](Editor& e) {
            e.renderer.setDrawContactBoxMode(ContactBoxCode::Attack);
            e.drag(from, to);
        };
    };
    row("dragged", drag({0, -30}, {10, -25}), "body -20,-60, 19,-1 #", "body -10,-55, 29,4 #");
    row("dragged back", drag({0, -30}, {0, -30}), "", "");
    row(
        "a group by keys",
        [=](Editor& e) {
            selectBodies(e);
            e.key(Qt::Key_Left);
        },
        "body -20,-60, 19,-1 # torso\n  attack 30,-50,69,-41\n  body -10,-90, 9,-71",
        "body -21,-60, 18,-1 # torso\n  attack 30,-50,69,-41\n  body -11,-90, 8,-71");
    row(
        "stretched, the attack as well",
        [=](Editor& e) {
            selectBodies(e);
            e.drag({40, -45}, {40, -45}, Qt::ShiftModifier);
            e.drag({69, -1}, {69, 89});
        },
        "-60, 19,-1 # torso\n  attack 30,-50,69,-41\n  body -10,-90, 9,-71",
        "-30, 19,89 # torso\n  attack 30,-10,69,9\n  body -10,-90, 9,-51");
    row("drawn", draw({60, 20}, {50, 30}), "9,-71\n", "9,-71\n  attack 50,20, 60,30\n");
    row("drawn too far", draw({60, 20}, {500000, 30}), "", "");
    row("dragged too far", drag({0, -30}, {500000, -25}), "", "");
    row(
        "deleted, in both lists",
        [=](Editor& e) {
            selectBodies(e);
            e.drag({40, -45}, {40, -45}, Qt::ShiftModifier);
            e.key(Qt::Key_Delete);
        },
        "  body -20,-60, 19,-1 # torso\n  attack 30,-50,69,-41\n  body -10,-90, 9,-71\n", "");
    row(
        "drawn, then dragged by its handle: the last step of two",
        [](Editor& e) {
            e.renderer.setDrawContactBoxMode(ContactBoxCode::Collision);
            e.drag({60, 20}, {80, 40});
            e.renderer.setPositioningMode();
            e.document->clearUndoRedoStacks();
            e.follow();
            e.drag({60, 30}, {55, 30});
        },
        "9,-71\n", "9,-71\n  body 55,20, 80,40\n");
}

void TestContactEditing::textFollows()
{
    const auto [action, line, after] = fetched<Action, QString, QString>();
    QRandomGenerator random(Seed);
    for (int ways = 0; ways < 4; ++ways) {
        Editor editor(ways);
        const QString before = editor.document->text();
        QString expected = before;
        if (!line.isEmpty()) {
            QCOMPARE(before.count(line), 1);
            expected.replace(line, after);
        }
        action(editor);
        QCOMPARE(editor.document->text(), expected);
        editor.follow();
        QVERIFY(editor.agrees(random));
        if (editor.document->isUndoAvailable()) {
            editor.document->undo();
            editor.follow();
            QVERIFY(!editor.document->isUndoAvailable());
            QVERIFY(editor.agrees(random));
        }
        if (!QByteArray(QTest::currentDataTag()).contains("two")) {
            QCOMPARE(editor.document->text(), before);
        }
    }
}

void TestContactEditing::staysSafeWithoutItsText_data()
{
    QTest::addColumn<Action>("loss");
    QTest::newRow("document closed") << Action([](Editor& e) { e.document.reset(); });
    QTest::newRow("frame gone") << Action([](Editor& e) { e.document->setPlainText({}); });
    QTest::newRow("frame read anew") << Action([](Editor& e) { e.document->reparse(); });
}

// The stage is not told, and asked for everything that concerns the boxes.
void TestContactEditing::staysSafeWithoutItsText()
{
    QFETCH(Action, loss);
    Editor editor(0);
    for (const bool resizes : {false, true}) {
        editor.open();
        editor.drag({0, -30}, {0, -30});
        editor.press(resizes ? QPoint(19, -1) : QPoint(0, -30));
        editor.move({15, -20});
        loss(editor);
        const QString text = editor.document ? editor.document->text() : QString();
        editor.move({30, -10});
        editor.release();
        QVERIFY(editor.renderer.selectedContactBoxes().isEmpty());
        QVERIFY(!editor.renderer.boxes(ContactBoxCode::Collision));
        editor.key(Qt::Key_Up);
        editor.key(Qt::Key_Delete);
        editor.renderer.setDrawContactBoxMode(ContactBoxCode::Collision);
        editor.drag({60, 20}, {80, 40});
        editor.renderer.setPositioningMode();
        QCOMPARE(editor.document ? editor.document->text() : QString(), text);
    }
}

void TestContactEditing::textAndStageAgree()
{
    QRandomGenerator random(Seed);
    const RandomText edits({QStringLiteral("  body 0,0, 20,20"), QStringLiteral("body 9,9,-9,-9"),
                            QStringLiteral("  attack -30,-30, -5,-5 # x"), QString(),
                            QStringLiteral("  frame 1,2 delay 3"), QStringLiteral("animation 2"),
                            QStringLiteral("# body 1,1, 9,9"), QStringLiteral("[info]")},
                           QStringLiteral("0-9, a"));
    const Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier,
                                               Qt::ControlModifier};
    const Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::LeftButton, Qt::LeftButton,
                                       Qt::RightButton, Qt::MiddleButton};
    const int keys[] = {Qt::Key_Delete, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down};
    for (int round = 0; round < 40; ++round) {
        Editor editor(round % 4);
        Stage& renderer = editor.renderer;
        for (int step = 1; step <= 300; ++step) {
            const QPoint pos(random.bounded(-100, 100), random.bounded(-100, 100));
            switch (random.bounded(18)) {
            case 0:
                renderer.setDrawContactBoxMode(ContactBoxCode::BoxType(random.bounded(1, 4)));
                break;
            case 1:
                random.bounded(3) ? renderer.setPositioningMode() : renderer.setCaptureMode();
                break;
            case 2:
                editor.key(keys[random.bounded(5)]);
                break;
            case 3:
                edits.edit(random, *editor.document);
                break;
            case 4:
                random.bounded(9) ? editor.follow() : editor.open();
                break;
            case 5:
                random.bounded(2) ? editor.document->undo() : editor.document->redo();
                break;
            case 6:
                renderer.setZoomLevel(uchar(random.bounded(12)));
                break;
            case 7:
            case 8:
            case 9:
                editor.press(pos, modifiers[random.bounded(4)]);
                break;
            case 10:
            case 11:
            case 12:
                editor.release(buttons[random.bounded(5)]);
                break;
            default:
                editor.move(pos);
                break;
            }
            if (step % 30 == 0) {
                editor.release();
                renderer.setZoomLevel(3);
                renderer.setOrigin(Origin);
                editor.follow();
                QVERIFY2(
                    editor.agrees(random),
                    qPrintable(QStringLiteral("seed %1, %2, %3").arg(Seed).arg(round).arg(step)));
            }
        }
    }
}

QTEST_MAIN(TestContactEditing)
#include "tst_contactediting.moc"
