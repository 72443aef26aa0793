#include "windowfixture.h"

#include "app/actions/actionregistry.h"
#include "app/assets/spritepanel.h"
#include "app/assets/thumbnailcommands.h"
#include "app/stage/newanimationdialog.h"
#include "app/stage/stagecommands.h"
#include "app/stage/stageview.h"
#include "family/nodes/animationnode.h"
#include "support/testtable.h"

#include <zorv/animation/thumbnails/spritelist.h>
#include <zorv/animation/thumbnails/thumbnailseditor.h>
#include <zorv/animation/timeline/timelinewidget.h>
#include <zorv/core/messagelist.h>
#include <zorv/graphics/graphicwork/graphicsworkspace.h>

#include <QAction>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QStatusBar>
#include <QTabBar>
#include <QTextBlock>
#include <QTimer>
#include <QToolTip>

using App::MainWindow;
using App::MessagePanel;
using App::NodeModel;

/// The panels of the real window follow the text, and lead to it.
class TestWindowPanels : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m.reset(); }

    void followsTypingUndoAndRedo();
    void jumpsToAMessage();
    void keepsTheCurrentMessage();
    void followsTheCursor();
    void jumpsToANode();
    void showsMarkupOfAGameAsText();
    void jumpsToAnAnimation();
    void changesAnimations_data();
    void changesAnimations();
    void movesSeveralAnimations();
    void showsTheOrganizerBySetting();
    void putsANewAnimationOnLinesOfItsOwn();
    void dropsAnimations_data();
    void dropsAnimations();
    void refusesDropsFromElsewhere();
    void hasMenusAtThePointer_data();
    void hasMenusAtThePointer();
    void menuOfNodesIsForTheirRow();
    void movesWhatHasTheFocus();

private:
    MainWindow* window() const { return m->window.get(); }
    QAbstractItemView* animations() const { return window()->animations()->list(); }
    NodeModel* nodes() const { return window()->textEditor()->nodes(); }
    QString order() const;
    void openAnimations() { m->open(*m_game, m_game->ryn(), m_game->animations()); }

    std::unique_ptr<TemporaryGame> m_game;
    std::unique_ptr<WindowFixture> m;
};

void TestWindowPanels::init()
{
    m_game = std::make_unique<TemporaryGame>();
    m = std::make_unique<WindowFixture>();
}

/// The identifiers in the list.
QString TestWindowPanels::order() const
{
    QStringList names;
    for (int row = 0; row < animations()->model()->rowCount(); ++row) {
        const QModelIndex index = animations()->model()->index(row, 0);
        names.append(index.data().toString().section(QLatin1Char(' '), 0, 0));
    }
    return names.join(QLatin1Char(' '));
}

void TestWindowPanels::followsTypingUndoAndRedo()
{
    m->open(*m_game, m_game->ryn());
    const QString before = m->document()->text();
    const QString othersAlone = QStringLiteral("2 errors, 0 warnings");
    QCOMPARE(m->problemsShown(), othersAlone);
    m->goTo(6, 0);
    m->press(Qt::Key_End);
    m->press(Qt::Key_Return);
    m->type(QStringLiteral("power = much"));
    const auto shows = [this](int rows, const QString& label) {
        const QModelIndex group = nodes()->index(2, 0);
        return nodes()->rowCount(group) == rows &&
               nodes()->index(1, 0, group).data().toString().contains(label);
    };
    QTRY_VERIFY(shows(3, QStringLiteral("power")));
    QCOMPARE(m->problemsShown(), QStringLiteral("3 errors, 0 warnings"));
    QCOMPARE(window()->messagePanel()->problems()->rowCount(), 3);
    QCOMPARE(window()->status()->placeText(),
             QStringLiteral("Line: 8, Column: 13, Line count: 12"));
    const QString after = m->document()->text();

    for (int i = 0; i < 20 && m->document()->text() != before; ++i) {
        m->press(Qt::Key_Z, Qt::ControlModifier);
    }
    QCOMPARE(m->document()->text(), before);
    QCOMPARE(m->problemsShown(), othersAlone);
    QTRY_VERIFY(shows(2, QStringLiteral("walk")));
    QVERIFY(!m->document()->isModified());
    for (int i = 0; i < 20 && m->document()->text() != after; ++i) {
        m->action("redo")->trigger();
    }
    QCOMPARE(m->document()->text(), after);
    QTRY_VERIFY(shows(3, QStringLiteral("power")));
    QCOMPARE(m->problemsShown(), QStringLiteral("3 errors, 0 warnings"));
}

void TestWindowPanels::jumpsToAMessage()
{
    m->open(*m_game, m_game->oda());
    MessagePanel* panel = window()->messagePanel();
    QCOMPARE(panel->problems()->rowCount(), 2);
    m->action("close_text")->trigger();
    QCOMPARE(window()->tabs()->count(), 0);
    doubleClickRow(panel, panel->model()->index(1, 0));
    QCOMPARE(m->document()->fileName(), m_game->oda());
    QCOMPARE(m->place().line, 4);
    QCOMPARE(m->place().column, 8);
    QVERIFY(m->edit()->hasFocus());
    const QPoint place = panel->visualRect(panel->model()->index(1, 0)).center();
    QHelpEvent help(QEvent::ToolTip, place, panel->viewport()->mapToGlobal(place));
    QApplication::sendEvent(panel->viewport(), &help);
    QTRY_VERIFY(QToolTip::text().contains(QLatin1String("'some'")));
    panel->setFocus();
    panel->setCurrentIndex(panel->model()->index(0, 0));
    QTest::keyClick(panel, Qt::Key_Return);
    QCOMPARE(m->place().line, 3);
}

void TestWindowPanels::keepsTheCurrentMessage()
{
    QByteArray text = "[info]\r\nname = \"Oda\"\r\n[constants]\r\nlife = 1000\r\n";
    for (int i = 0; i < 60; ++i) {
        text += "unknown line\r\n";
    }
    m_game->write("characters/oda/oda.character", text);
    m->open(*m_game, m_game->oda());
    MessagePanel* panel = window()->messagePanel();
    panel->setCurrentIndex(panel->model()->index(40, 0));
    const int scroll = panel->verticalScrollBar()->value();
    QVERIFY(scroll > 0);
    // A problem comes above it.
    m->goTo(3, 0);
    m->press(Qt::Key_End);
    m->type(QStringLiteral("1234567890"));
    QVERIFY(window()->problems()->settle());
    QCOMPARE(panel->problems()->rowCount(), 61);
    QCOMPARE(panel->currentIndex().row(), 41);
    QCOMPARE(panel->verticalScrollBar()->value(), scroll);
}

void TestWindowPanels::followsTheCursor()
{
    openAnimations();
    m->goTo(5, 0);
    QCOMPARE(animations()->currentIndex().row(), 1);
    QTRY_COMPARE(nodes()->lineNo(m->tree()->currentIndex()), 5);
    m->press(Qt::Key_Down);
    m->press(Qt::Key_Down);
    m->press(Qt::Key_Down);
    QCOMPARE(animations()->currentIndex().row(), 2);
    QTRY_COMPARE(nodes()->lineNo(m->tree()->currentIndex()), 8);
    m->press(Qt::Key_End);
    m->press(Qt::Key_Return);
    m->type(QStringLiteral("frame 0,3"));
    QCOMPARE(animations()->currentIndex().row(), 2);
    QVERIFY(m->action("anim_duplicate")->isEnabled());
    QVERIFY(window()->openFile(m_game->ryn()));
    QCOMPARE(animations()->model()->rowCount(), 0);
}

void TestWindowPanels::jumpsToANode()
{
    openAnimations();
    auto* panel = m->tree();
    panel->expandAll();
    const QModelIndex frame = nodes()->index(0, 0, nodes()->index(2, 0));
    QTest::mouseClick(panel->viewport(), Qt::LeftButton, {}, panel->visualRect(frame).center());
    QCOMPARE(m->place().line, 8);
    // Though an edit has made all rows older than the text.
    m->goTo(0, 0);
    m->press(Qt::Key_Return);
    panel->setFocus();
    panel->setCurrentIndex(frame);
    QTest::keyClick(panel, Qt::Key_Return);
    QCOMPARE(m->place().line, 9);
}

void TestWindowPanels::showsMarkupOfAGameAsText()
{
    m->open(*m_game, m_game->ryn());
    m->edit()->textCursor().insertText("[info]\nname = \"<img src='/dev/tty'> <b>x\"\n");
    QTreeView* tree = m->tree();
    const auto value = [this] { return nodes()->index(0, 0, nodes()->index(0, 0)); };
    QTRY_VERIFY(value().data().toString().contains("<img"));
    tree->expandAll();
    const QPoint place = tree->visualRect(value()).center();
    QHelpEvent help(QEvent::ToolTip, place, tree->viewport()->mapToGlobal(place));
    QApplication::sendEvent(tree->viewport(), &help);
    QVERIFY(QToolTip::text().contains("&lt;img"));
    QVERIFY(!QToolTip::text().contains("<img"));
    QToolTip::hideText();
    const QList<QLabel*> labels = window()->statusBar()->findChildren<QLabel*>();
    QVERIFY(!labels.isEmpty());
    for (const QLabel* label : labels) {
        QVERIFY(!label->isVisible() || label->textFormat() == Qt::PlainText);
    }
}

void TestWindowPanels::jumpsToAnAnimation()
{
    openAnimations();
    doubleClickRow(animations(), animations()->model()->index(2, 0));
    QCOMPARE(m->place().line, 7);
}

void TestWindowPanels::changesAnimations_data()
{
    columns<QString, int, QString, int, int>("action", "row", "expected", "current", "undoLine");
    row("duplicate", "anim_duplicate", 0, "1 4 2 3", 1, 4);
    row("remove", "anim_delete", 1, "1 3", 1, 4);
    row("remove the last", "anim_delete", 2, "1 2", 1, 7);
    row("up", "org_up", 2, "1 3 2", 1, 7);
    row("to the top", "org_top", 2, "3 1 2", 0, 7);
    row("down", "org_down", 0, "2 1 3", 1, 0);
    row("to the bottom", "org_bottom", 0, "2 3 1", 2, 0);
    // The last place is reached by what stands there going up.
    row("down to the end", "org_down10", 1, "1 3 2", 2, 7);
}

/// By the menu; one undo brings the old text back, and the cursor to the edit.
void TestWindowPanels::changesAnimations()
{
    const auto [action, row, expected, current, undoLine] =
        fetched<QString, int, QString, int, int>();
    openAnimations();
    m->dialogs.buttonAnswers = {Zorv::Dialogs::Yes};
    m->dialogs.textAnswers = QStringList(QStringLiteral("4"));
    const QString before = m->document()->text();
    QTest::mouseClick(animations()->viewport(), Qt::LeftButton, {},
                      animations()->visualRect(animations()->model()->index(row, 0)).center());
    QCoreApplication::processEvents();
    QAction* trigger = m->action(action.toLatin1().constData());
    QTRY_VERIFY(trigger->isEnabled());
    trigger->trigger();
    QCOMPARE(order(), expected);
    QCOMPARE(animations()->currentIndex().row(), current);
    m->action("undo")->trigger();
    QCOMPARE(m->place().line, undoLine);
    QCOMPARE(m->document()->text(), before);
    QCOMPARE(order(), QStringLiteral("1 2 3"));
}

/// The cursor, which follows the text that goes, does not take the selection along.
void TestWindowPanels::movesSeveralAnimations()
{
    openAnimations();
    const QString before = m->document()->text();
    const auto* organizer = window()->animations()->organizer();
    const auto place = [this](int row) {
        return animations()->visualRect(animations()->model()->index(row, 0)).center();
    };
    QTest::mouseClick(animations()->viewport(), Qt::LeftButton, {}, place(0));
    QTest::mouseClick(animations()->viewport(), Qt::LeftButton, Qt::ShiftModifier, place(1));
    QTRY_VERIFY(m->action("org_bottom")->isEnabled());
    m->action("org_bottom")->trigger();
    QCOMPARE(order(), QStringLiteral("3 1 2"));
    QCOMPARE(organizer->selectedRows(), QVector<int>({1, 2}));
    QCOMPARE(m->place().line,
             m->document()->animations()->animation(organizer->currentRow())->firstLine());
    m->action("org_up")->trigger();
    QCOMPARE(order(), QStringLiteral("1 2 3"));
    QCOMPARE(organizer->selectedRows(), QVector<int>({0, 1}));
    m->action("undo")->trigger();
    m->action("undo")->trigger();
    QCOMPARE(m->document()->text(), before);
    pressIn(animations(), Qt::Key_Delete);
    QCOMPARE(m->document()->animations()->count(), 2);
}

void TestWindowPanels::showsTheOrganizerBySetting()
{
    const QString key = QStringLiteral("show_organizer");
    auto* dock = window()->findChild<QDockWidget*>(QStringLiteral("organizer"));
    QVERIFY(dock);
    QTRY_VERIFY(dock->isVisible());
    QCOMPARE(m->host.extraEditor(0)->displayName(), dock->windowTitle());
    QCOMPARE(m->host.extraEditor(1), window()->thumbnails()->panel());
    QCOMPARE(m->host.extraEditor(2)->name(), QStringLiteral("pal"));
    QVERIFY(!m->host.extraEditor(3));
    dock->close();
    QCOMPARE(m->host.option(key), QVariant(false));
    m->host.setOption(key, true);
    window()->reconfig();
    QVERIFY(dock->isVisible());
}

void TestWindowPanels::putsANewAnimationOnLinesOfItsOwn()
{
    m_game->write("characters/ryn/basic.anim", "animation 7\r\nframe 0,0 loop");
    openAnimations();
    const auto add = [this](const QString& identifier, int place) {
        QTimer::singleShot(0, this, [=] {
            auto* dialog =
                qobject_cast<App::NewAnimationDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            dialog->findChild<QLineEdit*>()->setText(identifier);
            dialog->findChild<QComboBox*>()->setCurrentIndex(place);
            dialog->accept();
        });
        m->action("anim_add")->trigger();
    };
    add(QStringLiteral("8"), 1);
    QVERIFY(m->document()->text().startsWith(
        QLatin1String("animation 7\nframe 0,0 loop\n\nanimation 8\nframe")));
    add(QStringLiteral("jab"), 0);
    QCOMPARE(order(), QStringLiteral("jab 7 8"));
    QVERIFY(m->document()->text().contains(QLatin1String("\n\nanimation 7\n")));
    m->action("undo")->trigger();
    m->action("undo")->trigger();
    QCOMPARE(m->document()->text(), QStringLiteral("animation 7\nframe 0,0 loop"));
}

void TestWindowPanels::dropsAnimations_data()
{
    columns<QVector<int>, int, QString>("rows", "target", "expected");
    row("down", QVector<int>{0}, 2, "2 1 3 4 5");
    row("behind the last", QVector<int>{0}, 5, "2 3 4 5 1");
    row("to the front", QVector<int>{4}, 0, "5 1 2 3 4");
    row("two together", QVector<int>{1, 2}, 4, "1 4 2 3 5");
    row("from both sides", QVector<int>{0, 4}, 2, "2 1 5 3 4");
    row("where it is", QVector<int>{2}, 2, "1 2 3 4 5");
}

/// Drags as the view makes them, dropped on the view.
void TestWindowPanels::dropsAnimations()
{
    const auto [rows, target, expected] = fetched<QVector<int>, int, QString>();
    QByteArray text;
    for (int i = 1; i <= 5; ++i) {
        text += "animation " + QByteArray::number(i) + "\r\nframe 0,0 loop\r\n\r\n";
    }
    m_game->write("characters/ryn/basic.anim", text);
    openAnimations();
    const QString before = m->document()->text();
    QAbstractItemModel* model = animations()->model();
    QModelIndexList indexes;
    for (int row : qAsConst(rows)) {
        indexes.append(model->index(row, 0));
    }
    const std::unique_ptr<QMimeData> data(model->mimeData(indexes));
    const QRect last = animations()->visualRect(model->index(4, 0));
    const QPoint place = target < 5 ? animations()->visualRect(model->index(target, 0)).topLeft()
                                    : QPoint(last.left() + 5, last.bottom() + 30);
    QDragEnterEvent enter(place, Qt::MoveAction, data.get(), Qt::LeftButton, {});
    QApplication::sendEvent(animations()->viewport(), &enter);
    QDragMoveEvent move(place, Qt::MoveAction, data.get(), Qt::LeftButton, {});
    QApplication::sendEvent(animations()->viewport(), &move);
    QVERIFY(move.isAccepted());
    QDropEvent drop(place, Qt::MoveAction, data.get(), Qt::LeftButton, {});
    QApplication::sendEvent(animations()->viewport(), &drop);
    QCOMPARE(order(), expected);
    QCOMPARE(animations()->selectionModel()->selectedIndexes().size(), rows.size());
    if (m->document()->text() != before) {
        m->action("undo")->trigger();
    }
    QCOMPARE(m->document()->text(), before);
}

void TestWindowPanels::refusesDropsFromElsewhere()
{
    openAnimations();
    QAbstractItemModel* model = animations()->model();
    const std::unique_ptr<QMimeData> own(model->mimeData({model->index(0, 0)}));
    const std::unique_ptr<QMimeData> foreign(
        m->document()->animations()->mimeData({m->document()->animations()->index(0)}));
    QVERIFY(model->canDropMimeData(own.get(), Qt::MoveAction, 2, 0, {}));
    QVERIFY(!model->canDropMimeData(own.get(), Qt::CopyAction, 2, 0, {}));
    QVERIFY(!model->canDropMimeData(foreign.get(), Qt::MoveAction, 2, 0, {}));
    QVERIFY(window()->openFile(m_game->ryn()));
    QVERIFY(!model->dropMimeData(own.get(), Qt::MoveAction, 0, 0, {}));
    QVERIFY(!m->document()->isModified());
}

void TestWindowPanels::hasMenusAtThePointer_data()
{
    columns<QString, QString>("part", "action");
    row("stage", "stage", "anim_next_frame");
    row("time line", "time line", "anim_play");
    row("animations", "animations", "org_down");
    row("game", "game", "close_project");
    row("nodes", "nodes", "code_fold_all");
    row("tabs", "tabs", "close_text");
    row("sprites", "sprites", "spr_add");
}

/// By the mouse, and by both keys that mean it; of the actions of the window alone.
void TestWindowPanels::hasMenusAtThePointer()
{
    QFETCH(QString, part);
    QFETCH(QString, action);
    openAnimations();
    m->goTo(0);
    const QHash<QString, QWidget*> parts{{"stage", window()->stage()->view()},
                                         {"time line", window()->stage()->workspace()->timeLine()},
                                         {"animations", animations()},
                                         {"game", window()->gameTree()},
                                         {"nodes", m->tree()},
                                         {"tabs", window()->tabs()->bar()},
                                         {"sprites", window()->spritePanel()->list()}};
    QWidget* widget = parts.value(part);
    const QPoint place = widget->rect().center();
    bool isThere = false;
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [&] {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            isThere = menu->actions().contains(m->action(qPrintable(action)));
            menu->close();
        }
    });
    watch.start(0);
    for (const auto reason : {QContextMenuEvent::Mouse, QContextMenuEvent::Keyboard}) {
        isThere = false;
        QContextMenuEvent event(reason, place, widget->mapToGlobal(place));
        QApplication::sendEvent(widget, &event);
        QTRY_VERIFY(isThere);
    }
    isThere = false;
    QTest::keyClick(widget, Qt::Key_F10, Qt::ShiftModifier);
    QTRY_VERIFY(isThere);
}

/// Not for the line of the cursor, which the right button leaves where it is.
void TestWindowPanels::menuOfNodesIsForTheirRow()
{
    openAnimations();
    m->goTo(0);
    QTRY_COMPARE(nodes()->lineNo(m->tree()->currentIndex()), 0);
    const QModelIndex second = nodes()->index(1, 0);
    const QPoint place = m->tree()->visualRect(second).center();
    QTest::mouseClick(m->tree()->viewport(), Qt::RightButton, {}, place);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, m->tree()->mapToGlobal(place));
    QApplication::sendEvent(m->tree(), &event);
    QTRY_VERIFY(QApplication::activePopupWidget());
    QApplication::activePopupWidget()->close();
    QCOMPARE(m->place().line, nodes()->lineNo(second));
}

void TestWindowPanels::movesWhatHasTheFocus()
{
    openAnimations();
    const QString before = m->document()->text();
    m->goTo(4);
    m->edit()->setFocus();
    m->press(Qt::Key_Up, Qt::AltModifier);
    QVERIFY(m->document()->text().startsWith(
        QStringLiteral("animation 1 \"One\"\nbody 0,0, 9,9\nframe 0,0 loop\nanimation 2")));
    m->action("undo")->trigger();
    QCOMPARE(m->document()->text(), before);
    m->goTo(4);
    animations()->setFocus();
    QTest::keyClick(animations(), Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(order(), QStringLiteral("2 1 3"));
    QVERIFY(window()->registry()->clashes().isEmpty());
}

QTEST_MAIN(TestWindowPanels)
#include "tst_windowpanels.moc"
