#include "app/code/definitionjumps.h"
#include "app/code/wordhover.h"
#include "app/code/wordpopup.h"
#include "family/completer/completerfile.h"
#include "family/familydocument.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"
#include "support/folders.h"
#include "support/testinterface.h"
#include "support/testtable.h"

#include <zorv/editors/code/codeeditor.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QDir>
#include <QHelpEvent>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QToolTip>
#include <QtTest>
#include <memory>

using namespace App;
using Family::FamilyDocument;
using Family::FamilyProject;

namespace {

constexpr char mainText[] = "[files]\r\nanimations = \"hero.anim\"\r\n"
                            "[constants]\r\nlief = 5\r\nturns = yes\r\n"
                            "[palette <b>]\r\nfile = \"red.act\"\r\n"
                            "[move jab]\r\nanimation = 200\r\n";
constexpr char animText[] = "animation 1\r\nframe 0,0 loop\r\n"
                            "animation 200 \"<i>Jab</i>\"\r\nframe 200,0 loop\r\n";

}  // namespace

/// Popup, hover and jumps on an editor with a project of two files, by keys and mouse.
class TestCodeHelp : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void wordTakesThePlaceOfTheWhole_data();
    void wordTakesThePlaceOfTheWhole();
    void keysThatEndAWord_data();
    void keysThatEndAWord();
    void nothingToOffer();
    void hover_data();
    void hover();
    void jumpsAndBack();
    void jumpsToFiles();
    void backToATextThatIsClosed();
    void clickWithControl();

private:
    QPoint pointAt(int line, int column) const;
    void mouse(QEvent::Type type, const QPoint& point, Qt::MouseButton button,
               Qt::KeyboardModifiers modifiers) const;
    void start(const QString& text);
    FamilyDocument* document(int index) const { return project->documents().at(index); }
    QAbstractItemView* popup() const { return editor->completer()->popup(); }
    QString place() const;
    QWidget* mark() const { return editor->findChild<QWidget*>(QStringLiteral("link_mark")); }

    QTemporaryDir folder;
    TestInterface host;
    std::unique_ptr<Family::FamilyParentProject> game;
    FamilyProject* project = nullptr;
    std::unique_ptr<Zorv::CodeEditor> editor;
    WordPopup* words = nullptr;
    DefinitionJumps* jumps = nullptr;
    QStringList told;
    QString opened;
};

void TestCodeHelp::initTestCase()
{
    setGlobalInterface(&host);
    const QDir hero(folder.filePath(QStringLiteral("characters/hero")));
    QVERIFY(QDir().mkpath(hero.path()));
    const QPair<const char*, QByteArray> files[] = {
        {"hero.character", mainText}, {"hero.anim", animText}, {"red.act", "palette"}};
    for (const auto& row : files) {
        QVERIFY(writeFile(hero.filePath(QLatin1String(row.first)), row.second));
    }
    QVERIFY(writeFile(folder.filePath(Family::completerFileName()), Family::completerXml()));
}

void TestCodeHelp::init()
{
    game = std::make_unique<Family::FamilyParentProject>(folder.path());
    QString error;
    project = FamilyProject::open(
        game.get(), folder.filePath(QStringLiteral("characters/hero/hero.character")), &error);
    QVERIFY2(project, qPrintable(error));
    editor = std::make_unique<Zorv::CodeEditor>();
    editor->resize(600, 400);
    editor->setDocument(document(0));
    words = new WordPopup(editor.get());
    new WordHover(editor.get());
    JumpServices services;
    services.show = [this](FamilyDocument* target, int line, int column) {
        editor->setDocument(target);
        editor->setCurrentLine({line, column, 0});
    };
    services.open = [this](const QString& fileName) {
        opened = QFileInfo(fileName).fileName();
        const bool isKnown = fileName == document(0)->fileName();
        editor->setDocument(isKnown ? document(0) : editor->codeDocument());
        return isKnown;
    };
    services.tell = [this](const QString& text) { told.append(text); };
    jumps = new DefinitionJumps(editor.get(), services);
    editor->show();
    QVERIFY(QTest::qWaitForWindowExposed(editor.get()));
    // Also where there is no window manager.
    QApplication::setActiveWindow(editor.get());
    editor->setFocus();
    QVERIFY(editor->completerFromFile(folder.filePath(Family::completerFileName())));
    QCOMPARE(editor->completerError(), QString());
    told.clear();
    opened.clear();
}

void TestCodeHelp::cleanup()
{
    editor.reset();
    project->release();
    game.reset();
}

/// Puts the text into the file in front, with the cursor where '|' stands.
void TestCodeHelp::start(const QString& text)
{
    const int cursor = text.indexOf(QLatin1Char('|'));
    document(0)->setPlainText(QString(text).remove(QLatin1Char('|')));
    QTextCursor at(document(0));
    at.setPosition(cursor);
    editor->setTextCursor(at);
}

QString TestCodeHelp::place() const
{
    const QTextCursor cursor = editor->textCursor();
    const auto* front = static_cast<FamilyDocument*>(editor->codeDocument());
    return QStringLiteral("%1:%2:%3")
        .arg(QFileInfo(front->fileName()).fileName())
        .arg(cursor.blockNumber() + 1)
        .arg(cursor.positionInBlock() + 1);
}

/// The middle of a character.
QPoint TestCodeHelp::pointAt(int line, int column) const
{
    QTextCursor cursor(editor->document()->findBlockByNumber(line));
    cursor.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, column);
    const QPoint left = editor->cursorRect(cursor).center();
    cursor.movePosition(QTextCursor::Right);
    return (left + editor->cursorRect(cursor).center()) / 2;
}

void TestCodeHelp::mouse(QEvent::Type type, const QPoint& point, Qt::MouseButton button,
                         Qt::KeyboardModifiers modifiers) const
{
    QMouseEvent event(type, point, editor->viewport()->mapToGlobal(point), button,
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::MouseButtons(button),
                      modifiers);
    QApplication::sendEvent(editor->viewport(), &event);
}

// clang-format off
void TestCodeHelp::wordTakesThePlaceOfTheWhole_data()
{
    columns<QString, QString, QString>("before", "keys", "after");
    QTest::newRow("with its own case") << "[CON|]" << "" << "[constants]";
    QTest::newRow("all of the word") << "[constants]\ntu|xx = yes" << "" << "[constants]\nturns = yes";
    QTest::newRow("none yet") << "[constants]\nturns = |" << "y" << "[constants]\nturns = yes";
    QTest::newRow("one with a dash") << "[move a]\nanimation = x-|\nanimation x-ray" << "" << "[move a]\nanimation = x-ray\nanimation x-ray";
    QTest::newRow("a file") << "[palette a]\nfile = |" << "" << "[palette a]\nfile = \"red.act\"";
    QTest::newRow("a file in quotes") << "[palette a]\nfile = \"bl|ue.act\" # x" << "" << "[palette a]\nfile = \"red.act\" # x";
}
// clang-format on

void TestCodeHelp::wordTakesThePlaceOfTheWhole()
{
    const auto [before, keys] = fetched<QString, QString>();
    start(before);
    QVERIFY(words->open());
    QTest::keyClicks(popup(), keys);
    if (!popup()->currentIndex().isValid()) {
        QTest::keyClick(popup(), Qt::Key_Down);
    }
    QTest::keyClick(popup(), Qt::Key_Return);
    QTEST(document(0)->toPlainText(), "after");
    QVERIFY(!popup()->isVisible());
}

// clang-format off
void TestCodeHelp::keysThatEndAWord_data()
{
    columns<QString, QString, int, QString>("before", "typed", "last", "after");
    const QString head = QStringLiteral("[constants]\nturns =");
    QTest::newRow("return on a part") << head + "|" << " y" << int(Qt::Key_Return) << head + " yes";
    QTest::newRow("return on the whole") << head + "|" << " yes" << int(Qt::Key_Return) << head + " yes\n";
    QTest::newRow("blank") << "|" << "[mo" << int(Qt::Key_Space) << "[mo ";
    QTest::newRow("return on the first") << head + "|" << " " << int(Qt::Key_Return) << head + " no";
    QTest::newRow("in a comment") << "# |" << "[lay" << int(Qt::Key_Tab) << "# [layer";
}
// clang-format on

/// The words of the generated file open by themselves.
void TestCodeHelp::keysThatEndAWord()
{
    const auto [before, typed, last] = fetched<QString, QString, int>();
    start(before);
    for (const QChar key : typed) {
        QTest::keyClicks(popup()->isVisible() ? popup() : static_cast<QWidget*>(editor.get()), key);
    }
    QVERIFY(popup()->isVisible());
    QTest::keyClick(popup(), Qt::Key(last));
    QVERIFY(!popup()->isVisible());
    QTEST(document(0)->toPlainText(), "after");
}

void TestCodeHelp::nothingToOffer()
{
    start(QStringLiteral("# a comment|"));
    QVERIFY(!words->open());
    start(QStringLiteral("[|]"));
    editor->setReadOnly(true);
    QVERIFY(!words->open());
    editor->setReadOnly(false);
    editor->setDocument(nullptr);
    QVERIFY(!words->open());
}

// clang-format off
void TestCodeHelp::hover_data()
{
    columns<int, int, QString>("line", "column", "tip");
    QTest::newRow("group") << 2 << 3 << "<b>[constants]</b>";
    QTest::newRow("choice") << 4 << 9 << "<b>yes</b>";
    QTest::newRow("a message stays first") << 3 << 1 << "has no key 'lief'";
    QTest::newRow("animation") << 8 << 13 << "&lt;i&gt;Jab&lt;/i&gt;";
    QTest::newRow("text is no mark-up") << 6 << 9 << "red.act";
    QTest::newRow("nothing is known") << 3 << 5 << "";
}
// clang-format on

void TestCodeHelp::hover()
{
    const auto [line, column, tip] = fetched<int, int, QString>();
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
    const QPoint point = pointAt(line, column);
    QHelpEvent event(QEvent::ToolTip, point, editor->viewport()->mapToGlobal(point));
    QApplication::sendEvent(editor->viewport(), &event);
    if (tip.isEmpty()) {
        QVERIFY2(!QToolTip::isVisible(), qPrintable(QToolTip::text()));
    } else {
        QVERIFY2(QToolTip::text().contains(tip), qPrintable(QToolTip::text()));
    }
}

void TestCodeHelp::jumpsAndBack()
{
    editor->setCurrentLine({8, 14, 0});
    jumps->goToDefinition();
    QCOMPARE(place(), QStringLiteral("hero.anim:3:11"));
    // The place moves with the text.
    QTextCursor top(document(0));
    top.insertText(QStringLiteral("# above\n"));
    jumps->goBack();
    QCOMPARE(place(), QStringLiteral("hero.character:10:15"));
    jumps->goBack();
    QCOMPARE(told.size(), 1);
    jumps->goToDefinition();
    editor->setCurrentLine({0, 0, 0});
    jumps->goToDefinition();
    QCOMPARE(told.size(), 2);
    for (int i = 0; i < 60; ++i) {
        editor->setDocument(document(0));
        editor->setCurrentLine({9, 14, 0});
        jumps->goToDefinition();
    }
    for (int i = 0; i < 50; ++i) {
        jumps->goBack();
    }
    QCOMPARE(told.size(), 2);
    jumps->goBack();
    QCOMPARE(told.size(), 3);
}

void TestCodeHelp::jumpsToFiles()
{
    editor->setCurrentLine({1, 15, 0});
    jumps->goToDefinition();
    QCOMPARE(opened, QStringLiteral("hero.anim"));
    // It could not be opened, which leaves nothing to go back to.
    jumps->goBack();
    QCOMPARE(told.size(), 1);
    opened.clear();
    editor->setCurrentLine({6, 10, 0});
    jumps->goToDefinition();
    QVERIFY(told.last().contains(QStringLiteral("red.act")));
    QVERIFY(opened.isEmpty());
}

void TestCodeHelp::backToATextThatIsClosed()
{
    FamilyDocument other(Family::FileKind::Code);
    other.setFileName(document(0)->fileName());
    other.setPlainText(QStringLiteral("[move a]\nanimation = 1\nanimation 1\n"));
    editor->setDocument(&other);
    editor->setCurrentLine({1, 12, 0});
    jumps->goToDefinition();
    QCOMPARE(place(), QStringLiteral("hero.character:3:11"));
    editor->setDocument(document(1));
    {
        // The text ends here, and its file can be opened again.
        FamilyDocument brief(Family::FileKind::Code);
        brief.setFileName(document(0)->fileName());
        brief.setPlainText(QStringLiteral("[move a]\nanimation = 1\nanimation 1\n"));
        editor->setDocument(&brief);
        editor->setCurrentLine({1, 12, 0});
        jumps->goToDefinition();
    }
    QCOMPARE(editor->codeDocument(), nullptr);
    jumps->goBack();
    QCOMPARE(place(), QStringLiteral("hero.character:2:13"));
    QCOMPARE(editor->codeDocument(), document(0));
}

void TestCodeHelp::clickWithControl()
{
    const QPoint word = pointAt(8, 13);
    mouse(QEvent::MouseMove, word, Qt::NoButton, Qt::NoModifier);
    QVERIFY(!mark()->isVisible());
    mouse(QEvent::MouseMove, word, Qt::NoButton, Qt::ControlModifier);
    QVERIFY(mark()->isVisible());
    QCOMPARE(editor->viewport()->cursor().shape(), Qt::PointingHandCursor);
    const QRect line = mark()->geometry();
    QVERIFY(line.left() < word.x() && word.x() < line.right() && line.top() > word.y());
    QTest::keyRelease(editor.get(), Qt::Key_Control);
    QVERIFY(!mark()->isVisible());

    mouse(QEvent::MouseMove, pointAt(8, 3), Qt::NoButton, Qt::ControlModifier);
    QVERIFY2(!mark()->isVisible(), "a key names nothing that stands elsewhere");
    mouse(QEvent::MouseButtonPress, pointAt(8, 3), Qt::LeftButton, Qt::ControlModifier);
    QCOMPARE(place().section(':', 0, 1), QStringLiteral("hero.character:9"));
    mouse(QEvent::MouseButtonRelease, pointAt(8, 3), Qt::LeftButton, Qt::ControlModifier);

    mouse(QEvent::MouseButtonPress, word, Qt::LeftButton, Qt::ControlModifier);
    QCOMPARE(place(), QStringLiteral("hero.anim:3:11"));
    QVERIFY(!mark()->isVisible());
    jumps->goBack();
    QCOMPARE(place().section(':', 0, 1), QStringLiteral("hero.character:9"));
}

QTEST_MAIN(TestCodeHelp)
#include "tst_codehelp.moc"
