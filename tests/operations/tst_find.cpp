#include "operations/find/bytefilter.h"
#include "operations/find/codefiles.h"
#include "operations/find/findpattern.h"
#include "operations/find/findreplace.h"
#include "operations/find/gametexts.h"
#include "support/folders.h"
#include "support/testtable.h"

#include <zorv/code/codecs/textcodecs.h>

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

using namespace Operations;

namespace {

const StopFlag never{false};

FileHits search(const QString& path, const FindPattern& pattern)
{
    return searchFile(path, pattern, ByteFilter(pattern), 1000, never);
}

QByteArray encoded(const QString& text, const char* codec)
{
    return QTextCodec::codecForName(codec)->fromUnicode(text);
}

/// "line:column:length line" of each, from 1.
QStringList inWords(const FileHits& found)
{
    QStringList words;
    for (const FindHit& hit : found.hits) {
        words += QStringLiteral("%1:%2:%3 %4")
                     .arg(QString::number(hit.line + 1), QString::number(hit.column + 1),
                          QString::number(hit.length), hit.shown);
    }
    return words;
}

}  // namespace

class TestFind : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void findsInFiles_data();
    void findsInFiles();
    void bytesSayWhatTheTextSays();
    void whichFiles();
    void replacesNothingElse_data();
    void replacesNothingElse();
    void refuses_data();
    void refuses();
    void chosenOnes();
    void textsOfAGame();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestFind::init()
{
    Zorv::TextCodecs::setDefaultCodec(Zorv::TextCodecs::index("UTF-8"));
    m_folder = std::make_unique<QTemporaryDir>();
}

void TestFind::findsInFiles_data()
{
    columns<QByteArray, QString, int, QStringList>("file", "text", "options", "expected");
    using P = FindPattern;
    const QByteArray plain = "[move jab]\r\nanimation = 200\r\n# Jabs\rjab";
    row("any case", plain, QStringLiteral("JAB"), 0,
        QStringList{"1:7:3 [move jab]", "3:3:3 # Jabs", "4:1:3 jab"});
    row("case", plain, QStringLiteral("Jab"), int(P::MatchCase), QStringList{"3:3:3 # Jabs"});
    row("word", plain, QStringLiteral("jab"), int(P::WholeWord),
        QStringList{"1:7:3 [move jab]", "4:1:3 jab"});
    row("expression by lines", plain, QStringLiteral("^a.*0$"), int(P::Expression),
        QStringList{"2:1:15 animation = 200"});
    row("over a line end", plain, QStringLiteral("jab\\]\\n"), int(P::Expression),
        QStringList{"1:7:5 [move jab]"});
    row("empty places", QByteArray("a\n\nb"), QStringLiteral("^$"), int(P::Expression),
        QStringList{"2:1:0 "});
    row("wrong expression", plain, QStringLiteral("(jab"), int(P::Expression), QStringList());
    row("Kelvin", QByteArray("1 \u212a"), QStringLiteral("k"), 0, QStringList{"1:3:1 1 \u212a"});
    row("long s", QByteArray("\u017f\u017f"), QStringLiteral("SS"), 0,
        QStringList{"1:1:2 \u017f\u017f"});
    row("other letters", QByteArray("# Ärger"), QStringLiteral("äR"), 0,
        QStringList{"1:3:2 # Ärger"});
    row("mark of UTF-8", QByteArray("\xEF\xBB\xBF# a"), QStringLiteral("# a"), 0,
        QStringList{"1:1:3 # a"});
    row("UTF-16", encoded("# jab\n", "UTF-16"), QStringLiteral("jab"), 0,
        QStringList{"1:3:3 # jab"});
    const QString japanese =
        QStringLiteral("# 投げ技。波動拳を出す。昇竜拳。これは必殺技です。\njab");
    row("Shift_JIS", encoded(japanese, "Shift_JIS"), QStringLiteral("必殺技"), 0,
        QStringList{"1:21:3 " + japanese.section('\n', 0, 0)});
    row("ISO-2022-JP", encoded(japanese, "ISO-2022-JP"), QStringLiteral("波動拳"), 0,
        QStringList{"1:7:3 " + japanese.section('\n', 0, 0)});
    row("line separator", QByteArray("a\u2029jab"), QStringLiteral("jab"), 0,
        QStringList{"2:1:3 jab"});
}

void TestFind::findsInFiles()
{
    const auto [file, text, options, expected] = fetched<QByteArray, QString, int, QStringList>();
    QVERIFY(writeFile(path("a.code"), file));
    QCOMPARE(inWords(search(path("a.code"), FindPattern(text, options))), expected);
}

/// A file that the bytes rule out has no hit in its text either, whatever is looked for.
void TestFind::bytesSayWhatTheTextSays()
{
    QRandomGenerator random(7);
    const QString letters = QStringLiteral("abkKsS~{ \n\r\u017f\u212aäÄß拳\xa0") +
                            QString::fromUtf8("\xF0\x9F\xA5\x8B");
    const auto word = [&](int most) {
        QString text;
        for (int left = 1 + random.bounded(most); left > 0; --left) {
            text += letters.at(random.bounded(letters.size()));
        }
        return text;
    };
    int found = 0;
    for (int round = 0; round < 4000; ++round) {
        const FindPattern pattern(word(3), random.bounded(4));
        const QString text = Zorv::CodeFind::searchableText(word(40));
        const QByteArray bytes = text.toUtf8();
        const ByteKind kind = kindOfBytes(bytes.constData(), bytes.size());
        const bool isThere = !searchText(text, pattern, 1, never).hits.isEmpty();
        found += isThere ? 1 : 0;
        QVERIFY2(!isThere || ByteFilter(pattern).mayMatch(bytes.constData(), bytes.size(), kind),
                 qPrintable(pattern.text() + " in " + text));
    }
    QVERIFY(found > 500 && found < 3500);
}

void TestFind::whichFiles()
{
    for (const char* name : {"characters/b/b.character", "characters/a/A.ANIM", "loose.code",
                             "characters/a/backup/x.code", "shared/x.txt", "backup/x.code",
                             ".hidden/x.code", "zorvs_1-a/x.code", "shared/.x.code"}) {
        QVERIFY(writeFile(path(name), "x"));
    }
    QVERIFY(QFile::link(path("loose.code"), path("link.code")));
    QVERIFY(QFile::link(path("shared"), path("shared/again")));
    const QStringList all{path("characters/a/A.ANIM"), path("characters/a/backup/x.code"),
                          path("characters/b/b.character"), path("loose.code")};
    QCOMPARE(codeFiles(m_folder->path()), all);
    QCOMPARE(codeFiles(m_folder->path(), 1 << int(Family::FileKind::Animations)), all.mid(0, 1));
}

void TestFind::replacesNothingElse_data()
{
    columns<QByteArray, QString, QString, int, QByteArray>("file", "text", "with", "options",
                                                           "expected");
    using P = FindPattern;
    row("mixed line ends", QByteArray("jab\r\nx jab\njab\r"), QStringLiteral("jab"),
        QStringLiteral("kick"), 0, QByteArray("kick\r\nx kick\nkick\r"));
    row("over line ends", QByteArray("a\r\nb\r\nc"), QStringLiteral("\\nb\\n"),
        QStringLiteral("-\\n-"), int(P::Expression), QByteArray("a-\r\n-c"));
    row("line feeds stay", QByteArray("a\nb\n"), QStringLiteral("(a)"), QStringLiteral("\\1\\n\\1"),
        int(P::Expression), QByteArray("a\na\nb\n"));
    row("mark stays", QByteArray("\xEF\xBB\xBFjab"), QStringLiteral("jab"), QString(""), 0,
        QByteArray("\xEF\xBB\xBF"));
    row("UTF-16", encoded("a jab\r\n", "UTF-16"), QStringLiteral("jab"), QStringLiteral("拳"), 0,
        encoded(QStringLiteral("a 拳\r\n"), "UTF-16"));
}

void TestFind::replacesNothingElse()
{
    const auto [file, text, with, options, expected] =
        fetched<QByteArray, QString, QString, int, QByteArray>();
    QVERIFY(writeFile(path("a.code"), file));
    const FindPattern pattern(text, options);
    const int count = search(path("a.code"), pattern).hits.size();
    QString error;
    const int replaced = replaceInFile(path("a.code"), {pattern, with}, &error);
    QVERIFY2(replaced == count, qPrintable(error));
    QCOMPARE(readFile(path("a.code")), expected);
}

void TestFind::refuses_data()
{
    columns<QByteArray, QString, QString>("file", "with", "error");
    row("lacks a character", QByteArray("# jab caf\xE9, \xE0 la carte\n"), QStringLiteral("拳"),
        QStringLiteral("has no '拳'"));
    row("would change elsewhere", QByteArray("# jab caf\xC3\xA9 \xE2\x80\xA9 x\n"),
        QStringLiteral("a"), QStringLiteral("byte for byte"));
}

void TestFind::refuses()
{
    const auto [file, with, expected] = fetched<QByteArray, QString, QString>();
    QVERIFY(writeFile(path("a.code"), file));
    QString error;
    QCOMPARE(replaceInFile(path("a.code"), {FindPattern("jab"), with}, &error), -1);
    QVERIFY2(error.contains(expected), qPrintable(error));
    QCOMPARE(readFile(path("a.code")), file);
}

void TestFind::chosenOnes()
{
    QVERIFY(writeFile(path("a.code"), "jab jab\njab"));
    const FindPattern pattern(QStringLiteral("jab"));
    QVector<FindHit> chosen = search(path("a.code"), pattern).hits;
    chosen.remove(1);
    const Replacing replacing{pattern, QStringLiteral("x"), &chosen};
    QString error;
    QCOMPARE(replaceInFile(path("a.code"), replacing, &error), 2);
    QCOMPARE(readFile(path("a.code")), QByteArray("x jab\nx"));
    // What was chosen stands there no more.
    QCOMPARE(replaceInFile(path("a.code"), replacing, &error), -1);
    QCOMPARE(readFile(path("a.code")), QByteArray("x jab\nx"));
}

/// Whatever changes where, what was handed over is in the end what a search of all finds.
void TestFind::textsOfAGame()
{
    using Texts = QMap<QString, QString>;
    Texts handedOver;
    GameTexts texts;
    connect(&texts, &GameTexts::found, [&](const QVector<GameFinding>& findings) {
        for (const GameFinding& each : findings) {
            const auto* text = static_cast<const QString*>(each.result.get());
            text ? void(handedOver.insert(each.path, *text)) : void(handedOver.remove(each.path));
        }
    });
    const auto read = [] {
        return [](const GameText& each, const StopFlag&) -> std::shared_ptr<const void> {
            const QString text = each.text ? *each.text : QString::fromUtf8(readFile(each.path));
            return text.isEmpty() ? nullptr : std::make_shared<const QString>(text);
        };
    };
    QRandomGenerator random(11);
    Texts disk;
    Texts open;
    texts.setGame(m_folder->path());
    for (int round = 0; round < 40; ++round) {
        for (int i = random.bounded(6); i >= 0; --i) {
            const QString file = path(QStringLiteral("f%1/a.code").arg(random.bounded(120)));
            const QString text = QString::number(round * 10 + i).repeated(random.bounded(3));
            switch (random.bounded(4)) {
            case 0:
                open.insert(file, text);
                texts.setText(file, std::make_shared<const QString>(text));
                break;
            case 1:
                open.remove(file);
                texts.setText(file, nullptr);
                break;
            case 2:
                disk.remove(file);
                QFile::remove(file);
                break;
            default:
                disk.insert(file, text);
                QVERIFY(writeFile(file, text.toUtf8()));
            }
        }
        if (round % 15 == 0) {
            handedOver.clear();
            texts.start(read, AllKinds);
        }
        texts.look();
        Texts expected = disk;
        for (auto it = open.cbegin(); it != open.cend(); ++it) {
            expected.insert(it.key(), it.value());
        }
        for (const QString& file : expected.keys(QString())) {
            expected.remove(file);
        }
        QTRY_COMPARE_WITH_TIMEOUT(handedOver, expected, 20000);
    }
    QTRY_VERIFY(texts.isDone());
    texts.start(read, AllKinds);  // and dies in the midst
}

QTEST_GUILESS_MAIN(TestFind)
#include "tst_find.moc"
