#include "editors/code/codeeditor.h"

#include "editors/code/completionmodel.h"
#include "support/testgrammar.h"
#include "support/testtable.h"

#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <QCompleter>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace Zorv;

namespace {

const char* const words = R"(<?xml version="1.0"?>
<completer version="1">
    <words trigger="air= air=o">
        <word text="yes" description="Anywhere"/>
        <word text="no"/>
        <word text="Only" description="In the air"/>
    </words>
    <words trigger="[m"><word text="move"/><word text="music"/></words>
    <words trigger="(">
        <word text="first"/><word text="second"/>
    </words>
</completer>
)";

QByteArray rootOf(const QByteArray& content)
{
    return "<completer version=\"1\">" + content + "</completer>";
}

QByteArray manyWords(int count, const QByteArray& trigger)
{
    QByteArray content = "<words trigger=\"" + trigger + "\">";
    for (int i = 0; i < count; ++i) {
        content += "<word text=\"w" + QByteArray::number(i) + "\"/>";
    }
    return rootOf(content + "</words>");
}

}  // namespace

/// The popup on the screen, by the keys of a person.
class TestCodeCompletion : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void opens_data();
    void opens();
    void popupKeys_data();
    void popupKeys();
    void wordsFollowThePrefix();
    void descriptionsStandInThePopup();
    void hostOpensIt();
    void replacesTheWord_data();
    void replacesTheWord();
    void modelsGoUnderThePopup();
    void documentsGoUnderThePopup();
    void readOnlyStaysWhole();
    void brokenFiles_data();
    void brokenFiles();
    void missingFileHasNoWords();

private:
    bool load(const QByteArray& content);
    void start(const QString& text);
    void type(const QString& text) { QTest::keyClicks(target(), text); }
    QWidget* target() const;
    QAbstractItemView* popup() const { return editor->completer()->popup(); }
    QString current() const { return popup()->currentIndex().data().toString(); }
    QStringList shown() const;
    QString text() const { return editor->document()->toPlainText(); }

    QTemporaryDir folder;
    std::unique_ptr<GrammarDocument> document;
    std::unique_ptr<CodeEditor> editor;
};

void TestCodeCompletion::init()
{
    document = std::make_unique<GrammarDocument>();
    editor = std::make_unique<CodeEditor>();
    editor->resize(400, 300);
    editor->setDocument(document.get());
    editor->show();
    QVERIFY(QTest::qWaitForWindowExposed(editor.get()));
    // Also where there is no window manager.
    QApplication::setActiveWindow(editor.get());
    editor->setFocus();
    QVERIFY(load(words));
    QCOMPARE(editor->completerError(), QString());
}

void TestCodeCompletion::cleanup()
{
    editor.reset();
    document.reset();
}

bool TestCodeCompletion::load(const QByteArray& content)
{
    QFile file(folder.filePath(QStringLiteral("completer.xml")));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() &&
           (file.close(), editor->completerFromFile(file.fileName()));
}

void TestCodeCompletion::start(const QString& text)
{
    document->setPlainText(text);
    editor->moveCursor(QTextCursor::End);
}

/// Keys go where Qt sends them: to the popup while it is open.
QWidget* TestCodeCompletion::target() const
{
    return popup()->isVisible() ? static_cast<QWidget*>(popup()) : editor.get();
}

QStringList TestCodeCompletion::shown() const
{
    QStringList rows;
    for (int i = 0; popup()->isVisible() && i < popup()->model()->rowCount(); ++i) {
        rows.append(popup()->model()->index(i, 0).data().toString());
    }
    return rows;
}

void TestCodeCompletion::opens_data()
{
    columns<QString, QString, QStringList>("before", "keys", "rows");
    const QStringList air{"no", "Only", "yes"};
    const QStringList groups{"move", "music"};
    const QStringList places{"first", "second"};
    const QStringList none;
    row("a sign that ends a word closes", "", "air=", none);
    row("the blank behind it opens", "", "air= ", air);
    row("blanks in the line do not count", "  air  =", " ", air);
    row("case does not count", "", "AIR= ", air);
    row("with the first letter", "air=", "o", air);
    row("another letter", "air=", "x", none);
    row("inside a word", "st", "air= ", none);
    row("behind a digit", "1", "air= ", none);
    row("behind a full stop", "a.", "air= ", none);
    row("behind another sign", "-", "air= ", air);
    row("a bracket is no end of a word", "", "(", places);
    row("goes on with the word", "", "[mu", groups);
    row("closes at its end", "", "[mu]", none);
    row("a tab is no blank", "air\t=", " ", none);
    row("a long line", QString(100000, u'-') + "[", "m", groups);
}

void TestCodeCompletion::opens()
{
    const auto [before, keys] = fetched<QString, QString>();
    start(before);
    for (const QChar key : keys) {
        type(key);
    }
    QTEST(shown(), "rows");
    QCOMPARE(text(), before + keys);
}

void TestCodeCompletion::popupKeys_data()
{
    columns<int, int, QString, bool>("key", "modifiers", "text", "isOpen");
    row("return", int(Qt::Key_Return), 0, "[move", false);
    row("enter", int(Qt::Key_Enter), 0, "[move", false);
    row("tab", int(Qt::Key_Tab), 0, "[move", false);
    row("backtab", int(Qt::Key_Backtab), 0, "[mo", false);
    row("escape", int(Qt::Key_Escape), 0, "[mo", false);
    row("backspace", int(Qt::Key_Backspace), 0, "[m", true);
    row("another modifier", int(Qt::Key_V), int(Qt::AltModifier), "[mov", false);
    row("shift alone", int(Qt::Key_Shift), 0, "[mo", true);
    row("a key without a text", int(Qt::Key_Left), 0, "[mo", false);
}

void TestCodeCompletion::popupKeys()
{
    const auto [key, modifiers] = fetched<int, int>();
    start(QStringLiteral("["));
    type(QStringLiteral("m"));
    type(QStringLiteral("o"));
    QCOMPARE(current(), QStringLiteral("move"));
    QTest::keyClick(target(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QTEST(text(), "text");
    QTEST(popup()->isVisible(), "isOpen");
}

void TestCodeCompletion::wordsFollowThePrefix()
{
    start(QStringLiteral("air="));
    type(QStringLiteral(" "));
    QCOMPARE(current(), QStringLiteral("no"));
    type(QStringLiteral("o"));
    QCOMPARE(current(), QStringLiteral("Only"));
    QCOMPARE(shown().size(), 3);
    QTest::keyClick(target(), Qt::Key_Down);
    QCOMPARE(current(), QStringLiteral("yes"));
    // What is typed stays as it is.
    QTest::keyClick(target(), Qt::Key_Up);
    QTest::keyClick(target(), Qt::Key_Return);
    QCOMPARE(text(), QStringLiteral("air= only"));
}

void TestCodeCompletion::descriptionsStandInThePopup()
{
    start(QStringLiteral("air="));
    type(QStringLiteral(" "));
    const QModelIndex only = popup()->model()->index(1, 0);
    QCOMPARE(only.data(Qt::ToolTipRole).toString(), QStringLiteral("In the air"));
    QCOMPARE(only.data(Qt::AccessibleDescriptionRole).toString(), QStringLiteral("In the air"));
    const int most = popup()->fontMetrics().horizontalAdvance(QStringLiteral("OnlyIn the air"));
    QVERIFY2(popup()->width() > most, "a row has no room for word and description");
    QCOMPARE(popup()->mapToGlobal(QPoint()).x(),
             editor->viewport()->mapToGlobal(editor->cursorRect().topLeft()).x());

    // The description is drawn: the right half of its row is not plain ground.
    const QImage row = popup()->viewport()->grab(popup()->visualRect(only)).toImage();
    const QRgb ground = row.pixel(row.width() / 2, 0);
    int inked = 0;
    for (int x = row.width() / 2; x < row.width(); ++x) {
        for (int y = 0; y < row.height(); ++y) {
            inked += row.pixel(x, y) != ground;
        }
    }
    QVERIFY(inked > 10);
}

void TestCodeCompletion::hostOpensIt()
{
    CompletionModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setWords(
        {{"beta", "2"}, {"Alpha", "1"}, {"", "nothing"}, {"beta", "twice"}, {"alb", ""}});
    QCOMPARE(model.stringList(), QStringList({"alb", "Alpha", "beta"}));
    QCOMPARE(model.index(2).data(CompletionModel::DescriptionRole).toString(), QString("2"));

    start(QStringLiteral("say be"));
    editor->showCompletions(&model);
    QCOMPARE(shown(), model.stringList());
    QCOMPARE(current(), QStringLiteral("beta"));
    QTest::keyClick(target(), Qt::Key_Return);
    QCOMPARE(text(), QStringLiteral("say beta"));

    model.setWords({});
    editor->showCompletions(&model);
    QVERIFY(!popup()->isVisible());
}

void TestCodeCompletion::replacesTheWord_data()
{
    columns<QString, int, QString>("before", "key", "after");
    row("with its own case", "say ALP|", int(Qt::Key_Return), "say x-Alpha|");
    row("all of it", "say x-|beth on", int(Qt::Key_Return), "say x-Alpha| on");
    row("a whole one", "say x-Alpha| on", int(Qt::Key_Return), "say x-Alpha\n| on");
    row("a blank ends it", "say x-|", int(Qt::Key_Space), "say x- |");
    row("none is known", "what a|", int(Qt::Key_Return), "what x-Alpha|");
}

/// Words here go from blank to blank, behind "say".
void TestCodeCompletion::replacesTheWord()
{
    const auto [before, key] = fetched<QString, int>();
    editor->setWordFinder([](const QTextCursor& cursor) {
        const QString line = cursor.block().text() + QLatin1Char(' ');
        const int at = cursor.positionInBlock();
        using Range = CodeEditor::WordRange;
        const Range range{line.left(at).lastIndexOf(QLatin1Char(' ')) + 1, line.indexOf(' ', at)};
        return line.startsWith("say") ? std::make_optional(range) : std::nullopt;
    });
    CompletionModel model;
    model.setWords({{"x-Alpha", {}}});
    document->setPlainText(QString(before).remove(QLatin1Char('|')));
    QTextCursor cursor(document.get());
    cursor.setPosition(before.indexOf(QLatin1Char('|')));
    editor->setTextCursor(cursor);
    editor->showCompletions(&model);
    popup()->setCurrentIndex(popup()->model()->index(0, 0));
    QTest::keyClick(target(), Qt::Key(key));
    QVERIFY(!popup()->isVisible());
    QTEST(text().insert(editor->textCursor().position(), QLatin1Char('|')), "after");
}

void TestCodeCompletion::modelsGoUnderThePopup()
{
    auto model = std::make_unique<CompletionModel>();
    model->setWords({{"alpha", {}}, {"beta", {}}});
    start(QStringLiteral("a"));
    editor->showCompletions(model.get());
    QVERIFY(popup()->isVisible());
    model.reset();
    QVERIFY(!popup()->isVisible());
    type(QStringLiteral("b"));

    start(QStringLiteral("["));
    type(QStringLiteral("m"));
    QVERIFY(popup()->isVisible());
    QVERIFY(load(rootOf("<words trigger=\"[n\"><word text=\"new\"/></words>")));
    QVERIFY(!popup()->isVisible());
    start(QStringLiteral("["));
    type(QStringLiteral("n"));
    QCOMPARE(shown(), QStringList(QStringLiteral("new")));
}

void TestCodeCompletion::documentsGoUnderThePopup()
{
    for (const bool swap : {true, false}) {
        start(QStringLiteral("["));
        type(QStringLiteral("m"));
        QVERIFY(popup()->isVisible());
        auto other = std::make_unique<GrammarDocument>(QStringLiteral("other"));
        if (swap) {
            editor->setDocument(other.get());
        } else {
            document.reset();
        }
        QVERIFY(!popup()->isVisible());
        QTest::keyClick(target(), Qt::Key_Return);
        editor->setDocument(document.get());
    }
}

void TestCodeCompletion::readOnlyStaysWhole()
{
    start(QStringLiteral("["));
    type(QStringLiteral("m"));
    editor->setReadOnly(true);
    QTest::keyClick(target(), Qt::Key_Return);
    QCOMPARE(text(), QStringLiteral("[m"));
}

void TestCodeCompletion::brokenFiles_data()
{
    columns<QByteArray, QString>("content", "place");
    const QByteArray bomb = "<!DOCTYPE a [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;\">]>"
                            "<completer version=\"1\">&b;</completer>";
    row("empty", QByteArray(), "line 1, column 1:");
    row("not XML", QByteArray("\x89PNG\r\n\x1a\n\0\0", 10), "line 1, column");
    row("ends early", QByteArray("<completer version=\"1\">\n<words"), "line 2, column");
    row("another root", QByteArray("<words/>"), "line 1, column 9:");
    row("another version", QByteArray("<completer version=\"2\"/>"), "line 1, column");
    row("no trigger", rootOf("\n<words><word text=\"a\"/></words>"), "line 2, column 8:");
    row("no word", rootOf("\n\n<words trigger=\"x\"><word/></words>"), "line 3, column");
    row("behind the root", rootOf({}) + "<more/>", "line 1, column");
    row("bomb", bomb, "line 1, column");
    row("many words", manyWords(100001, "x"), "line 1, column");
    row("many triggers", manyWords(2000, QByteArray("x ").repeated(51)), "line 1");
    row("long", rootOf(QByteArray(5 << 20, ' ')), "MiB");
}

void TestCodeCompletion::brokenFiles()
{
    const auto [content, place] = fetched<QByteArray, QString>();
    QVERIFY(load(content));
    const QString error = editor->completerError();
    QVERIFY2(error.contains(place), qPrintable(error));
    QVERIFY2(error.contains(QStringLiteral("completer.xml")), qPrintable(error));

    start(QStringLiteral("["));
    type(QStringLiteral("m"));
    QCOMPARE(shown(), QStringList({"move", "music"}));
}

/// What a later version of the format may have is passed over.
void TestCodeCompletion::missingFileHasNoWords()
{
    QVERIFY(
        load(rootOf("<later><words trigger=\"[m\"/></later>"
                    "<words trigger=\"[m\" later=\"1\"><word text=\"mine\" later=\"2\"><x/></word>"
                    "<later/></words>")));
    QCOMPARE(editor->completerError(), QString());
    start(QStringLiteral("["));
    type(QStringLiteral("m"));
    QCOMPARE(shown(), QStringList(QStringLiteral("mine")));

    QVERIFY(!editor->completerFromFile(folder.filePath(QStringLiteral("none.xml"))));
    QVERIFY(!editor->completerFromFile(folder.path()));
    start(QStringLiteral("["));
    type(QStringLiteral("m"));
    QVERIFY(!popup()->isVisible());
}

QTEST_MAIN(TestCodeCompletion)
#include "tst_codecompletion.moc"
