#include "support/gltest.h"
#include "support/planneddialogs.h"
#include "support/reelstudio.h"
#include "support/testtable.h"

#include "animation/dialogs/animalign.h"
#include "animation/dialogs/animedittxt.h"
#include "animation/timeline/timelinewidget.h"

#include <QAction>
#include <QComboBox>
#include <QPushButton>
#include <QSpinBox>

using namespace Zorv;

namespace {

const char* const Text = "<walk>\n"
                         "a 1 2 3 4\n"
                         "b 5 6 7 8\n"
                         "+ 0 0 1 1 4 1\n"
                         "# kept\n"
                         "\n"
                         "b 0 0 9 9\n"
                         "+ 0 1 0 0 5 0\n"
                         "+ 0 0 0 0 6 0\n"
                         "<jab>\n"
                         "b 2 2 2 2\n"
                         "+ 0 0 3 3 7 0\n"
                         "<empty>\n";

}  // namespace

/// The tools of the editor that act on frames, boxes and files, with real widgets.
class TestAnimationTools : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void writesOneStep_data();
    void writesOneStep();
    void asksBeforeOtherFramesChange();
    void optimizesWhatWasShown();
    void savesAsGif();
    void alignmentIsPreviewed();
    void typedCodeStaysWithItsAnimation();
    void codeIsAskedAboutBeforeItGoes();
    void fieldsAreThoseOfTheSelectedBox();
    void boxesGoFromFrameToFrame();
    void framesAreReversed();

private:
    QString text() const { return m->document->text(); }
    void trigger(const char* name) { m->host.actions.value(QLatin1String(name))->trigger(); }
    bool isEnabled(const char* name)
    {
        return m->host.actions.value(QLatin1String(name))->isEnabled();
    }
    template <class Widget>
    Widget* child(const char* name) const
    {
        return m->window.findChild<Widget*>(QLatin1String(name));
    }
    template <class Dialog>
    Dialog* dialog() const
    {
        return m->window.findChild<Dialog*>();
    }
    QVector<QRect> shownBoxes() const
    {
        const ContactBoxesCode* boxes = m->stage.boxes(ContactBoxCode::Collision);
        QVector<QRect> rects;
        for (int i = 0; boxes && i < boxes->count(); ++i) {
            rects.append(boxes->at(i)->rect());
        }
        return rects;
    }
    /// Presses a place of the stage, in pixels of the game.
    void click(QPoint place)
    {
        const QPoint origin(200, 200);
        m->stage.setVisibility(false, false, false, true, true, false, false);
        m->stage.setZoomLevel(3);
        m->stage.setOrigin(origin);
        m->stage.mousePressed(origin + place, Qt::LeftButton, Qt::NoModifier);
        m->stage.mouseReleased(origin + place, Qt::LeftButton, Qt::NoModifier);
    }
    QSpinBox* field(const char* name) const
    {
        return qobject_cast<QSpinBox*>(m->host.controls.value(QLatin1String(name)));
    }
    void typeLine(const QString& code)
    {
        auto* field = child<CodeEditor>("code");
        field->moveCursor(QTextCursor::End);
        QTest::keyClick(field, Qt::Key_Return);
        QTest::keyClicks(field, code);
    }

    std::unique_ptr<ReelStudio> m;
    std::unique_ptr<PlannedDialogs> m_dialogs;
};

void TestAnimationTools::init()
{
    m = std::make_unique<ReelStudio>(QString::fromLatin1(Text));
    m_dialogs = std::make_unique<PlannedDialogs>();
    m->editor->selectAnimation(0);
}

void TestAnimationTools::cleanup()
{
    m_dialogs.reset();
    m.reset();
}

void TestAnimationTools::writesOneStep_data()
{
    columns<int, QString, QString, QString>("frame", "before", "after", "title");
    const auto row = [](const char* action, int frame, const char* before, const char* after,
                        const char* title) {
        QTest::newRow(action) << frame << QString::fromLatin1(before) << QString::fromLatin1(after)
                              << QString::fromLatin1(title);
    };
    row("anim_frameall_offset", 0, "+ 0 1 0 0 5 0\n+ 0 0 0 0 6", "+ 0 1 1 1 5 0\n+ 0 0 1 1 6",
        "Same offset for all frames of animation #1");
    row("anim_frameall_time", 1, "+ 0 0 0 0 6 0\n", "+ 0 0 0 0 5 0\n",
        "Same time for all frames of animation #1");
    row("anim_frameall_flip", 0, "+ 0 1 0 0 5 0\n+ 0 0 0 0 6 0", "+ 0 1 0 0 5 1\n+ 0 0 0 0 6 1",
        "Same flip for all frames of animation #1");
    row("anim_frameall_time", 2, "", "", "");
    row("anim_box_delall", 0, "a 1 2 3 4\nb 5 6 7 8\n", "", "Remove all contact boxes of frame #1");
    row("anim_box_delall_anim", 1, "a 1 2 3 4\nb 5 6 7 8\n+ 0 0 1 1 4 1\n# kept\n\nb 0 0 9 9\n",
        "+ 0 0 1 1 4 1\n# kept\n\n", "Remove all contact boxes of animation #1");
    row("anim_box_prev", 2, "+ 0 0 0 0 6 0\n", "b 0 0 9 9\n+ 0 0 0 0 6 0\n",
        "Copy contact boxes of frame #2");
    row("anim_box_prev", 0, "", "", "");
}

void TestAnimationTools::writesOneStep()
{
    const auto [frame, before, after, title] = fetched<int, QString, QString, QString>();
    m->editor->selectFrame(frame);
    trigger(QTest::currentDataTag());
    QString expected = QString::fromLatin1(Text);
    if (!before.isEmpty()) {
        QCOMPARE(expected.count(before), 1);
        expected.replace(before, after);
    }
    QCOMPARE(text(), expected);
    QCOMPARE(m->document->undoTitle(), title);
    QCOMPARE(m->editor->frameIndex(), frame);
    if (!title.isEmpty()) {
        m->editor->undo();
        QCOMPARE(text(), QString::fromLatin1(Text));
    }
    QVERIFY(!m->document->isUndoAvailable());
    QCOMPARE(m_dialogs->count(), 0);
}

void TestAnimationTools::asksBeforeOtherFramesChange()
{
    m_dialogs->buttonAnswers = {Dialogs::No, Dialogs::Yes};
    trigger("anim_box_allinst");
    QCOMPARE(text(), QString::fromLatin1(Text));
    const PlannedDialogs::Shown asked = m_dialogs->shown.constLast();
    QCOMPARE(asked.title, QStringLiteral("Confirmation"));
    QVERIFY(asked.text.startsWith(
        QLatin1String("Do you really want to replicate Contact boxes of current frame in all its "
                      "instances?\nAll existing Contact boxes in these frames will be replaced.")));
    QVERIFY(asked.text.endsWith(QLatin1String("Frames: 2. Contact boxes that they have: 1.")));
    QCOMPARE(asked.defaultButton, Dialogs::No);
    trigger("anim_box_allinst");
    QString expected = QString::fromLatin1(Text);
    expected.replace(QLatin1String("+ 0 0 0 0 6 0\n"),
                     QLatin1String("a 1 2 3 4\nb 5 6 7 8\n+ 0 0 0 0 6 0\n"));
    expected.replace(QLatin1String("b 2 2 2 2\n"), QLatin1String("b 5 6 7 8\na 1 2 3 4\n"));
    QCOMPARE(text(), expected);
    QCOMPARE(m->document->undoTitle(),
             QStringLiteral("Contact boxes of frame #1 in all its instances"));
    m->editor->undo();
    QCOMPARE(text(), QString::fromLatin1(Text));

    m->editor->selectFrame(1);
    trigger("anim_box_allinst");
    QCOMPARE(m_dialogs->count(QStringLiteral("question")), 2);
    QCOMPARE(m_dialogs->count(QStringLiteral("information")), 1);
}

void TestAnimationTools::optimizesWhatWasShown()
{
    m_dialogs->buttonAnswers = {Dialogs::No, Dialogs::Yes};
    trigger("anim_optimize");
    QCOMPARE(text(), QString::fromLatin1(Text));
    QCOMPARE(m_dialogs->count(QStringLiteral("information")), 0);
    trigger("anim_optimize");
    QCOMPARE(text(), QString::fromLatin1(Text).replace(QLatin1String("\n\n"), QLatin1String("\n")));
    QCOMPARE(m_dialogs->shown.constLast().title, QStringLiteral("Optimize done!"));
    QCOMPARE(m_dialogs->shown.constLast().text,
             QStringLiteral("Code clean, and 1 line(s) were removed in the optimization!"));
    trigger("anim_optimize");
    QVERIFY(m_dialogs->shown.constLast().text.startsWith(QLatin1String("Code clean, and 0 ")));
    QCOMPARE(m_dialogs->count(QStringLiteral("question")), 2);
    m->editor->undo();
    QCOMPARE(text(), QString::fromLatin1(Text));
}

void TestAnimationTools::savesAsGif()
{
    const QString gifPath = QStringLiteral("gif_path");
    m->host.options[QStringLiteral("project_path")] = QStringLiteral("/games");
    trigger("anim_save_gif");
    QCOMPARE(m_dialogs->shown.constLast().folder, QStringLiteral("/games"));
    QCOMPARE(m_dialogs->shown.constLast().text,
             QStringLiteral("Graphics Interchange Format (*.gif)"));
    QCOMPARE(m_dialogs->count(QStringLiteral("error")), 0);
    QVERIFY(!m->project->option(gifPath).isValid());

    m_dialogs->fileAnswers = {{m->folder.filePath(QStringLiteral("out/walk"))}};
    trigger("anim_save_gif");
    QCOMPARE(m->editor->gifName, m->folder.filePath(QStringLiteral("out/walk.gif")));
    QCOMPARE(m->project->option(gifPath).toString(), m->folder.filePath(QStringLiteral("out")));
    QCOMPARE(m_dialogs->texts(QStringLiteral("error")),
             QStringList{QStringLiteral("There are no pictures.")});
    trigger("anim_save_gif");
    QCOMPARE(m_dialogs->shown.constLast().folder, m->folder.filePath(QStringLiteral("out")));

    m->editor->selectAnimation(2);
    trigger("anim_save_gif");
    QCOMPARE(m_dialogs->texts(QStringLiteral("warning")),
             QStringList{QStringLiteral("You can't save an empty animation as GIF.")});
}

void TestAnimationTools::alignmentIsPreviewed()
{
    const QVector<QRect> first{QRect(5, 6, 7, 8)};
    QCOMPARE(shownBoxes(), first);
    trigger("anim_frame_align");
    const QPointer<AnimAlign> align = dialog<AnimAlign>();
    QVERIFY(align && align->isVisible());
    QCOMPARE(align->selected(), QVector<int>{0});
    align->findChild<QComboBox*>()->setCurrentIndex(Alignment::OffsetBoxes);
    child<QSpinBox>("xVal")->setValue(10);
    QCOMPARE(shownBoxes(), QVector<QRect>{QRect(15, 6, 7, 8)});
    QCOMPARE(text(), QString::fromLatin1(Text));
    QTest::mouseClick(child<QPushButton>("clearButton"), Qt::LeftButton);
    QCOMPARE(shownBoxes(), first);
    QTest::mouseClick(child<QPushButton>("selectAllButton"), Qt::LeftButton);
    QTest::mouseClick(child<QPushButton>("applyButton"), Qt::LeftButton);
    QVERIFY(text().contains(QLatin1String("a 11 2 3 4\nb 15 6 7 8\n")));
    QVERIFY(text().contains(QLatin1String("b 12 2 2 2\n")));
    QCOMPARE(shownBoxes(), QVector<QRect>{QRect(15, 6, 7, 8)});
    child<QSpinBox>("xVal")->setValue(20);
    QCOMPARE(shownBoxes(), QVector<QRect>{QRect(35, 6, 7, 8)});
    QTest::keyClick(align, Qt::Key_Escape);
    QCOMPARE(shownBoxes(), QVector<QRect>{QRect(15, 6, 7, 8)});
    QTRY_VERIFY(!align);
    m->editor->undo();
    QCOMPARE(text(), QString::fromLatin1(Text));

    // The text may go behind the dialog, from the shown animation on or whole.
    trigger("anim_frame_align");
    child<QSpinBox>("xVal")->setValue(20);
    QTextCursor all(m->document);
    all.select(QTextCursor::Document);
    all.removeSelectedText();
    QTRY_VERIFY(!m->editor->currentFrame());
    m->document->undo();
    QTRY_VERIFY(m->editor->currentAnimation());
    m->close();
    QVERIFY(!dialog<AnimAlign>() || !dialog<AnimAlign>()->isVisible());
}

void TestAnimationTools::typedCodeStaysWithItsAnimation()
{
    QVERIFY(isEnabled("anim_box_type"));
    trigger("anim_code");
    auto* window = dialog<AnimEditTxt>();
    QVERIFY(window && window->isVisible());
    QVERIFY(!isEnabled("anim_box_type") && isEnabled("anim_box_delall"));
    QVERIFY(window->text().startsWith(QLatin1String("<walk>\na 1 2 3 4\n")));
    m->editor->selectAnimation(1);
    QCOMPARE(window->text(), QStringLiteral("<jab>\nb 2 2 2 2\n+ 0 0 3 3 7 0"));
    typeLine(QStringLiteral("+ 0 1 0 0 5 0"));
    m->editor->selectAnimation(0);
    QVERIFY(window->text().startsWith(QLatin1String("<jab>")));
    trigger("anim_box_delall");
    QTest::mouseClick(child<QPushButton>("applyButton"), Qt::LeftButton);
    QVERIFY(text().endsWith(
        QLatin1String("<jab>\nb 2 2 2 2\n+ 0 0 3 3 7 0\n+ 0 1 0 0 5 0\n<empty>\n")));
    QCOMPARE(m->document->undoTitle(), QStringLiteral("Edit code of animation #2"));
    QVERIFY(window->text().startsWith(QLatin1String("<walk>\n+ 0 0")));
    m->editor->selectAnimation(2);
    QCOMPARE(window->text(), QStringLiteral("<empty>"));

    // Two are one too many, and what has changed meanwhile is asked about.
    typeLine(QStringLiteral("<two>"));
    const QString before = text();
    QTest::mouseClick(child<QPushButton>("applyButton"), Qt::LeftButton);
    QCOMPARE(m_dialogs->count(QStringLiteral("warning")), 1);
    QCOMPARE(text(), before);
    m->document->insert(QStringLiteral("+ 0 0 0 0 1 0\n"));
    m_dialogs->buttonAnswers = {Dialogs::No};
    QTest::mouseClick(child<QPushButton>("applyButton"), Qt::LeftButton);
    QCOMPARE(m_dialogs->count(QStringLiteral("question")), 1);
    QVERIFY(window->isModified());
    m_dialogs->buttonAnswers = {Dialogs::No};
    QTest::keyClick(window, Qt::Key_Escape);
    QVERIFY(!window->isVisible());
    m->editor->selectAnimation(0);
    QVERIFY(isEnabled("anim_box_type"));
}

void TestAnimationTools::codeIsAskedAboutBeforeItGoes()
{
    m->editor->selectFrame(2);
    trigger("anim_code");
    typeLine(QStringLiteral("# more"));
    m_dialogs->buttonAnswers = {Dialogs::Cancel, Dialogs::Cancel, Dialogs::Yes};
    QVERIFY(!m->window.close());
    QVERIFY(!m->editor->canDiscard());
    m->document->setModified(false);
    m->editor->canDiscard();
    QVERIFY(text().contains(QLatin1String("# more\n<jab>")));
    QCOMPARE(m->editor->frameIndex(), 2);
    m->editor->selectFrame(0);
    const int asked = m_dialogs->count(QStringLiteral("question"));
    typeLine(QStringLiteral("# even more"));
    trigger("anim_box_delall");
    m_dialogs->buttonAnswers = {Dialogs::Yes};
    m_dialogs->whileOpen = [this](const auto&) { m->close(); };
    QTest::mouseClick(child<QPushButton>("applyButton"), Qt::LeftButton);
    QCOMPARE(m_dialogs->count(QStringLiteral("question")), asked + 1);
    QVERIFY(dialog<AnimEditTxt>()->text().endsWith(QLatin1String("# even more")));
    QCOMPARE(m_dialogs->count(QStringLiteral("warning")), 1);
    QVERIFY(dialog<AnimEditTxt>()->isModified());
}

void TestAnimationTools::fieldsAreThoseOfTheSelectedBox()
{
    QSpinBox* x = field("anim_box_x");
    QVERIFY(x && !x->isEnabled());
    click({8, 12});
    QVERIFY(x->isEnabled());
    QCOMPARE(x->value(), 5);
    QCOMPARE(field("anim_box_y")->value(), 6);
    QCOMPARE(field("anim_box_width")->value(), 7);
    QCOMPARE(field("anim_box_height")->value(), 8);
    x->setFocus();
    x->selectAll();
    QTest::keyClicks(x, QStringLiteral("-30"));
    QVERIFY(!m->document->isUndoAvailable());
    QTest::keyClick(x, Qt::Key_Return);
    QVERIFY(text().contains(QLatin1String("b -30 6 7 8\n")));
    QCOMPARE(m->document->undoTitle(), QStringLiteral("Contact box of frame #1"));
    field("anim_box_width")->setValue(9);
    QVERIFY(text().contains(QLatin1String("b -30 6 9 8\n")));
    QVERIFY(x->isEnabled());
    m->editor->undo();
    m->editor->undo();
    QCOMPARE(text(), QString::fromLatin1(Text));

    trigger("anim_box_lock");
    click({8, 12});
    QVERIFY(!x->isEnabled());
    m->editor->selectFrame(2);
    QCOMPARE(x->value(), 0);
    QVERIFY(!m->document->isUndoAvailable());
}

void TestAnimationTools::boxesGoFromFrameToFrame()
{
    m->editor->selectFrame(1);
    QCOMPARE(shownBoxes(), QVector<QRect>{QRect(0, 0, 9, 9)});
    trigger("anim_box_copy");
    m->editor->selectFrame(2);
    trigger("anim_box_paste");
    QVERIFY(text().contains(QLatin1String("b 0 0 9 9\n+ 0 0 0 0 6 0\n")));
    trigger("anim_box_mirror");
    QVERIFY(text().contains(QLatin1String("b -9 0 9 9\n+ 0 0 0 0 6 0\n")));
    trigger("anim_box_mirror");
    QCOMPARE(shownBoxes(), QVector<QRect>{QRect(0, 0, 9, 9)});

    // One of two, to all frames that are selected on the strip.
    m->editor->selectFrame(0);
    click({8, 12});
    trigger("anim_box_copy");
    m->graphics->timeLine()->setSelectedCells({0, 1, 2});
    trigger("anim_box_paste");
    QCOMPARE(text().count(QLatin1String("b 5 6 7 8\n")), 4);
    QCOMPARE(m->document->undoTitle(), QStringLiteral("Paste contact boxes"));
    trigger("anim_box_to_frames");
    QCOMPARE(text().count(QLatin1String("a 1 2 3 4\n")), 3);
    QVERIFY(!text().contains(QLatin1String("b 0 0 9 9\n")));
    while (m->document->isUndoAvailable()) {
        m->editor->undo();
    }
    QCOMPARE(text(), QString::fromLatin1(Text));
}

/// The boxes go with their frame, and the shown frame stays the shown one.
void TestAnimationTools::framesAreReversed()
{
    m->editor->selectFrame(0);
    const QVector<QRect> first = shownBoxes();
    const int last = m->editor->frameCount() - 1;
    trigger("anim_frame_reverse");
    QCOMPARE(m->editor->frameIndex(), last);
    QCOMPARE(shownBoxes(), first);
    trigger("anim_frame_reverse");
    QCOMPARE(m->editor->frameIndex(), 0);
    QCOMPARE(text(), QString::fromLatin1(Text));
    m->window.findChild<Zorv::TimeLineWidget*>()->setSelectedCells({0, 1});
    trigger("anim_frame_reverse");
    QCOMPARE(m->editor->frameIndex(), 1);
    QVERIFY(text() != QString::fromLatin1(Text));
}

ZORV_GL_TEST_MAIN(TestAnimationTools)
#include "tst_animationtools.moc"
