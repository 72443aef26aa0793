#include "support/folders.h"
#include "support/planneddialogs.h"
#include "support/testgrammar.h"
#include "support/testinterface.h"
#include "support/testtable.h"

#include "code/codecs/filetext.h"
#include "code/codecs/textcodecs.h"
#include "code/codedoc/codeblockdata.h"
#include "code/codedoc/editordata.h"
#include "core/filesystemarchive.h"
#include "core/messages.h"

#include <QBuffer>
#include <QFile>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextCursor>
#include <QtTest>

#include <functional>

using namespace Zorv;

namespace {

/// The folding level of every line, line by line from the top, as its rule says.
QVector<int> slowFolding(const GrammarDocument& document)
{
    QVector<int> classes;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        classes.append(document.blockFolding(block.text()));
    }
    QVector<int> indents;
    for (int i = 0; i < classes.size(); ++i) {
        const int kind = classes.at(i) & 3;
        const int above = i > 0 ? classes.at(i - 1) : 0;
        const int aboveIndent = i > 0 ? indents.at(i - 1) : 0;
        int indent = 0;
        if (kind == 1) {
            indent = classes.at(i) & 4 ? 0 : aboveIndent - ((above & 3) == 2 ? 1 : 0);
        } else if (kind == (above & 3)) {
            indent = aboveIndent;
        } else if (kind == 2) {
            indent = aboveIndent + ((above & 3) == 1 ? 1 : 0);
        } else {
            int below = i + 1;
            while (below < classes.size() && (classes.at(below) & 3) == 0) {
                ++below;
            }
            const int next = below < classes.size() ? classes.at(below) : 0;
            if ((next & 3) == 2) {
                indent = aboveIndent + ((above & 3) == 1 ? 1 : 0);
            } else if (next == 1 && (above & 3) == 1) {
                indent = aboveIndent + (above & 4 ? 1 : 0);
            } else if (next == 1) {
                for (int head = i - 2; head >= 0; --head) {
                    if ((classes.at(head) & 3) == 1) {
                        indent = aboveIndent - 1 + (classes.at(head) & 4 ? 1 : 0);
                        break;
                    }
                }
            }
        }
        indents.append(indent);
    }
    return indents;
}

/// Gives files of which less can be read than they seem to hold.
class ShortArchive : public FileSystemArchive
{
public:
    QIODevice* openFile(const QString&, QIODevice::OpenMode mode, QString*) override
    {
        class Device : public QBuffer
        {
        public:
            qint64 size() const override { return QBuffer::size() + missing; }
            qint64 missing = 0;
        };
        auto* device = new Device;
        device->setData("[2]\r\n");
        device->missing = missing;
        device->open(mode);
        return device;
    }

    qint64 missing = 0;
};

CodeNode* nodeOfLine(const CodeDocument& document, int line)
{
    return document.nodeInBlock(document.findBlockByNumber(line));
}

}  // namespace

Q_DECLARE_METATYPE(std::function<void(GrammarDocument&)>)

class TestCodeDocument : public QObject
{
    Q_OBJECT

private slots:
    void init() { TextCodecs::setDefaultCodec(TextCodecs::index("UTF-8")); }
    void foldingAgainstRules();
    void onlyDependentLinesAreParsed();
    void nodesInsideChange();
    void insertAtEdges_data();
    void insertAtEdges();
    void changeKeepsComment();
    void oneUndoStep();
    void switchesOff();
    void roundTrip_data();
    void roundTrip();
    void copiesKeepIdentity();
    void roundaboutNameIsWatched();
    void vanishedFile();
    void failedSave();
    void partIsNotTheWhole_data();
    void partIsNotTheWhole();
    void messagesAreToldOnce();
    void fullParseInsideChange_data();
    void fullParseInsideChange();
    void editorDataEnds();
    void parenthesesAndTokens();
    void releaseDisposesOfAll();
    void hugeLinesAndManyEmptyOnes();
};

void TestCodeDocument::foldingAgainstRules()
{
    static const char* const lines[] = {"[1]", "[2*]", "a=1", "# n", "", "x", "[3*]", "[1]", "# n"};
    QRandomGenerator random(99);
    GrammarDocument document(QString(QLatin1String("")));
    for (int step = 0; step < 400; ++step) {
        QTextCursor cursor(document.findBlockByNumber(random.bounded(document.blockCount())));
        if (document.blockCount() > 30 || random.bounded(3) == 0) {
            cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor, random.bounded(4));
        }
        const int index = random.bounded(int(std::size(lines)));
        cursor.insertText(QLatin1String(lines[index]) + QLatin1Char('\n'));
        QVector<int> found;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            found.append(CodeBlockData::testBlockData(block)->foldingIndent());
        }
        if (found != slowFolding(document)) {
            qWarning("%s", qPrintable(document.text()));
        }
        QCOMPARE(found, slowFolding(document));
    }
}

void TestCodeDocument::onlyDependentLinesAreParsed()
{
    GrammarDocument document(QStringLiteral("[1]\na=1\n[2]\nb=1\nb=2\n[1]\nc=1\nc=2"));
    document.grammar.records = true;
    QTextCursor cursor(document.findBlockByNumber(2));
    cursor.insertText(QStringLiteral("#"));
    QCOMPARE(document.grammar.parsed, QStringList({"#[2]", "b=1", "b=2", "[1]"}));
    document.grammar.parsed.clear();
    cursor.deletePreviousChar();
    QCOMPARE(document.grammar.parsed, QStringList({"[2]", "b=1", "b=2", "[1]"}));
    document.grammar.parsed.clear();
    cursor.movePosition(QTextCursor::NextBlock);
    cursor.insertText(QStringLiteral("x"));
    QCOMPARE(document.grammar.parsed, QStringList({"xb=1"}));
}

/// Inside of a change the nodes follow each edit of the tree at once.
void TestCodeDocument::nodesInsideChange()
{
    GrammarDocument document(QStringLiteral("[1]\na=1\nb=2\n!x\n-f"));
    document.beginChange(QString());
    auto* value = static_cast<TestValue*>(nodeOfLine(document, 1));
    value->write(QStringLiteral("5"));
    QCOMPARE(nodeOfLine(document, 1), static_cast<CodeNode*>(value));
    QCOMPARE(value->value(), QVariant("5"));
    document.insertAfter(value, QStringLiteral("n=7\nm=8"), true);
    auto* group = static_cast<GroupCode*>(nodeOfLine(document, 0));
    QCOMPARE(group->value(QStringLiteral("n")), QVariant("7"));
    QCOMPARE(group->childCount(), 4);
    group->removeValue(0);
    QCOMPARE(group->childCount(), 3);
    QCOMPARE(group->valueByName(QStringLiteral("a")), nullptr);
    QVERIFY(document.isCodeBeingChanged());
    document.endChange();
    QCOMPARE(document.text(), QStringLiteral("[1]\nn=7\nm=8\nb=2\n!x\n-f"));
    QCOMPARE(document.dump(), GrammarDocument(document.text()).dump());
}

void TestCodeDocument::insertAtEdges_data()
{
    // `line`: of the node, -1 for none
    columns<QString, int, bool, bool, QString>("text", "line", "before", "sameLine", "result");
    QTest::newRow("before the first line") << "[1]\na=1" << 0 << true << true << "new\n[1]\na=1";
    QTest::newRow("before another") << "[1]\na=1" << 1 << true << true << "[1]\nnew\na=1";
    QTest::newRow("before no node") << "[1]" << -1 << true << false << "new\n[1]";
    QTest::newRow("behind no node, empty text") << "" << -1 << false << false << "new\n";
    QTest::newRow("behind no node") << "[1]" << -1 << false << false << "[1]new\n";
    QTest::newRow("behind its line")
        << "[1]\na=1\n[2]" << 0 << false << true << "[1]\nnew\na=1\n[2]";
    QTest::newRow("behind its extent")
        << "[1]\na=1\n[2]" << 0 << false << false << "[1]\na=1\nnew\n[2]";
    QTest::newRow("behind the last extent") << "[1]\na=1" << 0 << false << false << "[1]\na=1\nnew";
    QTest::newRow("before a frame with its lines")
        << "!x\n-f\n# box\n-g" << 3 << true << false << "!x\n-f\nnew\n# box\n-g";
}

void TestCodeDocument::insertAtEdges()
{
    const auto [text, line, before, sameLine, result] =
        fetched<QString, int, bool, bool, QString>();
    for (const bool inside : {false, true}) {
        GrammarDocument document(text);
        const CodeNode* node = line < 0 ? nullptr : nodeOfLine(document, line);
        if (inside) {
            document.beginChange(QString());
        }
        if (before) {
            document.insertBefore(node, QStringLiteral("new"), sameLine);
        } else {
            document.insertAfter(node, QStringLiteral("new"), sameLine);
        }
        if (inside) {
            document.endChange();
        }
        QCOMPARE(document.text(), result);
    }
}

void TestCodeDocument::changeKeepsComment()
{
    TestInterface host;
    GrammarDocument document(QStringLiteral("[1]\na=1   # why\nb=2"));
    auto* value = static_cast<TestValue*>(nodeOfLine(document, 1));
    // Without an engine family nobody knows what starts a comment.
    value->write(QStringLiteral("2"));
    QCOMPARE(document.text(), QStringLiteral("[1]\na=2\nb=2"));
    static_cast<CodeNode*>(nodeOfLine(document, 2))->remove(false);
    QCOMPARE(document.text(), QStringLiteral("[1]\na=2\n"));
}

void TestCodeDocument::oneUndoStep()
{
    const QString text = QStringLiteral("[1]\na=1\nb=2\n!x\n-f\n-g\n!y\n-h\n");
    GrammarDocument document(text);
    const QStringList before = document.dump();
    document.beginChange(QStringLiteral("much"));
    static_cast<TestValue*>(nodeOfLine(document, 1))->write(QStringLiteral("5"));
    static_cast<AnimationCode*>(nodeOfLine(document, 3))->removeFrame(0);
    static_cast<AnimationCode*>(nodeOfLine(document, 3))->setCode(QStringLiteral("!z\n-q\n"));
    document.insertBefore(nullptr, QStringLiteral("[2]"), false);
    document.endChange();
    QCOMPARE(document.text(), QStringLiteral("[2]\n[1]\na=5\nb=2\n!z\n-q\n\n!y\n-h\n"));
    document.undo();
    QCOMPARE(document.text(), text);
    QCOMPARE(document.dump(), before);
    QVERIFY(!document.isUndoAvailable());
}

void TestCodeDocument::switchesOff()
{
    GrammarDocument document(QStringLiteral("[1]\na=1\n?e"));
    QVERIFY(document.groupEnabled(0));
    QVERIFY(!document.groupEnabled(4));
    document.enableGroups({4, 4});
    QVERIFY(document.groupEnabled(4));
    document.setSyntaxHighlight(false);
    QCOMPARE(document.messages()->count(Message::AllTypes), 0);
    QVERIFY(nodeOfLine(document, 1));
    document.setSyntaxHighlight(true);
    QCOMPARE(document.checkErrors(), 1);
    document.setOption(QStringLiteral("parseCode"), false, false, false);
    QVERIFY(!document.groupEnabled(0));
    document.beginChange(QString());
    document.insert(QStringLiteral("\n!late"));
    QVERIFY(!nodeOfLine(document, 3));
    document.endChange();
    QVERIFY(nodeOfLine(document, 3));
    document.setParser(nullptr);
    QVERIFY(!document.next());
    QTextCursor(&document).insertText(QStringLiteral("\n"));
    document.setParser(&document.grammar);
    QCOMPARE(document.checkErrors(), 1);
    QCOMPARE(document.messages()->at(0).line, document.blockCount() - 2);
}

void TestCodeDocument::roundTrip_data()
{
    columns<QByteArray, bool, bool>("data", "faithful", "foreignEnds");
    const QByteArray mark("\xEF\xBB\xBF");
    QTest::newRow("plain") << QByteArray("a=1\r\nb=2\r\n") << true << false;
    QTest::newRow("bare line feeds") << QByteArray("a\nb\r\nc\rd") << true << true;
    QTest::newRow("byte-order mark") << mark + "a\r\n" << true << false;
    QTest::newRow("blanks that do not break") << QByteArray("a\xC2\xA0"
                                                            "b\r\n")
                                              << true << false;
    QTest::newRow("line separator") << QByteArray("a\xE2\x80\xA8"
                                                  "b\r\n")
                                    << true << false;
    QTest::newRow("beyond 16 bits") << QByteArray("\xF0\x9F\x92\xA5\r\n") << true << false;
    QTest::newRow("null bytes") << QByteArray("a\0b\r\n", 5) << true << false;
    QTest::newRow("empty") << QByteArray() << true << false;
    QTest::newRow("paragraph separator") << QByteArray("a\xE2\x80\xA9"
                                                       "b\r\n")
                                         << false << false;
    QTest::newRow("marks of frames") << QByteArray("a\xEF\xB7\x90\xEF\xB7\x91"
                                                   "b\r")
                                     << false << true;
}

void TestCodeDocument::roundTrip()
{
    const auto [data, faithful, foreignEnds] = fetched<QByteArray, bool, bool>();
    TestInterface host;
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("a.code"));
    writeFile(name, data);
    GrammarDocument document;
    Archive& archive = *FileSystemArchive::instance();
    int utf8 = TextCodecs::index("UTF-8");
    QVERIFY(document.fromFile(archive, name, utf8, true));
    FileText file;
    QString error;
    QVERIFY(file.read(archive, name, utf8, &error));
    QCOMPARE(file.text, document.text());
    QCOMPARE(document.isFaithful(), faithful);
    QCOMPARE(document.hasForeignLineEnds(), foreignEnds);
    QVERIFY(!document.isModified());
    QVERIFY(document.toFile(archive, name, false));
    if (faithful && !foreignEnds) {
        QCOMPARE(readFile(name), data);
    } else if (faithful) {
        QCOMPARE(readFile(name), QByteArray("a\r\nb\r\nc\r\nd"));
    }
}

void TestCodeDocument::copiesKeepIdentity()
{
    TestInterface host;
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("a.code"));
    const QString other = folder.filePath(QStringLiteral("b.code"));
    writeFile(name, "[1]\r\n");
    writeFile(other, "[2]\r\n");
    Archive& archive = *FileSystemArchive::instance();
    GrammarDocument document;
    QVERIFY(document.fromFile(archive, name, false));
    QVERIFY(document.fromFile(archive, other, true));
    QCOMPARE(document.fileName(), name);
    QVERIFY(document.isModified());
    QCOMPARE(document.text(), QStringLiteral("[2]\n"));
    QVERIFY(document.toFile(archive, folder.filePath(QStringLiteral("c/d.code")), true));
    QCOMPARE(document.fileName(), name);
    QVERIFY(document.isModified());
    QCOMPARE(readFile(folder.filePath(QStringLiteral("c/d.code"))), QByteArray("[2]\r\n"));
    document.reset();
    QVERIFY(document.fileName().isEmpty());
    QVERIFY(document.isEmpty());
}

void TestCodeDocument::roundaboutNameIsWatched()
{
    TestInterface host;
    PlannedDialogs dialogs;
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("b")));
    const QString name = folder.filePath(QStringLiteral("b/../a.code"));
    writeFile(name, "[1]");
    GrammarDocument document;
    QVERIFY(document.fromFile(*FileSystemArchive::instance(), name, false));
    // One write, one signal.
    const auto change = [&name] {
        QFile file(name);
        QVERIFY(file.open(QIODevice::Append));
        file.write("\r\na=1");
    };
    change();
    QTRY_COMPARE(dialogs.count(), 1);
    QVERIFY(document.toFile(*FileSystemArchive::instance(), name, false));
    QTRY_VERIFY(!document.isWatchPaused());
    change();
    QTRY_COMPARE(dialogs.count(), 2);
}

void TestCodeDocument::vanishedFile()
{
    TestInterface host;
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("a.code"));
    writeFile(name, "[1]\r\na=1");
    GrammarDocument document;
    QVERIFY(document.fromFile(*FileSystemArchive::instance(), name, false));
    QVERIFY(QFile::remove(name));
    QVERIFY(!document.reload());
    QVERIFY(document.errorString().contains(name));
    QCOMPARE(document.text(), QStringLiteral("[1]\na=1"));
    QCOMPARE(document.fileName(), name);
}

/// A folder stands where the file should go.
void TestCodeDocument::failedSave()
{
    TestInterface host;
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("a.code"));
    writeFile(name, "[1]\r\n");
    GrammarDocument document;
    QVERIFY(document.fromFile(*FileSystemArchive::instance(), name, false));
    QTextCursor(&document).insertText(QStringLiteral("# "));
    QVERIFY(!document.toFile(*FileSystemArchive::instance(), folder.path(), false));
    QVERIFY(!document.errorString().isEmpty());
    QVERIFY(document.isModified());
    QCOMPARE(document.fileName(), name);
    QCOMPARE(readFile(name), QByteArray("[1]\r\n"));
}

void TestCodeDocument::partIsNotTheWhole_data()
{
    QTest::addColumn<qint64>("missing");
    QTest::newRow("a byte cannot be read") << qint64(1);
    QTest::newRow("larger than a text can be") << qint64(3) * 1024 * 1024 * 1024;
}

/// What is not read whole would be saved over the rest.
void TestCodeDocument::partIsNotTheWhole()
{
    QFETCH(qint64, missing);
    ShortArchive archive;
    archive.missing = missing;
    GrammarDocument document(QStringLiteral("[1]"));
    QVERIFY(!document.fromFile(archive, QStringLiteral("/a.code"), false));
    QVERIFY2(document.errorString().contains(QStringLiteral("/a.code")),
             qPrintable(document.errorString()));
    QCOMPARE(document.text(), QStringLiteral("[1]"));
    QVERIFY(document.fileName().isEmpty());
}

void TestCodeDocument::messagesAreToldOnce()
{
    GrammarDocument document(QStringLiteral("?e\n?w\n?d\n?e"));
    QSignalSpy updated(document.messages(), &Messages::updated);
    document.reparse();
    QCOMPARE(updated.count(), 1);
    QCOMPARE(document.messages()->count(Message::Error), 2);
    QCOMPARE(document.messages()->count(Message::Warning), 2);
    QTextBlock block = document.begin();
    block = document.nextBlockWithMessage(block, CodeBlockData::SyntaxMessage::Deprecated);
    QCOMPARE(block.blockNumber(), 2);
    block = document.nextBlockWithMessage(block, CodeBlockData::SyntaxMessage::Error);
    QCOMPARE(block.blockNumber(), 3);
    QVERIFY(!document.nextBlockWithMessage(block, CodeBlockData::SyntaxMessage::Error).isValid());
    block = document.previousBlockWithMessage(block, CodeBlockData::SyntaxMessage::Warning);
    QCOMPARE(block.blockNumber(), 1);
}

void TestCodeDocument::fullParseInsideChange_data()
{
    QTest::addColumn<std::function<void(GrammarDocument&)>>("parse");
    using Parse = std::function<void(GrammarDocument&)>;
    QTest::newRow("reparse") << Parse([](GrammarDocument& d) { d.reparse(); });
    QTest::newRow("rehighlight") << Parse([](GrammarDocument& d) { d.rehighlight(); });
    QTest::newRow("parser off and on") << Parse([](GrammarDocument& d) {
        d.setParser(nullptr);
        d.setParser(&d.grammar);
    });
    QTest::newRow("other text") << Parse([](GrammarDocument& d) { d.setPlainText("?w\n!z\n?e"); });
    QTest::newRow("undo") << Parse([](GrammarDocument& d) { d.undo(); });
}

/// What comes in the middle of a change may not count its lines twice.
void TestCodeDocument::fullParseInsideChange()
{
    QFETCH(std::function<void(GrammarDocument&)>, parse);
    GrammarDocument document(QStringLiteral("[1]\na=1\n?e\n!x\n-f\n?w\n"));
    document.beginChange(QString());
    QTextCursor(&document).insertText(QStringLiteral("# 1\n# 2\n"));
    parse(document);
    document.insert(QStringLiteral("?d\n[2]"));
    document.endChange();
    QCOMPARE(document.dump(), GrammarDocument(document.text()).dump());
}

/// What an editor keeps goes with its document, or when something else of it takes its place.
void TestCodeDocument::editorDataEnds()
{
    struct State : EditorData
    {
        explicit State(int& count) : alive(count) { ++alive; }
        ~State() override { --alive; }
        int& alive;
    };
    int alive = 0;
    {
        const QString code = QStringLiteral("code");
        const QString other = QStringLiteral("anim");
        GrammarDocument document;
        QVERIFY(!document.editorData(code));
        document.setEditorData(code, std::make_unique<State>(alive));
        document.setEditorData(other, std::make_unique<State>(alive));
        QVERIFY(document.editorData(code) != document.editorData(other));
        document.setEditorData(code, std::make_unique<State>(alive));
        QCOMPARE(alive, 2);
        document.setEditorData(code, nullptr);
        QVERIFY(!document.editorData(code) && document.editorData(other));
    }
    QCOMPARE(alive, 0);
}

void TestCodeDocument::parenthesesAndTokens()
{
    GrammarDocument document(QStringLiteral("# note\n[1]\n?d"));
    const auto data = [&](int line) {
        return CodeBlockData::testBlockData(document.findBlockByNumber(line));
    };
    QVERIFY(!data(0)->isParsed());
    QVERIFY(data(1)->isParsed());
    QCOMPARE(int(data(2)->syntaxMessages().first().type),
             int(CodeBlockData::SyntaxMessage::Deprecated));
    QCOMPARE(data(2)->syntaxMessages().first().end, 2);
    QCOMPARE(document.messages()->at(0).type, Message::Warning);
}

void TestCodeDocument::releaseDisposesOfAll()
{
    auto* document = new GrammarDocument(QStringLiteral("[1]\na=1\n!x\n-f"));
    const QPointer<QObject> document2 = document;
    auto* animations = new TestAnimations(document);
    const QPointer<QObject> list = static_cast<QObject*>(animations);
    document->registerDocumentEditor(animations, CodeNode::Animation, 0);
    document->release();
    QVERIFY(!document2);
    QVERIFY(!list);
}

void TestCodeDocument::hugeLinesAndManyEmptyOnes()
{
    GrammarDocument document(QString(10 * 1024 * 1024, QLatin1Char('x')) + QLatin1Char('\n') +
                             QString(200000, QLatin1Char('\n')));
    QCOMPARE(document.blockCount(), 200002);
    QCOMPARE(document.checkErrors(), 1);
    QTextCursor cursor(document.findBlockByNumber(100000));
    cursor.insertText(QStringLiteral("[1]"));
    QCOMPARE(document.childCount(), 1);
}

QTEST_MAIN(TestCodeDocument)
#include "tst_codedocument.moc"
