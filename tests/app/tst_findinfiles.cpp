#include "app/search/findinfiles.h"

#include "windowfixture.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QtTest>

using namespace App;

/// The panel in the window, used by keys.
class TestFindInFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void findsAndGoesThere();
    void staysTrue();
    void replacesWhatIsTicked();
    void aFileThatHasChangedStays();

private:
    template <class Widget>
    Widget* part(const char* name) const
    {
        return window->findInFiles()->findChild<Widget*>(QLatin1String(name));
    }
    void look(const char* action, const QString& text) const
    {
        window->actionByName(action)->trigger();
        auto* field = part<QComboBox>("find_files_text");
        field->lineEdit()->selectAll();
        QTest::keyClicks(field->lineEdit(), text);
        QTest::keyClick(field->lineEdit(), Qt::Key_Return);
    }
    QString state() const { return part<QLabel>("find_files_state")->text(); }
    QAbstractItemModel* model() const { return part<QTreeView>("find_files_tree")->model(); }
    QStringList rows() const
    {
        QStringList all;
        for (int file = 0; file < model()->rowCount(); ++file) {
            const QModelIndex parent = model()->index(file, 0);
            all.append(parent.data().toString());
            for (int i = 0; i < model()->rowCount(parent); ++i) {
                all.append(model()->index(i, 0, parent).data().toString());
            }
        }
        return all;
    }

    std::unique_ptr<TemporaryGame> game;
    std::unique_ptr<WindowFixture> fixture;
    MainWindow* window = nullptr;
};

void TestFindInFiles::init()
{
    game = std::make_unique<TemporaryGame>();
    fixture = std::make_unique<WindowFixture>();
    window = fixture->window.get();
    fixture->open(*game, game->ryn(), game->animations());
}

void TestFindInFiles::cleanup()
{
    fixture.reset();
    game.reset();
}

void TestFindInFiles::findsAndGoesThere()
{
    look("find_in_files", "forward");
    const QStringList expected{"characters/oda/oda.character (1)", "7: forward = 2",
                               "characters/ryn/ryn.character (1)", "9: forward = 2.5"};
    QTRY_COMPARE(rows(), expected);
    QTRY_VERIFY(state().contains("2 places in 2 files"));
    // The file of a project that is closed.
    auto* tree = part<QTreeView>("find_files_tree");
    tree->setFocus();
    tree->setCurrentIndex(model()->index(0, 0, model()->index(0, 0)));
    QTest::keyClick(tree, Qt::Key_Return);
    QCOMPARE(fixture->document()->fileName(), game->oda());
    QCOMPARE(fixture->edit()->textCursor().selectedText(), QString("forward"));
    look("find_in_files", "no such text");
    QTRY_COMPARE(state(), QString("Nothing found"));
}

/// A text that is not saved, one that is taken back, and files on the disk.
void TestFindInFiles::staysTrue()
{
    look("find_in_files", "frame 0,1");
    QTRY_COMPARE(rows(), (QStringList{"characters/ryn/basic.anim (1)", "6: frame 0,1 loop"}));
    fixture->goTo(0);
    fixture->type("# frame 0,1");
    fixture->press(Qt::Key_Return);
    QTRY_COMPARE(rows(), (QStringList{"characters/ryn/basic.anim (2)", "1: # frame 0,1",
                                      "7: frame 0,1 loop"}));
    while (fixture->document()->isModified()) {
        fixture->document()->undo();
    }
    QTRY_COMPARE(rows().size(), 2);
    game->write("shared/new.code", "# frame 0,1\n");
    QTRY_COMPARE_WITH_TIMEOUT(rows().size(), 4, 20000);
    QVERIFY(QFile::remove(game->path("shared/new.code")));
    QTRY_COMPARE_WITH_TIMEOUT(rows().size(), 2, 20000);
}

void TestFindInFiles::replacesWhatIsTicked()
{
    look("replace_in_files", "loop");
    QTRY_COMPARE(rows().size(), 4);
    QTRY_VERIFY(part<QToolButton>("find_files_replace")->isEnabled());
    const QModelIndex second = model()->index(1, 0, model()->index(0, 0));
    QVERIFY(model()->setData(second, Qt::Unchecked, Qt::CheckStateRole));
    QTest::keyClicks(part<QComboBox>("find_files_with")->lineEdit(), "delay 3");
    const QByteArray before = game->read("characters/ryn/basic.anim");
    fixture->dialogs.buttonAnswers = {Zorv::Dialogs::Yes};
    QTest::mouseClick(part<QToolButton>("find_files_replace"), Qt::LeftButton);
    const QString text = fixture->document()->text();
    QCOMPARE(text.count("delay 3"), 2);
    QVERIFY(text.contains("frame 0,1 loop"));
    QCOMPARE(game->read("characters/ryn/basic.anim"), before);
    QTRY_COMPARE(rows(), (QStringList{"characters/ryn/basic.anim (1)", "6: frame 0,1 loop"}));
    fixture->document()->undo();
    QVERIFY(!fixture->document()->isModified());
    QTRY_COMPARE(rows().size(), 4);

    look("replace_in_files", "full");  // in a file that is not open
    QTRY_COMPARE(rows().size(), 2);
    QTRY_VERIFY(part<QToolButton>("find_files_replace")->isEnabled());
    fixture->dialogs.buttonAnswers = {Zorv::Dialogs::No, Zorv::Dialogs::Yes};
    QTest::mouseClick(part<QToolButton>("find_files_replace"), Qt::LeftButton);
    QVERIFY(game->read("characters/oda/oda.character").contains("life = full\r\n"));
    QVERIFY(fixture->dialogs.texts("question").last().contains("not open"));
    QTest::mouseClick(part<QToolButton>("find_files_replace"), Qt::LeftButton);
    QVERIFY(game->read("characters/oda/oda.character").contains("life = delay 3\r\n"));
    QTRY_COMPARE(state(), QString("Nothing found"));
}

/// Changed on the disk while the question is open.
void TestFindInFiles::aFileThatHasChangedStays()
{
    look("replace_in_files", "full");
    QTRY_COMPARE(rows().size(), 2);
    QTRY_VERIFY(part<QToolButton>("find_files_replace")->isEnabled());
    fixture->dialogs.buttonAnswers = {Zorv::Dialogs::Yes};
    fixture->dialogs.whileOpen = [this](const PlannedDialogs::Shown& shown) {
        if (shown.kind == "question") {
            game->write("characters/oda/oda.character", "# full\r\n");
        }
    };
    QTest::mouseClick(part<QToolButton>("find_files_replace"), Qt::LeftButton);
    QCOMPARE(game->read("characters/oda/oda.character"), QByteArray("# full\r\n"));
    QVERIFY(fixture->dialogs.texts("warning").last().contains("oda.character"));
}

QTEST_MAIN(TestFindInFiles)
#include "tst_findinfiles.moc"
