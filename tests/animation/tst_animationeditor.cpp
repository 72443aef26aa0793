#include "animation/animationeditor.h"

#include "support/posetest.h"
#include "support/stagedata.h"
#include "support/testproject.h"
#include "support/testtable.h"

#include "animation/frameticks.h"
#include "animation/timeline/timelinewidget.h"
#include "editors/code/codeeditor.h"
#include "graphics/stage/graphicsrenderer_p.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QRandomGenerator>
#include <QSlider>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QtTest>

#include <vector>

using namespace Zorv;

namespace {

const char* const someText = "@one\n"
                             "> 0,0 1,2 4 0 1,1 0 a0,0,3,3\n"
                             "# here it hits\n"
                             "> 0,1 3,4 5 1 1.5,0.123456 30 L a1,1,5,5 c0,0,9,9\n"
                             "> 0,2 0,0 6 2 1,1 0\n"
                             "@two\n"
                             "@three\n"
                             "> 0,1 0,0 0 0 1,1 0\n"
                             "> 0,2 0,0 -1 0 1,1 0\n";

}  // namespace

class TestAnimationEditor : public PoseTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { drop(); }
    void toolsAreOfUse();
    void fieldsWriteWhatIsTyped_data();
    void fieldsWriteWhatIsTyped();
    void lookingEditsNothing();
    void typedDigitsAreNotLost();
    void stageLeadsTheText();
    void unlinked();
    void playsAsAModel_data();
    void playsAsAModel();
    void textIsEditedDuringPlay();
    void playEndsWithTheKeyboardInTheText();
    void scrubbing();
    void neighboursShowThrough();
    void skinsFollowTheText();
    void commands();
    void framesComeAndGo();
    void documentDies();
    void projectBringsItsAnimations();
    void editorDies();

private:
    QString label(const char* name) const { return widget<QLabel>(name)->text(); }
    /// What has been done since the beginning is undone by one step.
    bool isOneStep()
    {
        document->undo();
        return document->text() == QLatin1String(someText) && !document->isUndoAvailable();
    }
    int line() const { return text->textCursor().blockNumber(); }
    void putCursor(int lineNumber)
    {
        text->setTextCursor(QTextCursor(document->findBlockByNumber(lineNumber)));
    }

    std::vector<StageData::Sprite> sprites;
    CodeEditor* text = nullptr;
};

void TestAnimationEditor::init()
{
    make();
    sprites.clear();
    for (int i = 0; i < 3; ++i) {
        QImage image(20 + i, 30, QImage::Format_ARGB32);
        image.fill(Qt::red);
        sprites.emplace_back(image);
    }
    text = code->editor();
    for (QWidget* each : {code->widget(), stage->widget(), host->controlsWindow()}) {
        each->resize(500, 400);
        each->show();
        QVERIFY(QTest::qWaitForWindowExposed(each));
    }
    document = std::make_unique<PoseDocument>(QLatin1String(someText));
    for (int i = 0; i < 3; ++i) {
        document->sprites.insert(i, &sprites[size_t(i)]);
    }
    document->clearUndoRedoStacks();
    editor->setDocument(document.get());
    editor->activate();
}

void TestAnimationEditor::toolsAreOfUse()
{
    const QStringList ofFrames{
        "anim_frame_delete", "anim_frameall_offset", "anim_frameall_time",   "anim_frameall_flip",
        "anim_frame_align",  "anim_frameall_scale",  "anim_box_delall_anim", "anim_box_allinst",
        "anim_box_delall",   "anim_box_prev",        "anim_frame_xaxis",     "anim_frame_yaxis",
        "anim_frame_flip",   "anim_frame_time",      "anim_pos_left",        "anim_pos_up",
        "anim_pos_right",    "anim_pos_down",        "anim_prev_frame",      "anim_next_frame"};
    const QStringList ofAnimations{"anim_code",      "anim_delete",    "anim_duplicate",
                                   "anim_save_gif",  "anim_play",      "anim_stop",
                                   "anim_frame_add", "anim_prev_anim", "anim_next_anim"};
    const QStringList ofRest{"anim_box_add_attack", "anim_box_add_collision", "anim_box_del",
                             "anim_box_type", "anim_onion_skin"};
    const QStringList ofPoses{"anim_frame_xscale", "anim_frame_yscale", "anim_frame_angle"};
    const QStringList ofAll{"anim_editcode",     "anim_add",       "anim_optimize",
                            "anim_sel",          "anim_sel_lb",    "anim_frame_sel",
                            "anim_frame_sel_lb", "anim_onion_sel", "anim_onion_framesel",
                            "anim_onion_lb"};
    const auto fault = [&](const QStringList& isOn) {
        for (const QString& name : ofAll + ofAnimations + ofFrames + ofRest + ofPoses) {
            const QAction* tool = host->actions.value(name);
            const bool isEnabled =
                tool ? tool->isEnabled() : host->controls.value(name)->isEnabled();
            if (isEnabled != isOn.contains(name)) {
                return name;
            }
        }
        return QString();
    };
    QCOMPARE(fault(ofAll + ofAnimations + ofFrames + ofRest + ofPoses), QString());
    editor->selectAnimation(1);
    QCOMPARE(fault(ofAll + ofAnimations), QString());
    editor->selectAnimation(0);
    editor->hideExtra();
    QCOMPARE(fault(ofAll + ofAnimations + ofFrames + ofRest), QString());
    editor->play();
    QCOMPARE(fault(ofAll + ofAnimations), QString());
    document->fromString(QString());
    QTRY_COMPARE(fault(ofAll), QString());
}

void TestAnimationEditor::fieldsWriteWhatIsTyped_data()
{
    columns<QString, QString, QString>("field", "typed", "line");
    const auto row = [](const char* field, const char* typed, const char* line) {
        QTest::newRow(field) << QString::fromLatin1(field) << QString::fromLatin1(typed)
                             << QString::fromLatin1(line);
    };
    row("anim_frame_xaxis", "120", "> 0,1 120,4 5 1 1.5,0.123456 30 L a1,1,5,5 c0,0,9,9");
    row("anim_frame_yaxis", "-7", "> 0,1 3,-7 5 1 1.5,0.123456 30 L a1,1,5,5 c0,0,9,9");
    row("anim_frame_time", "-1", "> 0,1 3,4 -1 1 1.5,0.123456 30 L a1,1,5,5 c0,0,9,9");
    row("anim_frame_xscale", "0.25", "> 0,1 3,4 5 1 0.25,0.123456 30 L a1,1,5,5 c0,0,9,9");
    row("anim_frame_yscale", "2", "> 0,1 3,4 5 1 1.5,2 30 L a1,1,5,5 c0,0,9,9");
    row("anim_frame_angle", "45.5", "> 0,1 3,4 5 1 1.5,0.123456 45.5 L a1,1,5,5 c0,0,9,9");
}

/// Digits by real keys, entered by Return: one step.
void TestAnimationEditor::fieldsWriteWhatIsTyped()
{
    const auto [field, typed, line] = fetched<QString, QString, QString>();
    editor->selectFrame(1);
    QWidget* const box = host->controls.value(field);
    QVERIFY(box->isEnabled());
    box->setFocus();
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(box, typed);
    QVERIFY(!document->isUndoAvailable());
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(document->findBlockByNumber(3).text(), line);
    QCOMPARE(editor->frameIndex(), 1);
    QVERIFY(isOneStep());
}

void TestAnimationEditor::lookingEditsNothing()
{
    document->fromString(QStringLiteral("@one\n> 0,0 9999,-9999 3000 3 77777,0.1234567 -9 \n"));
    QTRY_COMPARE(editor->frameIndex(), 0);
    for (int i = 0; i < 3; ++i) {
        editor->selectFrame(0);
        editor->reconfig();
        editor->retranslate();
    }
    QCOMPARE(widget<QSpinBox>("anim_frame_xaxis")->value(), 500);
    QVERIFY(!document->isUndoAvailable());
    // A value that the grammar does not take goes from the field again.
    editor->selectFrame(0);
    widget<QSpinBox>("anim_frame_time")->setValue(1500);
    QCOMPARE(widget<QSpinBox>("anim_frame_time")->value(), 2000);
    QVERIFY(!document->isUndoAvailable());
}

void TestAnimationEditor::typedDigitsAreNotLost()
{
    editor->selectFrame(0);
    auto* const box = widget<QSpinBox>("anim_frame_xaxis");
    QApplication::setActiveWindow(box->window());
    box->setFocus();
    QTRY_VERIFY(box->hasFocus());
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(box, QStringLiteral("44"));
    action("anim_next_frame")->trigger();
    QCOMPARE(static_cast<PoseFrame*>(editor->currentAnimation()->frame(0))->data.offset,
             QPoint(44, 2));
    QCOMPARE(box->value(), 3);
}

void TestAnimationEditor::stageLeadsTheText()
{
    widget<QSlider>("anim_frame_sel")->setValue(2);
    QCOMPARE(line(), 4);
    widget<QSlider>("anim_sel")->setValue(1);
    QCOMPARE(line(), 5);
    widget<QSlider>("anim_sel")->setValue(0);
    QCOMPARE(line(), 4);
    putCursor(2);
    QTextCursor cursor = text->textCursor();
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    text->setTextCursor(cursor);
    widget<QSpinBox>("anim_frame_xaxis")->setValue(77);
    QCOMPARE(editor->frameIndex(), 1);
    QCOMPARE(text->textCursor().selectedText(), QStringLiteral("# here it hits"));
}

void TestAnimationEditor::unlinked()
{
    QVERIFY(action("anim_editcode")->isChecked());
    action("anim_editcode")->trigger();
    putCursor(4);
    QCOMPARE(editor->frameIndex(), 0);
    action("anim_next_frame")->trigger();
    QCOMPARE(line(), 4);
    QTextCursor(document->findBlockByNumber(1)).insertText(QStringLiteral("# a\n"));
    QTRY_COMPARE(editor->frameIndex(), 1);
    action("anim_editcode")->trigger();
    QCOMPARE(line(), 4);
}

void TestAnimationEditor::playsAsAModel_data()
{
    columns<QVector<int>, int>("times", "loop");
    QTest::newRow("plain") << QVector<int>{2, 3, 1} << -1;
    QTest::newRow("loop point") << QVector<int>{2, 3, 1, 4} << 2;
    QTest::newRow("frames of no time") << QVector<int>{0, 3, 0, 0, 2, 0} << -1;
    QTest::newRow("loop at a frame of no time") << QVector<int>{1, 0, 2} << 1;
    QTest::newRow("endless") << QVector<int>{2, 3, -1, 4} << -1;
    QTest::newRow("endless at first") << QVector<int>{-1, 3} << -1;
    QTest::newRow("loop of no time") << QVector<int>{2, 3, 0} << 2;
    QTest::newRow("no time at all") << QVector<int>{0, 0} << -1;
    QTest::newRow("nothing") << QVector<int>{} << -1;
}

/// Frame by frame and tick by tick; a frame that never ends stops it, and so does a loop that
/// takes no time.
void TestAnimationEditor::playsAsAModel()
{
    const auto [times, loop] = fetched<QVector<int>, int>();
    QString lines = QStringLiteral("@one\n");
    for (int i = 0; i < times.size(); ++i) {
        lines += QStringLiteral("> 0,0 0,0 %1 0 1,1 0%2\n")
                     .arg(QString::number(times[i]), i == loop ? QStringLiteral(" L") : QString());
    }
    document->fromString(lines);
    QTRY_COMPARE(label("anim_frame_sel_lb").section(QLatin1Char(' '), 2, 2),
                 QString::number(times.size()));

    QVector<int> expected;
    QVector<int> ticks;  // since the frame began
    int frame = times.isEmpty() ? -1 : 0;
    int loopTicks = 0;
    for (int i = qMax(loop, 0); i < times.size(); ++i) {
        loopTicks += times[i];
    }
    bool ends = false;
    while (frame >= 0 && !ends && expected.size() < 50) {
        ends = times[frame] < 0;
        for (int tick = 0; tick < (ends ? 1 : times[frame]); ++tick) {
            expected.append(frame);
            ticks.append(tick);
        }
        if (!ends && ++frame == times.size()) {
            frame = qMax(loop, 0);
            ends = loopTicks == 0;
        }
    }

    QVector<int> shown;
    TimeLineWidget* const clock = stage->timeLine();
    action("anim_play")->trigger();
    while (clock->isPlaying() && shown.size() < expected.size() + 1) {
        shown.append(editor->frameIndex());
        QVERIFY(action("anim_play")->isChecked() && !action("anim_stop")->isChecked());
        QVERIFY(!widget<QSpinBox>("anim_frame_time")->isEnabled());
        editor->interpolated.clear();
        clock->setCurrentTick(clock->currentTick() + 1);
        if (clock->isPlaying() && shown.size() < ticks.size()) {
            QCOMPARE(editor->interpolated, QVector<int>{ticks.at(shown.size())});
        }
    }
    if (ends && !expected.isEmpty() && times[expected.last()] < 0) {
        shown.append(editor->frameIndex());
    }
    const int count = qMin(shown.size(), expected.size());
    QCOMPARE(shown.mid(0, count), expected.mid(0, count));
    QCOMPARE(clock->isPlaying(), !ends && !times.isEmpty());
    if (clock->isPlaying()) {
        action("anim_stop")->trigger();
    } else {
        QCOMPARE(shown.size(), expected.size());
    }
    QVERIFY(!action("anim_play")->isChecked() && action("anim_stop")->isChecked());
    QCOMPARE(widget<QSpinBox>("anim_frame_time")->isEnabled(), !times.isEmpty());
    QVERIFY(!document->isUndoAvailable());
}

// At the frame that it ended with; who has written meanwhile stays where they write.
void TestAnimationEditor::playEndsWithTheKeyboardInTheText()
{
    editor->selectFrame(2);
    widget<QSpinBox>("anim_frame_time")->setValue(-1);
    code->widget()->activateWindow();
    text->setFocus();
    QTRY_VERIFY(text->hasFocus());
    for (const bool isWritten : {false, true}) {
        putCursor(1);
        QCOMPARE(editor->frameIndex(), 0);
        action("anim_play")->trigger();
        if (isWritten) {
            QTest::keyClick(text, Qt::Key_End);
            QTest::keyClick(text, Qt::Key_Space);
        }
        stage->timeLine()->setCurrentTick(9);
        QVERIFY(!editor->isPlaying());
        QCOMPARE(editor->frameIndex(), isWritten ? 0 : 2);
        QCOMPARE(line(), isWritten ? 1 : 4);
    }
}

void TestAnimationEditor::textIsEditedDuringPlay()
{
    TimeLineWidget* const clock = stage->timeLine();
    action("anim_play")->trigger();
    clock->setCurrentTick(5);
    QCOMPARE(editor->frameIndex(), 1);
    QCOMPARE(line(), 0);
    // From another frame on, too.
    widget<QSlider>("anim_frame_sel")->setValue(2);
    QCOMPARE(clock->currentTick(), 9U);
    QCOMPARE(editor->frameIndex(), 2);
    clock->setCurrentTick(5);
    // The cursor goes on its own ways, and play goes on.
    putCursor(8);
    QCOMPARE(editor->animationIndex(), 0);
    QVERIFY(clock->isPlaying());
    QTextCursor removed(document->findBlockByNumber(3));
    removed.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
    removed.removeSelectedText();
    clock->setCurrentTick(6);
    QCOMPARE(editor->frameCount(), 2);
    QCOMPARE(editor->frameIndex(), 1);
    QVERIFY(clock->isPlaying());
    action("anim_stop")->trigger();
    QCOMPARE(editor->stops, 1);
    QCOMPARE(editor->animationIndex(), 2);
    QCOMPARE(editor->frameIndex(), 1);
    QCOMPARE(line(), 7);
    // The whole animation goes.
    putCursor(1);
    action("anim_play")->trigger();
    clock->setCurrentTick(1);
    document->fromString(QStringLiteral("# nothing\n"));
    clock->setCurrentTick(2);
    QTRY_VERIFY(!clock->isPlaying());
    QCOMPARE(label("anim_sel_lb"), QStringLiteral("0 / 0"));
}

void TestAnimationEditor::scrubbing()
{
    TimeLineWidget* const clock = stage->timeLine();
    const FrameTicks ticks(editor->currentAnimation());
    for (int tick = 20; tick >= 0; --tick) {
        clock->setCurrentTick(unsigned(tick));
        QCOMPARE(editor->frameIndex(), ticks.frameAt(unsigned(tick)));
        QCOMPARE(clock->currentTick(), unsigned(tick));
    }
    QCOMPARE(line(), 0);
    QVERIFY(editor->interpolated.contains(3));
    // The tick stays within its frame.
    clock->setCurrentTick(6);
    widget<QSpinBox>("anim_frame_xaxis")->setValue(1);
    QCOMPARE(clock->currentTick(), 6U);
}

// Against the frames in the order in which they are played, pass after pass.
void TestAnimationEditor::neighboursShowThrough()
{
    QRandomGenerator random(31);
    editor->isPosed = true;
    host->options["onion_opacity"] = 0.5;
    widget<QCheckBox>("anim_onion_skin")->click();
    for (int round = 0; round < 120; ++round) {
        if (round == 60) {
            editor->hangOnCross();
        }
        const int count = 1 + random.bounded(6);
        const int loop = random.bounded(count);
        const bool isEndless = random.bounded(4) == 0;
        QString written = QStringLiteral("@a\n");
        for (int i = 0; i < count; ++i) {
            const int delay = isEndless && i == count - 1 ? -1 : 1 + i;
            written += QStringLiteral("> 0,1 %1,0 %2 3 2,1 30%3\n")
                           .arg(QString::number(i), QString::number(delay), i == loop ? " L" : "");
        }
        QVector<int> played;
        for (int pass = 0; pass < (isEndless ? 1 : 30); ++pass) {
            for (int i = pass == 0 ? 0 : loop; i < count; ++i) {
                played.append(i);
            }
        }
        QTextCursor all(document.get());
        all.select(QTextCursor::Document);
        all.insertText(written);
        QCoreApplication::processEvents();
        const int shown = random.bounded(count);
        const int before = random.bounded(4);
        const int after = random.bounded(4);
        editor->selectFrame(shown);
        widget<QSpinBox>("anim_onion_before")->setValue(before);
        widget<QSpinBox>("anim_onion_after")->setValue(after);
        // Late enough to have gone round in both directions, unless it is never played again.
        int at = played.indexOf(shown);
        for (int i = at; i < played.size() - 5; ++i) {
            at = played[i] == shown ? i : at;
        }
        QVector<QPair<int, bool>> expected;
        QVector<int> known{shown};
        for (int step = 1; step <= 3; ++step) {
            for (const bool isBefore : {true, false}) {
                const int frame = played.value(isBefore ? at - step : at + step, -1);
                if (step <= (isBefore ? before : after) && frame >= 0 && !known.contains(frame)) {
                    known.append(frame);
                    expected.prepend({frame, isBefore});
                }
            }
        }
        QVector<QPair<int, bool>> skins;
        for (const OnionSkin& skin : renderer->onionSkins()) {
            skins.append({skin.position.x(), skin.color.red() > skin.color.blue()});
            QCOMPARE(skin.axis, round < 60 ? QPoint() : skin.position);
            QCOMPARE(skin.scale, QPointF(2, 1));
            QCOMPARE(int(skin.flip), 3);
            QCOMPARE(skin.rotation, -30.0F);
            QCOMPARE(skin.sprite, &sprites[1]);
            QVERIFY(skin.opacity > 0 && skin.opacity <= 1);
        }
        QCOMPARE(skins, expected);
        QCOMPARE(host->options.value("onion_before").toInt(), before);
        QCOMPARE(host->options.value("onion_after").toInt(), after);
    }
}

// Edits, sprites that go, and the skin of a chosen frame, which they take the place of.
void TestAnimationEditor::skinsFollowTheText()
{
    const auto chosen = [this] { return GraphicsRendererPrivate::of(*renderer).onionSprite; };
    host->options = {{"onion_before", 9}, {"onion_after", -4}};
    editor->reconfig();
    QCOMPARE(widget<QSpinBox>("anim_onion_before")->value(), 3);
    QCOMPARE(widget<QSpinBox>("anim_onion_before")->maximum(), 3);
    QCOMPARE(widget<QSpinBox>("anim_onion_after")->value(), 0);
    QVERIFY(renderer->onionSkins().isEmpty());
    widget<QCheckBox>("anim_onion_skin")->click();
    QCOMPARE(renderer->onionSkins().size(), 0);  // the loop begins at the second frame
    action("anim_next_frame")->trigger();
    action("anim_next_frame")->trigger();
    QCOMPARE(renderer->onionSkins().size(), 1);
    QCOMPARE(renderer->onionSkins()[0].position, QPoint(3, 4));
    QVERIFY(!chosen());
    QTextCursor line(document->findBlockByNumber(3));
    line.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    line.insertText(QStringLiteral("> 0,1 8,9 5 1 1,1 0 L"));
    QCoreApplication::processEvents();
    QCOMPARE(renderer->onionSkins()[0].position, QPoint(8, 9));
    widget<QSpinBox>("anim_onion_before")->setValue(0);
    QVERIFY(renderer->onionSkins().isEmpty());
    QCOMPARE(chosen(), &sprites[0]);
    widget<QSpinBox>("anim_onion_after")->setValue(1);
    QCOMPARE(renderer->onionSkins().size(), 1);
    editor->deactivate();
    QVERIFY(renderer->onionSkins().isEmpty());
}

void TestAnimationEditor::commands()
{
    const QString before = document->text();
    editor->newIdentifier = QStringLiteral("new");
    editor->newPosition = 1;
    action("anim_add")->trigger();
    QCOMPARE(editor->animationIndex(), 1);
    QCOMPARE(label("anim_sel_lb"), QStringLiteral("2 / 4"));
    QCOMPARE(document->undoTitle(), QStringLiteral("Insert animation"));
    QCOMPARE(line(), 6);
    editor->newText = QStringLiteral("@mine\n> 0,0 0,0 1 0 1,1 0");
    editor->newPosition = 99;
    action("anim_add")->trigger();
    QCOMPARE(editor->animationIndex(), 4);
    QCOMPARE(document->text().section(QLatin1Char('\n'), -3), editor->newText + QLatin1Char('\n'));

    dialogs->buttonAnswers = {Dialogs::Yes};
    dialogs->textAnswers =
        QStringList{QStringLiteral("one"), QStringLiteral(" "), QStringLiteral("copy")};
    action("anim_duplicate")->trigger();
    QCOMPARE(editor->animations()->count(), 6);
    QCOMPARE(editor->animationIndex(), 5);
    QCOMPARE(dialogs->count(QStringLiteral("askText")), 3);
    QVERIFY(document->text().endsWith(QLatin1String("@copy\n> 0,0 0,0 1 0 1,1 0\n")));
    dialogs->buttonAnswers = {Dialogs::Yes};
    action("anim_duplicate")->trigger();
    QCOMPARE(editor->animations()->count(), 6);

    host->options.insert(QStringLiteral("confirm_delete"), true);
    dialogs->buttonAnswers = {Dialogs::No, Dialogs::Yes};
    action("anim_delete")->trigger();
    QCOMPARE(editor->animations()->count(), 6);
    action("anim_delete")->trigger();
    QCOMPARE(editor->animations()->count(), 5);
    QCOMPARE(editor->animationIndex(), 4);
    host->options.remove(QStringLiteral("confirm_delete"));
    const int asked = dialogs->count();
    action("anim_delete")->trigger();
    QCOMPARE(dialogs->count(), asked);
    while (document->isUndoAvailable()) {
        document->undo();
    }
    QCOMPARE(document->text(), before);
}

void TestAnimationEditor::framesComeAndGo()
{
    const QString before = document->text();
    editor->selectFrame(2);
    action("anim_frame_add")->trigger();
    QCOMPARE(editor->frameIndex(), 3);
    QCOMPARE(editor->currentFrame()->delay(), 10);
    QCOMPARE(line(), 5);
    action("anim_frame_delete")->trigger();
    QCOMPARE(editor->frameIndex(), 2);
    QCOMPARE(document->text(), before);
    editor->selectFrame(1);
    action("anim_frame_delete")->trigger();
    QCOMPARE(editor->frameIndex(), 1);
    QVERIFY(!document->text().contains(QLatin1String("here it hits")));
    QCOMPARE(label("anim_frame_sel_lb"), QStringLiteral("2 / 2 - 10 ticks"));
    editor->selectAnimation(1);
    action("anim_frame_add")->trigger();
    QCOMPARE(editor->frameIndex(), 0);
    while (document->isUndoAvailable()) {
        editor->undo();
    }
    QCOMPARE(document->text(), before);
}

void TestAnimationEditor::documentDies()
{
    action("anim_play")->trigger();
    document.reset();
    QVERIFY(!editor->isActive() && !editor->animations() && !editor->currentFrame());
    QVERIFY(!editor->action()->isEnabled());
    QVERIFY(!stage->timeLine()->isPlaying());
    QCOMPARE(renderer->spriteProvider(), nullptr);
    editor->selectFrame(1);
    editor->play();
}

/// Its main document, if it names no file of animations.
void TestAnimationEditor::projectBringsItsAnimations()
{
    const QTemporaryDir folder;
    TestParent parent(folder.path());
    auto* main = new PoseDocument(QStringLiteral("@main\n> 0,0 0,0 1 0 1,1 0\n"));
    TestProject project(&parent, main);
    editor->setProject(&project);
    QCOMPARE(editor->document(), main);
    QCOMPARE(label("anim_sel_lb"), QStringLiteral("1 / 1"));
    auto* list = new PoseDocument(QLatin1String(someText));
    project.addFile(list, FileID::Animations);
    editor->setProject(&project);
    QCOMPARE(editor->document(), main);
    editor->setProject(nullptr);
    QVERIFY(!editor->animations() && !editor->action()->isEnabled());
    editor->setProject(&project);
    QCOMPARE(editor->document(), list);
    editor->projectAboutToClose(&project);
    QVERIFY(!editor->document());
    project.release();
}

void TestAnimationEditor::editorDies()
{
    editor->play();
    editor.reset();
    QVERIFY(!stage->timeLine()->isPlaying());
    QVERIFY(!stage->renderer() && !renderer->spriteProvider() && !text->codeDocument());
    stage->timeLine()->grab();
    renderer->mousePressed({10, 10}, Qt::LeftButton, {});
}

QTEST_MAIN(TestAnimationEditor)
#include "tst_animationeditor.moc"
