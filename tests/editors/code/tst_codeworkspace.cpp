#include "editors/code/codeworkspace.h"

#include "support/planneddialogs.h"
#include "support/testengines.h"
#include "support/testgrammar.h"
#include "support/testinterface.h"
#include "support/testproject.h"
#include "support/testtable.h"

#include "code/codecs/textcodecs.h"
#include "code/codedoc/codeblockdata.h"
#include "core/filesystemarchive.h"
#include "core/messages.h"
#include "editors/code/codeeditor.h"
#include "editors/code/encdlg.h"
#include "editors/code/gotodlg.h"
#include "editors/snipman/snipdlg.h"

#include <QAction>
#include <QComboBox>
#include <QFontInfo>
#include <QListWidget>
#include <QScrollBar>
#include <QSpinBox>
#include <QStringListModel>
#include <QTabBar>
#include <QTextBlock>
#include <QToolBar>
#include <QWheelEvent>
#include <QtTest>

#include <memory>

using namespace Zorv;

namespace {

using SyntaxMessage = CodeBlockData::SyntaxMessage;

/// Words that begin with "e", "w" and "d" are errors, warnings and deprecations.
class WordParser : public CodeParser
{
public:
    CodeNode* parse(const QString& text, CodeNode*, CodeNode*, RootCode*,
                    CodeParserSyntax* syntax) override
    {
        unsigned start = 0;
        const QStringList words = syntax ? text.split(QLatin1Char(' ')) : QStringList();
        for (const QString& word : words) {
            const unsigned end = start + unsigned(word.size());
            if (word.startsWith(QLatin1Char('e'))) {
                syntax->error(CodeParserSyntax::Plain, word, start, end);
            } else if (word.startsWith(QLatin1Char('w'))) {
                syntax->warning(CodeParserSyntax::Plain, word, start, end);
            } else if (word.startsWith(QLatin1Char('d'))) {
                syntax->deprecated(CodeParserSyntax::Plain, word, start, end);
            }
            start = end + 1;
        }
        return nullptr;
    }
};

/// Where a jump leads, by a plain walk over all lines.
class SlowWalk
{
public:
    SlowWalk(const QTextCursor& cursor, bool isError) : m_cursor(cursor), m_isError(isError) {}

    int next() const
    {
        int column = m_cursor.positionInBlock() + 1;
        for (QTextBlock b = m_cursor.block(); b.isValid(); b = b.next(), column = 0) {
            for (const SyntaxMessage& message : messages(b)) {
                if (message.start >= column) {
                    return b.position() + message.start;
                }
            }
        }
        return m_cursor.position();
    }

    int previous() const
    {
        int column = m_cursor.positionInBlock();
        for (QTextBlock b = m_cursor.block(); b.isValid(); b = b.previous()) {
            for (const SyntaxMessage& message : messages(b)) {
                if (message.end < column) {
                    return b.position() + message.start;
                }
            }
            column = b.previous().length();
        }
        return m_cursor.position();
    }

private:
    QVector<SyntaxMessage> messages(const QTextBlock& block) const
    {
        QVector<SyntaxMessage> result;
        if (const CodeBlockData* data = CodeBlockData::testBlockData(block)) {
            for (const SyntaxMessage& message : data->syntaxMessages()) {
                if ((message.type == SyntaxMessage::Error) == m_isError) {
                    result.append(message);
                }
            }
        }
        return result;
    }

    QTextCursor m_cursor;
    bool m_isError;
};

/// A long list that counts how often it is asked for a row.
class CountingList : public QAbstractListModel
{
public:
    int rowCount(const QModelIndex&) const override { return 100000; }
    QVariant data(const QModelIndex& index, int role) const override
    {
        ++asked;
        return role == Qt::DisplayRole ? QVariant(index.row()) : QVariant();
    }

    mutable int asked = 0;
};

QString numberedLines(int count)
{
    QStringList lines;
    for (int i = 0; i < count; ++i) {
        lines.append(QStringLiteral("# line %1").arg(i));
    }
    return lines.join(QLatin1Char('\n'));
}

/// Does something with the dialog that is opened next.
template <class Dialog, class Function>
void inNextDialog(Function function)
{
    QTimer::singleShot(0, qApp, [function] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        function(dialog);
    });
}

}  // namespace

/// The workspace with real actions, dialogs and documents.
class TestCodeWorkspace : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void barIsShownBySetting();
    void settingsReachTheEditor();
    void zoom();
    void documentsKeepTheirScrollPosition();
    void documentDiesWhileShown();
    void jumpsLeadWhereAWalkDoes();
    void jumpUnfolds();
    void messageIsPicked();
    void longListsAreNotWalked();
    void comment_data();
    void comment();
    void goToLine_data();
    void goToLine();
    void encoding_data();
    void encoding();
    void snippets_data();
    void snippets();
    void snippetIsEdited();
    void brokenWordsAreTold();
    void readOnlyStaysAsItIs();

private:
    void trigger(const char* action) const
    {
        m_host->actions.value(QLatin1String(action))->trigger();
    }
    CodeEditor* editor() const { return m_workspace->editor(); }
    void show(CodeDocument* document)
    {
        m_workspace->setDocument(document);
        m_workspace->widget()->resize(900, 400);
        m_workspace->widget()->show();
        QVERIFY(QTest::qWaitForWindowActive(m_workspace->widget()));
    }
    void put(int from, int to) const
    {
        QTextCursor cursor(editor()->document());
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        editor()->setTextCursor(cursor);
    }
    void writeSnippet(const QString& name, const QString& code) const
    {
        QVERIFY(writeFile(m_folder->filePath("snippets/" + name + ".xml"),
                          "<snippet><code>" + code.toUtf8() + "</code></snippet>"));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    TestEngines m_engines;
    std::unique_ptr<TestInterface> m_host;
    std::unique_ptr<PlannedDialogs> m_dialogs;
    std::unique_ptr<CodeWorkspace> m_workspace;
};

void TestCodeWorkspace::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_engines.folder = m_folder->path();
    m_host = std::make_unique<TestInterface>();
    m_host->engines = &m_engines;
    m_host->options[QStringLiteral("show_code_bar")] = true;
    m_dialogs = std::make_unique<PlannedDialogs>();
    m_workspace = std::make_unique<CodeWorkspace>();
}

void TestCodeWorkspace::cleanup()
{
    m_workspace.reset();
    m_dialogs.reset();
    m_host.reset();
    m_folder.reset();
}

void TestCodeWorkspace::barIsShownBySetting()
{
    QAction* action = m_host->actions.value(QStringLiteral("view_code_bar"));
    m_workspace->tabBar()->addTab(QStringLiteral("a text"));
    m_workspace->activate();
    show(nullptr);
    QVERIFY(m_workspace->toolBar()->isVisible() && action->isChecked());
    QVERIFY(m_workspace->tabBar()->isVisible());
    action->trigger();
    QVERIFY(!m_workspace->toolBar()->isVisible());
    QCOMPARE(m_host->options.value(QStringLiteral("show_code_bar")), QVariant(false));
    m_workspace->deactivate();
    QVERIFY(!m_workspace->isActive() && !action->isEnabled());
    QVERIFY(!m_workspace->widget()->isEnabled());
    m_workspace->activate();
    QVERIFY(m_workspace->widget()->isEnabled() && action->isEnabled());
    QVERIFY(!m_workspace->toolBar()->isVisible() && !action->isChecked());
    m_host->options[QStringLiteral("show_code_bar")] = true;
    m_workspace->reconfig();
    QVERIFY(m_workspace->toolBar()->isVisible() && action->isChecked());
}

void TestCodeWorkspace::settingsReachTheEditor()
{
    using Format = CodeEditor::SyntaxFormatting;
    const std::pair<const char*, bool Format::*> switches[] = {
        {"code_line_numbers", &Format::lineNumbers},
        {"code_highlight_line", &Format::highlightCurrentLine},
        {"code_highlight_blocks", &Format::highlightBlocks},
        {"code_folding_markers", &Format::foldingMarkers},
        {"code_paren_matching", &Format::parenMatching},
    };
    const QColor usual = editor()->syntaxFormatting().currentLineColor;
    QVERIFY(usual.isValid());
    for (const auto& [key, member] : switches) {
        const bool before = editor()->syntaxFormatting().*member;
        QCOMPARE(before, Format().*member);
        m_host->options[QLatin1String(key)] = !before;
        m_workspace->reconfig();
        QCOMPARE(editor()->syntaxFormatting().*member, !before);
    }
    QTextCharFormat paren;
    paren.setForeground(Qt::darkGreen);
    m_host->options[QStringLiteral("line")] = QColor();
    m_host->options[QStringLiteral("block_range")] = QColor(Qt::cyan);
    m_host->options[QStringLiteral("paren_range")] = QColor(Qt::blue);
    m_host->options[QStringLiteral("paren")] = QVariant::fromValue<QTextFormat>(paren);
    m_workspace->reconfig();
    const Format& format = editor()->syntaxFormatting();
    QCOMPARE(format.currentLineColor, usual);
    QCOMPARE(format.blockRangeColor, QColor(Qt::cyan));
    QCOMPARE(format.parenRangeFormat.background().color(), QColor(Qt::blue));
    QCOMPARE(format.parenFormat, paren);
}

/// The document has the font too, a tab stays four blanks wide, and text can always be read.
void TestCodeWorkspace::zoom()
{
    QVERIFY(QFontInfo(editor()->font()).fixedPitch());
    m_host->options[QStringLiteral("font_size")] = 11;
    GrammarDocument document(QStringLiteral("\ttext"));
    show(&document);
    m_workspace->reconfig();
    const auto isSize = [&](double points) {
        const double blank = QFontMetricsF(editor()->font()).horizontalAdvance(QLatin1Char(' '));
        return document.defaultFont() == editor()->font() &&
               editor()->font().pointSizeF() == points &&
               qAbs(editor()->tabStopDistance() - 4 * blank) < 0.01;
    };
    QVERIFY(isSize(11));
    m_workspace->zoomIn();
    QVERIFY(isSize(13));
    const auto wheel = [&](int delta, Qt::KeyboardModifiers modifiers) {
        const QPoint place = editor()->viewport()->rect().center();
        QWheelEvent event(place, editor()->viewport()->mapToGlobal(place), {}, {0, delta},
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(editor()->viewport(), &event);
    };
    wheel(240, Qt::ControlModifier);
    QVERIFY(isSize(17));
    wheel(-60, Qt::ControlModifier);
    QVERIFY(isSize(17));
    wheel(-60, Qt::ControlModifier);
    QVERIFY(isSize(15));
    wheel(120, Qt::NoModifier);
    QVERIFY(isSize(15));
    GrammarDocument other(QStringLiteral("text"));
    m_workspace->setDocument(&other);
    QCOMPARE(other.defaultFont(), editor()->font());
    m_workspace->setDocument(&document);
    for (int i = 0; i < 100; ++i) {
        m_workspace->zoomOut();
    }
    QVERIFY(editor()->font().pointSizeF() > 4);
    m_workspace->zoomActual();
    QVERIFY(isSize(11));
}

void TestCodeWorkspace::documentsKeepTheirScrollPosition()
{
    GrammarDocument first(numberedLines(200));
    GrammarDocument second(QStringLiteral("?e\nsecond"));
    second.setObjectName(QStringLiteral("1,3,0"));
    auto* box = m_workspace->toolBar()->findChild<QComboBox*>(QStringLiteral("code_messages"));
    show(&first);
    QVERIFY(editor()->hasFocus());
    QCOMPARE(box->model(), static_cast<QAbstractItemModel*>(first.messages()));
    QCOMPARE(m_host->status(2), QStringLiteral("Encoding: ") + first.codecName());
    put(first.findBlockByNumber(60).position() + 3, first.findBlockByNumber(60).position() + 3);
    editor()->verticalScrollBar()->setValue(50);
    m_workspace->setDocument(&second);
    QCOMPARE(box->count(), 2);
    QCOMPARE(editor()->textCursor().blockNumber(), 1);
    QCOMPARE(editor()->textCursor().positionInBlock(), 3);
    m_workspace->setDocument(&first);
    QCOMPARE(editor()->verticalScrollBar()->value(), 50);
    QCOMPARE(editor()->textCursor().position(), 0);
    m_workspace->setDocument(nullptr);
    QCOMPARE(first.objectName(), QStringLiteral("0,0,50"));
    QCOMPARE(box->count(), 0);
}

void TestCodeWorkspace::documentDiesWhileShown()
{
    auto document = std::make_unique<GrammarDocument>(QStringLiteral("?e\n?e"));
    show(document.get());
    document.reset();
    for (QAction* action : qAsConst(m_host->actions)) {
        if (!action->objectName().startsWith(QLatin1String("code_snippet_"))) {
            action->trigger();
        }
    }
    m_workspace->statusClicked();
    QVERIFY(!editor()->codeDocument());
    GrammarDocument next(QStringLiteral("next"));
    m_workspace->setDocument(&next);
    QCOMPARE(editor()->toPlainText(), QStringLiteral("next"));
}

void TestCodeWorkspace::jumpsLeadWhereAWalkDoes()
{
    constexpr quint32 Seed = 20260817;
    qInfo("seed %u", Seed);
    QRandomGenerator random(Seed);
    const char* const words[] = {"e", "ee", "w", "dd", "plain", "", "x", "word"};
    WordParser parser;
    for (int round = 0; round < 60; ++round) {
        QString text;
        const int count = random.bounded(1, 60);
        for (int i = 0; i < count; ++i) {
            // Sometimes nothing but words that say nothing.
            const int from = round % 4 == 0 && i % 9 != 0 ? 4 : 0;
            text += QLatin1String(words[random.bounded(from, 8)]);
            text += QLatin1Char(random.bounded(3) == 0 ? '\n' : ' ');
        }
        GrammarDocument document;
        document.setParser(&parser);
        document.setPlainText(text);
        m_workspace->setDocument(&document);
        for (int i = 0; i < 30; ++i) {
            const int place = random.bounded(document.characterCount());
            for (const bool isError : {true, false}) {
                put(place, place);
                const SlowWalk walk(editor()->textCursor(), isError);
                trigger(isError ? "code_next_error" : "code_next_deprecation");
                QCOMPARE(editor()->textCursor().position(), walk.next());
                put(place, place);
                trigger(isError ? "code_prev_error" : "code_prev_deprecation");
                QCOMPARE(editor()->textCursor().position(), walk.previous());
            }
        }
        m_workspace->setDocument(nullptr);
    }
}

void TestCodeWorkspace::jumpUnfolds()
{
    GrammarDocument document(QStringLiteral("[1*]\na=1\n?e\n[2*]\nb=1"));
    show(&document);
    trigger("code_fold_all");
    const QTextBlock fault = document.findBlockByNumber(2);
    QVERIFY(!fault.isVisible());
    trigger("code_next_error");
    QVERIFY(fault.isVisible());
    QCOMPARE(editor()->textCursor().block(), fault);
    trigger("code_fold_all");
    trigger("code_unfold_all");
    QVERIFY(fault.isVisible());
}

/// Keys and the wheel look through the list; Return goes there.
void TestCodeWorkspace::messageIsPicked()
{
    WordParser parser;
    GrammarDocument document;
    document.setParser(&parser);
    document.setPlainText(QStringLiteral("x e\nx\nx x eee"));
    show(&document);
    put(2, 2);
    auto* box = m_workspace->toolBar()->findChild<QComboBox*>(QStringLiteral("code_messages"));
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(box->currentIndex(), 1);
    QCOMPARE(editor()->textCursor().position(), 2);
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(editor()->textCursor().blockNumber(), 2);
    QCOMPARE(editor()->textCursor().positionInBlock(), 4);
    QVERIFY(editor()->hasFocus());
}

void TestCodeWorkspace::longListsAreNotWalked()
{
    CountingList list;
    auto* box = m_workspace->toolBar()->findChild<QComboBox*>(QStringLiteral("code_messages"));
    show(nullptr);
    box->setModel(&list);
    box->showPopup();
    QVERIFY(QTest::qWaitForWindowExposed(box->view()->window()));
    QVERIFY2(list.asked < 5000, qPrintable(QString::number(list.asked)));
    box->hidePopup();
    box->setModel(new QStringListModel(box));
}

void TestCodeWorkspace::comment_data()
{
    columns<QString, int, int, QString, int>("before", "from", "to", "after", "cursor");
    row("a line", "a\nb\nc", 2, 3, "a\n#b\nc", 2);
    row("cursor in it", "ab\nc", 1, 1, "#ab\nc", 0);
    row("cursor at its start", "a\nb\nc", 2, 2, "a\n#b\nc", 2);
    row("an empty line", "a\n\nc", 2, 2, "a\n#\nc", 2);
    row("three lines", "a\nb\nc", 0, 5, "#a\n#b\n#c", 6);
    row("upward", "a\nb\nc", 5, 0, "#a\n#b\n#c", 6);
    row("up to the start of one", "a\nb\nc", 0, 4, "#a\n#b\nc", 3);
    row("comments among them", "a\n#b\nc", 0, 6, "#a\n##b\n#c", 7);
    row("the first is one", "#a\nb\n##c", 1, 8, "a\nb\n#c", 4);
    row("off, cursor alone", "#a\n#b", 0, 0, "a\n#b", 0);
    row("indented is none", " #a", 0, 3, "# #a", 0);
}

void TestCodeWorkspace::comment()
{
    const auto [before, from, to] = fetched<QString, int, int>();
    GrammarDocument document(before);
    show(&document);
    put(from, to);
    trigger("code_comment");
    QTEST(document.text(), "after");
    QTEST(editor()->textCursor().position(), "cursor");
    QVERIFY(!editor()->textCursor().hasSelection());
    document.undo();
    QCOMPARE(document.text(), before);
    QVERIFY(!document.isUndoAvailable());
}

void TestCodeWorkspace::goToLine_data()
{
    columns<QString, int, int>("typed", "answer", "line");
    row("the same", "", 0, 20);
    row("another", "150", 0, 149);
    row("the first", "1", 0, 0);
    row("the last", "200", 0, 199);
    row("behind the end, yes", "201", int(Dialogs::Yes), 199);
    row("behind the end, no", "100000000", int(Dialogs::No), 20);
}

void TestCodeWorkspace::goToLine()
{
    QFETCH(QString, typed);
    QFETCH(int, answer);
    GrammarDocument document(numberedLines(200));
    show(&document);
    editor()->setCurrentLine(20, CodeEditor::NearestLine);
    m_dialogs->buttonAnswers.append(Dialogs::Button(answer));
    int shown = 0;
    inNextDialog<GoToDlg>([&](GoToDlg* dialog) {
        shown = dialog->getValue();
        // What was in the field is selected, and goes.
        QTest::keyClicks(dialog->findChild<QSpinBox*>(), typed);
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    trigger("code_goto");
    QCOMPARE(shown, 21);
    QTEST(editor()->textCursor().blockNumber(), "line");
    QCOMPARE(m_dialogs->count(), answer == 0 ? 0 : 1);
    if (answer != 0) {
        QCOMPARE(m_dialogs->shown.first().title, QStringLiteral("Go to line..."));
    }
    inNextDialog<GoToDlg>([](GoToDlg* dialog) { dialog->reject(); });
    trigger("code_goto");
    QTEST(editor()->textCursor().blockNumber(), "line");
}

void TestCodeWorkspace::encoding_data()
{
    columns<bool, bool, int, QString>("isOnDisk", "isAccepted", "answer", "text");
    row("read again", true, true, int(Dialogs::Yes), QStringLiteral("# \u00e9"));
    row("kept", true, true, int(Dialogs::No), QStringLiteral("# \u0449"));
    row("given up", true, false, 0, QStringLiteral("# \u0449"));
    row("without a file", false, true, 0, QStringLiteral("# \u0449"));
}

void TestCodeWorkspace::encoding()
{
    QFETCH(bool, isOnDisk);
    QFETCH(bool, isAccepted);
    QFETCH(int, answer);
    const QString file = m_folder->filePath("text.txt");
    QVERIFY(writeFile(file, "# \xe9"));
    const int wrong = TextCodecs::index("ISO-8859-5");
    const int right = TextCodecs::index("ISO-8859-1");
    GrammarDocument document;
    QVERIFY(document.fromFile(*FileSystemArchive::instance(), file, wrong, false));
    document.setFileName(isOnDisk ? file : QString());
    show(&document);
    m_dialogs->buttonAnswers.append(Dialogs::Button(answer));
    inNextDialog<EncDlg>([&](EncDlg* dialog) {
        QCOMPARE(dialog->index(), wrong);
        auto* list = dialog->findChild<QListWidget*>();
        QCOMPARE(list->count(), TextCodecs::count());
        list->setCurrentRow(right);
        isAccepted ? dialog->accept() : dialog->reject();
    });
    m_workspace->statusClicked();
    QTEST(document.text(), "text");
    QCOMPARE(document.codecId(), isAccepted ? right : wrong);
    QCOMPARE(m_host->status(2), QStringLiteral("Encoding: ") + document.codecName());
    QCOMPARE(m_dialogs->count(QStringLiteral("question")), isOnDisk && isAccepted ? 1 : 0);
}

void TestCodeWorkspace::snippets_data()
{
    columns<QString, QString, int>("code", "after", "cursor");
    row("plain", "b", "aba", 2);
    row("a place", "[CURSOR]", "a[]a", 2);
    row("the first of two", "xCURSORyCURSORz", "axyza", 2);
    row("other case", "cursor", "acursora", 7);
    row("at the end", "xCURSOR", "axa", 2);
    row("lines", "x\nCURSOR\ny", "ax\n\nya", 3);
    row("nothing", "", "a_a", 1);
}

/// In place of the selection, in one step of undo.
void TestCodeWorkspace::snippets()
{
    QFETCH(QString, code);
    writeSnippet(QStringLiteral("a"), QStringLiteral("first"));
    writeSnippet(QStringLiteral("b"), code);
    m_workspace->engineSwitched(true);
    GrammarDocument document(QStringLiteral("a_a"));
    show(&document);
    put(2, 1);
    auto* box = m_workspace->toolBar()->findChild<QComboBox*>(QStringLiteral("code_snippets"));
    QCOMPARE(box->count(), 2);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down);
    QTest::keyClick(box, Qt::Key_Escape);
    QVERIFY(editor()->hasFocus());
    QCOMPARE(document.text(), QStringLiteral("a_a"));
    trigger("code_snippet_insert");
    QTEST(document.text(), "after");
    QTEST(editor()->textCursor().position(), "cursor");
    if (document.isUndoAvailable()) {
        QVERIFY(editor()->hasFocus());
        document.undo();
    }
    QCOMPARE(document.text(), QStringLiteral("a_a"));
    QVERIFY(!document.isUndoAvailable());
}

void TestCodeWorkspace::snippetIsEdited()
{
    writeSnippet(QStringLiteral("a"), QStringLiteral("inside"));
    m_workspace->engineSwitched(true);
    GrammarDocument document(QStringLiteral("text"));
    show(&document);
    inNextDialog<SnipDlg>([](SnipDlg* dialog) {
        QVERIFY(dialog->toString().contains(QLatin1String("inside")));
        emit dialog->insertRequested(QStringLiteral("some "));
        dialog->reject();
    });
    trigger("code_snippet_edit");
    QCOMPARE(document.text(), QStringLiteral("some text"));
    inNextDialog<SnipDlg>([this](SnipDlg* dialog) {
        QVERIFY(!dialog->toString().contains(QLatin1String("inside")));
        writeSnippet(QStringLiteral("new"), QStringLiteral("code"));
        dialog->reject();
    });
    trigger("code_snippet_new");
    auto* box = m_workspace->toolBar()->findChild<QComboBox*>(QStringLiteral("code_snippets"));
    QCOMPARE(box->count(), 2);
    QCOMPARE(box->currentText(), QStringLiteral("a"));
}

void TestCodeWorkspace::brokenWordsAreTold()
{
    m_workspace->engineSwitched(true);
    QCOMPARE(m_dialogs->count(), 0);
    QVERIFY(writeFile(m_folder->filePath("completer.xml"), "<completer><"));
    m_workspace->engineSwitched(false);
    QCOMPARE(m_dialogs->count(), 0);
    m_workspace->engineSwitched(true);
    QCOMPARE(m_dialogs->texts(QStringLiteral("warning")), QStringList{editor()->completerError()});
}

void TestCodeWorkspace::readOnlyStaysAsItIs()
{
    writeSnippet(QStringLiteral("a"), QStringLiteral("code"));
    m_workspace->engineSwitched(true);
    GrammarDocument document(QStringLiteral("?e\na\n?e"));
    show(&document);
    put(4, 4);
    editor()->setReadOnly(true);
    for (const char* name : {"code_comment", "code_snippet_insert", "code_goto", "code_next_error",
                             "code_prev_error"}) {
        trigger(name);
        QCOMPARE(editor()->textCursor().position(), 4);
        QVERIFY(!document.isUndoAvailable());
    }
}

QTEST_MAIN(TestCodeWorkspace)
#include "tst_codeworkspace.moc"
