#include "windowfixture.h"

#include "app/stage/familyanimationeditor.h"
#include "app/stage/stagecommands.h"
#include "app/stage/stagerenderer.h"
#include "family/assets/spritecollection.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/framenode.h"
#include "support/folders.h"
#include "support/gltest.h"
#include "support/testtable.h"

#include <zorv/animation/dialogs/animalign.h>
#include <zorv/animation/import/animimportdlg.h>
#include <zorv/animation/spritedrag.h>
#include <zorv/animation/thumbnails/spritelist.h>
#include <zorv/animation/timeline/timelinewidget.h>
#include <zorv/graphics/graphicwork/graphicsworkspace.h>
#include <zorv/graphics/renderwidget.h>

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QSpinBox>
#include <QTextBlock>
#include <QTimer>

namespace {

// Of the strip.
constexpr int FirstTick = 125;
constexpr int TickWidth = 6;
constexpr int CellRow = 35;

}  // namespace

/// A person makes an attack of the sample character, with mouse and keys alone.
class TestNewAttack : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m.reset(); }

    void isMadeWithoutTyping();
    void importsFromADamagedFile_data();
    void importsFromADamagedFile();
    void stripHasAMenu();

private:
    void open();
    QString shownText() const;
    void takeSprites();
    void setTime();
    void drawBox();
    void copyBox();
    void align();
    void play();
    void saveGif();
    void importFirst();
    void import();

    App::FamilyAnimationEditor* editor() const { return m->window->stage()->editor(); }
    Zorv::GraphicsWorkspace* stage() const { return m->window->stage()->workspace(); }
    QPoint at(QPoint model) const
    {
        const App::StageRenderer* renderer = m->window->stage()->renderer();
        return renderer->origin() + (QPointF(model) * double(renderer->zoom())).toPoint();
    }
    static QPoint cellAt(int tick) { return {FirstTick + tick * TickWidth + 1, CellRow}; }
    static void drag(QWidget* widget, QPoint from, QPoint to);

    template <typename Dialog, typename Act>
    static void answer(Act act)
    {
        QTimer::singleShot(0, [act] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            act(dialog);
        });
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<WindowFixture> m;
};

void TestNewAttack::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(copyFolder(QStringLiteral(SAMPLES "/arena"), m_folder->path()));
    open();
}

void TestNewAttack::open()
{
    m.reset();
    m = std::make_unique<WindowFixture>();
    m->window->resize(1280, 800);
    QVERIFY(m->window->openPath(m_folder->path()));
    for (const char* file :
         {"iwao/iwao.character", "maren/maren.character", "maren/attacks.anim"}) {
        QVERIFY(m->window->openFile(m_folder->filePath("characters/") + QLatin1String(file)));
    }
    m->goTo(m->document()->animations()->animation(0)->firstLine());
    m->edit()->setFocus();
    QTRY_COMPARE(editor()->frameIndex(), 0);
    QVERIFY2(stage()->renderWidget(), "no GL");
}

/// The lines of the shown frame.
QString TestNewAttack::shownText() const
{
    const Family::FrameNode* frame = editor()->frame();
    const QStringList lines = m->document()->text().split(QLatin1Char('\n'));
    return lines.mid(frame->firstLine(), frame->block().blockNumber() - frame->firstLine() + 1)
        .join(QLatin1Char('\n'));
}

void TestNewAttack::drag(QWidget* widget, QPoint from, QPoint to)
{
    QTest::mousePress(widget, Qt::LeftButton, {}, from);
    for (const QPoint place : {(from + to) / 2, to}) {
        QMouseEvent move(QEvent::MouseMove, place, widget->mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(widget, &move);
    }
    QTest::mouseRelease(widget, Qt::LeftButton, {}, to);
    QCoreApplication::processEvents();
}

/// From the panel, and dropped between the first two of the strip.
void TestNewAttack::takeSprites()
{
    auto* list = m->window->findChild<Zorv::SpriteList*>();
    QVERIFY(list);
    const int row = list->allSprites().indexOf({101, 0});
    list->selectionModel()->select({list->model()->index(row, 0), list->model()->index(row + 1, 0)},
                                   QItemSelectionModel::ClearAndSelect);
    m->action("thumb_add")->trigger();
    QCOMPARE(editor()->frameCount(), 8);
    QCOMPARE(shownText(), QStringLiteral("frame 101,1  delay 10"));

    const std::unique_ptr<QMimeData> sprites(Zorv::spriteDrag({{101, 2}}));
    QDragEnterEvent enter(cellAt(2), Qt::CopyAction, sprites.get(), Qt::LeftButton, {});
    QApplication::sendEvent(stage()->timeLine(), &enter);
    QDropEvent drop(cellAt(2), Qt::CopyAction, sprites.get(), Qt::LeftButton, {});
    QApplication::sendEvent(stage()->timeLine(), &drop);
    QCOMPARE(editor()->frameIndex(), 1);
    QCOMPARE(shownText(), QStringLiteral("frame 101,2  delay 10"));
}

void TestNewAttack::setTime()
{
    drag(stage()->timeLine(), cellAt(12) - QPoint(2, 0), cellAt(6) - QPoint(2, 0));
    QCOMPARE(shownText(), QStringLiteral("frame 101,2  delay 4"));
}

void TestNewAttack::drawBox()
{
    QWidget* place = stage()->renderWidget();
    QTest::keyClick(m->edit(), Qt::Key_1, Qt::ControlModifier);
    drag(place, at({20, -90}), at({60, -60}));
    QTest::keyClick(place, Qt::Key_Escape);
    QTest::mouseClick(place, Qt::LeftButton, {}, at({50, -75}));
    QTest::keyClick(place, Qt::Key_Right, Qt::ShiftModifier);
    auto* width = m->window->findChild<QSpinBox*>(QStringLiteral("anim_box_width"));
    width->setFocus();
    width->selectAll();
    QTest::keyClicks(width, QStringLiteral("33"));
    QTest::keyClick(width, Qt::Key_Return);
    QCOMPARE(shownText(), QStringLiteral("attack 30,-90, 62,-60\nframe 101,2  delay 4"));
}

/// By the keys of every clipboard, from one frame to the next.
void TestNewAttack::copyBox()
{
    for (const char* key : {"copy", "paste"}) {
        stage()->renderWidget()->setFocus();
        QTRY_VERIFY(m->action(key)->isEnabled());
        m->action(key)->trigger();
        m->action("anim_next_frame")->trigger();
    }
    m->action("anim_prev_frame")->trigger();
    QCOMPARE(shownText(), QStringLiteral("attack 30,-90, 62,-60\nframe 101,0  delay 10"));
}

void TestNewAttack::align()
{
    answer<AnimAlign>([](AnimAlign* dialog) {
        dialog->findChild<QSpinBox*>(QStringLiteral("xVal"))->setValue(7);
        dialog->findChild<QPushButton*>(QStringLiteral("applyButton"))->click();
        dialog->reject();
    });
    m->action("anim_frame_align")->trigger();
    QTRY_COMPARE(shownText(),
                 QStringLiteral("attack 30,-90, 62,-60\nframe 101,0  offset 7,0  delay 10"));
}

void TestNewAttack::play()
{
    m->action("anim_onion_skin")->trigger();
    m->action("anim_play_here")->trigger();
    QVERIFY(editor()->isPlaying());
    QTRY_VERIFY(editor()->frameIndex() != 2);
    m->action("anim_stop")->trigger();
    QVERIFY(!editor()->isPlaying());
}

void TestNewAttack::saveGif()
{
    m->dialogs.fileAnswers = {{m_folder->filePath(QStringLiteral("attack"))}};
    m->action("anim_save_gif")->trigger();
    QVERIFY(readFile(m_folder->filePath(QStringLiteral("attack.gif"))).startsWith("GIF89a"));
}

/// Under another name, with its four sprites, whose numbers are taken.
/// The first animation of the other project, as 777.
void TestNewAttack::importFirst()
{
    answer<AnimImportDlg>([](AnimImportDlg* dialog) {
        auto* source = dialog->findChild<QListView*>(QStringLiteral("source"));
        source->setCurrentIndex(source->model()->index(0, 0));
        dialog->findChild<QPushButton*>(QStringLiteral("add"))->click();
        auto* target = dialog->findChild<QListView*>(QStringLiteral("destination"));
        doubleClickRow(target, target->model()->index(0, 0));
        auto* name = target->findChild<QLineEdit*>();
        QVERIFY(name);
        name->setText(QStringLiteral("777"));
        QTest::keyClick(name, Qt::Key_Return);
        QCoreApplication::processEvents();
        dialog->accept();
    });
    m->action("anim_import_proj")->trigger();
}

void TestNewAttack::import()
{
    const int count = editor()->spriteCollection()->rowCount();
    importFirst();
    QCOMPARE(editor()->spriteCollection()->rowCount(), count + 4);
    QVERIFY(m->document()->text().contains(QLatin1String("animation 777 ")));
    QCOMPARE(shownText(), QStringLiteral("frame 9100,4  delay 20  loop"));
    auto* sprites = dynamic_cast<Zorv::ProjectFile*>(editor()->spriteCollection());
    QVERIFY(sprites);
    sprites->undo();
    QCOMPARE(editor()->spriteCollection()->rowCount(), count);
    QVERIFY(!sprites->canUndo());
}

void TestNewAttack::isMadeWithoutTyping()
{
    const QString before = m->document()->text();
    m->dialogs.buttonAnswers = {Zorv::Dialogs::Yes};
    m->dialogs.textAnswers = QStringList(QStringLiteral("150"));
    m->action("anim_duplicate")->trigger();
    QCoreApplication::processEvents();
    // The copy is in work, though the text has the keyboard.
    QCOMPARE(editor()->animationIndex(), 1);
    for (const auto step :
         {&TestNewAttack::takeSprites, &TestNewAttack::setTime, &TestNewAttack::drawBox,
          &TestNewAttack::copyBox, &TestNewAttack::align, &TestNewAttack::play,
          &TestNewAttack::saveGif, &TestNewAttack::import}) {
        (this->*step)();
        if (QTest::currentTestFailed()) {
            return;
        }
    }
    m->edit()->setFocus();
    while (m->document()->text() != before && m->document()->canUndo()) {
        m->action("undo")->trigger();
    }
    QCOMPARE(m->document()->text(), before);
}

void TestNewAttack::importsFromADamagedFile_data()
{
    columns<QByteArray, QString>("bytes", "told");
    const QByteArray whole =
        readFile(QStringLiteral(SAMPLES "/arena/characters/iwao/iwao.sprites"));
    QByteArray spoilt = whole;
    for (int i = spoilt.size() / 16; i < spoilt.size(); i += 7) {
        spoilt[i] = char(~spoilt[i]);
    }
    row("bad pixels", spoilt, "question");
    row("bad pixels that it does not need", whole.left(whole.size() / 2), "information");
    row("another file", QByteArray("GIF89a"), "error");
    row("empty", QByteArray(), "error");
}

/// Who is told that something cannot be read, and does not want the rest, loses nothing.
void TestNewAttack::importsFromADamagedFile()
{
    const auto [bytes, told] = fetched<QByteArray, QString>();
    QVERIFY(writeFile(m_folder->filePath("characters/iwao/iwao.sprites"), bytes));
    open();
    const QString before = m->document()->text();
    const int count = editor()->spriteCollection()->rowCount();
    m->dialogs.buttonAnswers = {Zorv::Dialogs::No};
    importFirst();
    QCOMPARE(m->dialogs.shown.constLast().kind, told);
    const bool isDone = told == QLatin1String("information");
    QCOMPARE(m->document()->text() != before, isDone);
    QCOMPARE(m->document()->canUndo(), isDone);
    QCOMPARE(editor()->spriteCollection()->rowCount(), isDone ? count + 4 : count);
}

/// Of the window, and of its cells.
void TestNewAttack::stripHasAMenu()
{
    const QPoint place = cellAt(1);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                            stage()->timeLine()->mapToGlobal(place));
    QApplication::sendEvent(stage()->timeLine(), &event);
    QWidget* menu = QApplication::activePopupWidget();
    QVERIFY(menu);
    const QList<QAction*> own = stage()->timeLine()->actions();
    QVERIFY(!own.isEmpty() && menu->actions().contains(own.first()));
    QVERIFY(menu->actions().contains(m->action("anim_play")));
    menu->close();
}

ZORV_GL_TEST_MAIN(TestNewAttack)
#include "tst_newattack.moc"
