#include "editors/code/codefind.h"

#include "support/testgrammar.h"
#include "support/testinterface.h"
#include "support/testtable.h"

#include "editors/code/codeeditor.h"
#include "editors/code/codefindtext.h"

#include <QRandomGenerator>
#include <QScrollBar>
#include <QTextBlock>
#include <QtTest>

#include <memory>

using namespace Zorv;

namespace {

constexpr quint32 Seed = 20260803;

const QRegularExpression::PatternOptions Options = QRegularExpression::DotMatchesEverythingOption |
                                                   QRegularExpression::UseUnicodePropertiesOption |
                                                   QRegularExpression::CaseInsensitiveOption;

QString randomText(QRandomGenerator& random)
{
    const QString letters = QStringLiteral("aabxAB \n\n\\1=\u00e4\u00a0");
    QString text;
    for (int i = random.bounded(60); i > 0; --i) {
        const int at = random.bounded(letters.size() + 1);
        text += at < letters.size() ? QString(letters.at(at)) : QStringLiteral("\U0001F3AE");
    }
    return text;
}

}  // namespace

class TestCodeFind : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qInfo("seed %u", Seed); }
    void previousIsTheLastStart_data();
    void previousIsTheLastStart();
    void replaceAllEqualsReplace_data();
    void replaceAllEqualsReplace();
    void matchOfTakesTheWholePart();
    void badExpressions();
    void loneSurrogates();
    void cursorAndViewStay();
    void copyFollowsTheDocument();

private:
    TestInterface host;
};

void TestCodeFind::previousIsTheLastStart_data()
{
    QTest::addColumn<QString>("pattern");
    for (const char* pattern : {"a", "aa", "a*", "b|ab", "a.*b", "(?<=a)b", "^", "$", "x(?=\\n)",
                                "[^ab]", "(?m-s)^.*$", "\\Ba"}) {
        row(pattern, QString::fromLatin1(pattern));
    }
}

/// Compares with a try at each place, from behind.
void TestCodeFind::previousIsTheLastStart()
{
    QFETCH(QString, pattern);
    QRandomGenerator random(Seed);
    const CodeFind find(pattern, FindRegularExpression);
    const QRegularExpression slow(pattern, Options);
    for (int run = 0; run < 40; ++run) {
        QString text;
        while (text.size() < 200) {
            text += randomText(random);
        }
        const int from = random.bounded(text.size() + 1);
        int expected = -1;
        for (int start = from; start >= 0 && expected < 0; --start) {
            const bool splits = start > 0 && start < text.size() && text.at(start).isLowSurrogate();
            const QRegularExpressionMatch match =
                slow.match(text, start, QRegularExpression::NormalMatch,
                           QRegularExpression::AnchoredMatchOption);
            expected = !splits && match.hasMatch() ? start : -1;
        }
        QCOMPARE(find.previous(text, from).capturedStart(), expected);
    }
}

void TestCodeFind::replaceAllEqualsReplace_data()
{
    columns<QString, QString>("pattern", "with");
    row("letters", "a", "bb");
    row("longer than its place", "a+", "[1]\n");
    row("nothing instead", "[ab]", "");
    row("empty matches", "x*", "-");
    row("only empty matches", "(?=a)", "_");
    row("line ends", "\\n", ";");
    row("more line ends", "$|\\n", "\n\n");
    row("over lines", "a.*?\\n.*?b", "!x");
    row("group", "(a)(b)?", "\\2-\\1");
    row("digit behind a group", "(a)", "\\11\\0\\2");
    row("ten groups", "(a)(b)?(c)?(d)?(e)?(f)?(g)?(h)?(i)?(x)", "\\10\\1");
    row("backslashes", "(.)", "\\\\1\\");
    row("pairs", "\U0001F3AE", "ab");
}

void TestCodeFind::replaceAllEqualsReplace()
{
    const auto [pattern, with] = fetched<QString, QString>();
    QRandomGenerator random(Seed);
    const CodeFind find(pattern, FindRegularExpression);
    const QRegularExpression expression(pattern, Options);
    CodeEditor editor;
    for (int run = 0; run < 60; ++run) {
        const QString text = randomText(random) + randomText(random);
        GrammarDocument document(text);
        document.clearUndoRedoStacks();
        editor.setDocument(&document);
        const int count = find.replaceAll(&editor, CodeFind::searchableText(&document), with);
        const QString expected = QString(text).replace(expression, with);
        QCOMPARE(document.text(), expected);
        QCOMPARE(document.dump(), GrammarDocument(expected).dump());
        QCOMPARE(document.isUndoAvailable(), count > 0);
        document.undo();
        QCOMPARE(document.text(), text);
        QVERIFY(!document.isUndoAvailable());
    }
}

void TestCodeFind::matchOfTakesTheWholePart()
{
    const QString text = QStringLiteral("see abc");
    const auto matches = [&text](const char* pattern) {
        return CodeFind(QLatin1String(pattern), FindRegularExpression)
            .matchOf(text, 4, 2)
            .hasMatch();
    };
    QVERIFY(matches("a|ab"));
    QVERIFY(matches("ab(?=c)"));
    QVERIFY(!matches("abc"));
    QVERIFY(!matches("a"));
    QVERIFY(!matches("see ab"));
}

void TestCodeFind::badExpressions()
{
    const CodeFind find(QStringLiteral("a(b"), FindRegularExpression);
    QVERIFY(!find.isValid());
    QVERIFY(!find.errorString().isEmpty());
    QCOMPARE(find.errorOffset(), 3);
    QVERIFY(!find.next(QStringLiteral("a(b"), 0).hasMatch());
    QVERIFY(!find.previous(QStringLiteral("a(b"), 3).hasMatch());
    QVERIFY(!find.matchOf(QStringLiteral("a(b"), 0, 3).hasMatch());
    QVERIFY(!CodeFind(QString()).isValid());
}

void TestCodeFind::loneSurrogates()
{
    CodeEditor editor;
    GrammarDocument document;
    const QString text = QStringLiteral("a") + QChar(0xdc00) + QStringLiteral("b\na") +
                         QChar(0xd800) + QStringLiteral("b");
    document.setPlainText(text);
    editor.setDocument(&document);
    const CodeFind find(QStringLiteral("B"));
    QCOMPARE(find.replaceAll(&editor, CodeFind::searchableText(&document), QStringLiteral("c")), 2);
    QCOMPARE(document.text(), QString(text).replace(QLatin1Char('b'), QLatin1Char('c')));
}

void TestCodeFind::cursorAndViewStay()
{
    GrammarDocument document(QStringLiteral("a=1\nb=2\n").repeated(200));
    CodeEditor editor;
    editor.setDocument(&document);
    editor.resize(300, 200);
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    QTextCursor cursor(document.findBlockByNumber(205));
    cursor.movePosition(QTextCursor::NextCharacter);
    editor.setTextCursor(cursor);
    editor.verticalScrollBar()->setValue(200);
    const CodeFind find(QStringLiteral("a="));
    QCOMPARE(find.replaceAll(&editor, document.text(), QStringLiteral("\nnew=")), 200);
    QCOMPARE(editor.verticalScrollBar()->value(), 301);
    QCOMPARE(editor.textCursor().block().text(), QStringLiteral("b=2"));
    QCOMPARE(editor.textCursor().positionInBlock(), 1);
}

void TestCodeFind::copyFollowsTheDocument()
{
    auto document = std::make_unique<GrammarDocument>(QStringLiteral("a=1"));
    CodeFindText text;
    text.setDocument(document.get());
    QSignalSpy changed(&text, &CodeFindText::changed);
    QCOMPARE(text.text(), QStringLiteral("a=1"));
    QTextCursor(document.get()).insertText(QStringLiteral("b"));
    QTextCursor(document.get()).insertText(QStringLiteral("c"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(text.text(), QStringLiteral("cba=1"));
    document.reset();
    QCOMPARE(text.text(), QString());
}

QTEST_MAIN(TestCodeFind)
#include "tst_codefind.moc"
