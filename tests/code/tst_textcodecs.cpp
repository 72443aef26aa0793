#include "code/codecs/textcodecs.h"
#include "support/testtable.h"

#include <QTextCodec>
#include <QtTest>

using namespace Zorv;

namespace {

const char german[] =
    "; Gr\u00f6\u00dfe und \u00dcbung: sch\u00f6ne Gr\u00fc\u00dfe, f\u00fcr alle "
    "\u00c4pfel m\u00fcssen wir \u00fcber die Stra\u00dfe.\r\n";
const char japanese[] = "; \u30ad\u30e3\u30e9\u30af\u30bf\u30fc\u306e\u540d\u524d\u3068"
                        "\u30a2\u30cb\u30e1\u30fc\u30b7\u30e7\u30f3\u306e\u8a2d\u5b9a\u3067\u3059"
                        "\u3002\r\n";
const char russian[] = "; \u041f\u0435\u0440\u0441\u043e\u043d\u0430\u0436 \u0438 \u0435\u0433"
                       "\u043e \u0443\u0434\u0430\u0440\u044b \u0440\u0443\u043a\u043e\u0439\r\n";

int number(const QByteArray& name)
{
    return TextCodecs::index(name.constData());
}

QByteArray withoutMark(const QByteArray& data)
{
    return data.mid(TextCodecs::byteOrderMark(data).size());
}

}  // namespace

class TestTextCodecs : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { TextCodecs::setDefaultCodec(0); }

    void numbersAndNames()
    {
        QVERIFY(TextCodecs::count() > 1);
        QCOMPARE(TextCodecs::name(0), QStringLiteral("System"));
        for (int i = 1; i < TextCodecs::count(); ++i) {
            const QByteArray name = TextCodecs::name(i).toLatin1();
            QVERIFY(!name.isEmpty());
            QCOMPARE(TextCodecs::name(number(name)).toLatin1(), name);
        }
        for (const char* name : {"System", "utf-8", "UTF-8 ", "", "no such codec"}) {
            QCOMPARE(number(name), 0);
        }
        QCOMPARE(TextCodecs::name(TextCodecs::count()), QString());
        QCOMPARE(TextCodecs::name(-5), QString());
    }

    void numbersOffTheList_data()
    {
        QTest::addColumn<int>("codec");
        row("behind", TextCodecs::count());
        row("far", INT_MAX);
        row("none", 0);
    }

    void numbersOffTheList()
    {
        QFETCH(int, codec);
        const QString text = QString::fromUtf8(german);
        QTextCodec* locale = QTextCodec::codecForLocale();
        QCOMPARE(TextCodecs::stringToData(text, codec), locale->fromUnicode(text));
        QCOMPARE(TextCodecs::stringToData(text, -1), locale->fromUnicode(text));
        int used = codec;
        TextCodecs::stringFromData("x", &used);
        QCOMPARE(used, number(locale->name()));
    }

    void detection_data()
    {
        columns<QByteArray, QString>("codec", "text");
        row("UTF-8", QByteArray("UTF-8"), QString::fromUtf8(german));
        row("German", QByteArray("ISO-8859-1"), QString::fromUtf8(german));
        row("Japanese", QByteArray("Shift_JIS"), QString::fromUtf8(japanese));
        row("Russian", QByteArray("windows-1251"), QString::fromUtf8(russian));
        row("UTF-16", QByteArray("UTF-16"), QString::fromUtf8(russian));
    }

    void detection()
    {
        const auto [codec, text] = fetched<QByteArray, QString>();
        QString whole;
        for (int i = 0; i < 20; ++i) {
            whole += text;
        }
        const QByteArray data = QTextCodec::codecForName(codec)->fromUnicode(whole);
        int used = -1;
        QCOMPARE(TextCodecs::stringFromData(data, &used), whole);
        QVERIFY(used > 0);
        QVERIFY(TextCodecs::isFaithful(data, used));
        QCOMPARE(TextCodecs::stringToData(whole, used), data);
    }

    void nothingDetected_data()
    {
        QTest::addColumn<QByteArray>("data");
        row("empty", QByteArray());
        row("ASCII", QByteArray("; plain\r\nvalue = 1\r\n"));
    }

    // Plain ASCII says nothing about what will be typed later.
    void nothingDetected()
    {
        QFETCH(QByteArray, data);
        QCOMPARE(TextCodecs::get(data), QTextCodec::codecForLocale());
        for (const char* name : {"windows-1252", "UTF-8", "Shift_JIS"}) {
            TextCodecs::setDefaultCodec(number(name));
            QCOMPARE(TextCodecs::get(data)->name(), QByteArray(name));
            int used = -1;
            QCOMPARE(TextCodecs::stringFromData(data, &used), QString::fromLatin1(data));
            QCOMPARE(used, number(name));
        }
    }

    void knownNumberIsNotDetected()
    {
        int used = number("windows-1252");
        const QByteArray data = QByteArray(german);
        QCOMPARE(TextCodecs::stringFromData(data, &used),
                 QTextCodec::codecForName("windows-1252")->toUnicode(data));
        QCOMPARE(used, number("windows-1252"));
    }

    void faithfulness_data()
    {
        columns<QByteArray, QByteArray, bool>("data", "codec", "isFaithful");
        const QByteArray utf8 = german, cut = utf8.left(utf8.indexOf('\xc3') + 1);
        const QByteArray little("\xff\xfe"
                                "a\0b\0",
                                6),
            big("\xfe\xff\0a\0b", 6);
        row("UTF-8", utf8, QByteArray("UTF-8"), true);
        row("with a mark", "\xef\xbb\xbf" + utf8, QByteArray("UTF-8"), true);
        row("broken UTF-8", QByteArray("a\xff z"), QByteArray("UTF-8"), false);
        row("cut at the end", cut, QByteArray("UTF-8"), false);
        row("overlong", QByteArray("\xc0\xaf"), QByteArray("UTF-8"), false);
        row("NUL", QByteArray("a\0b", 3), QByteArray("UTF-8"), true);
        row("empty", QByteArray(), QByteArray("UTF-8"), true);
        row("in another codec", utf8, QByteArray("windows-1252"), true);
        row("mark as text", "\xef\xbb\xbf" + utf8, QByteArray("ISO-8859-1"), true);
        row("in too small a codec", utf8, QByteArray("US-ASCII"), false);
        row("little end first", little, QByteArray("UTF-16LE"), true);
        row("big end first", big, QByteArray("UTF-16BE"), true);
        // Saved, it would come out with the other end first.
        row("big end, by mark", big, QByteArray("UTF-16"),
            (QSysInfo::ByteOrder == QSysInfo::BigEndian));
        row("half a character", little.left(5), QByteArray("UTF-16LE"), false);
    }

    void faithfulness()
    {
        const auto [data, codec] = fetched<QByteArray, QByteArray>();
        QVERIFY(number(codec) > 0);
        QTEST(TextCodecs::isFaithful(data, number(codec)), "isFaithful");
    }

    // Reading by blocks answers as converting the whole at once does.
    void faithfulnessOfLargeData_data()
    {
        QTest::addColumn<QByteArray>("codec");
        for (const char* name : {"UTF-8", "UTF-16LE", "UTF-32", "windows-1252", "windows-1251",
                                 "Shift_JIS", "GB18030", "Big5", "EUC-KR", "ISO-8859-1"}) {
            row(name, QByteArray(name));
        }
    }

    void faithfulnessOfLargeData()
    {
        QFETCH(QByteArray, codec);
        const quint32 seed = 99;
        qInfo("seed %u", seed);
        QRandomGenerator random(seed);
        const QTextCodec* qt = QTextCodec::codecForName(codec);
        int faithful = 0;
        for (int round = 0; round < 60; ++round) {
            // Characters of one to four bytes fall on every side of the blocks.
            QString text;
            const int size = random.bounded(2) ? random.bounded(300) : 150000;
            while (text.size() < size) {
                text += QChar(random.bounded(32, 127));
                if (random.bounded(3) == 0) {
                    text += QString::fromUtf8(round % 2 ? japanese : russian);
                }
                if (random.bounded(50) == 0) {
                    text += QString::fromUcs4(U"\U0001F600");
                }
            }
            QByteArray data = qt->fromUnicode(text);
            if (round % 4 == 0) {
                data[random.bounded(data.size())] = char(random.bounded(256));
            }
            const bool expected =
                withoutMark(qt->fromUnicode(qt->toUnicode(data))) == withoutMark(data);
            QCOMPARE(TextCodecs::isFaithful(data, number(codec)), expected);
            faithful += expected;
        }
        QVERIFY(faithful > 0);
    }

    // Whatever the bytes, the offered codec gives them back.
    void offeredCodecIsFaithful()
    {
        const quint32 seed = 7;
        qInfo("seed %u", seed);
        QRandomGenerator random(seed);
        for (int round = 0; round < 300; ++round) {
            QByteArray data(random.bounded(200), Qt::Uninitialized);
            for (char& byte : data) {
                byte = char(random.bounded(256));
            }
            if (round % 3 == 0) {
                data.prepend(round % 2 ? QByteArray("\xfe\xff", 2) : QByteArray("\xef\xbb\xbf", 3));
            }
            int codec = TextCodecs::faithfulCodec(data);
            QVERIFY(codec > 0);
            const QString text = TextCodecs::stringFromData(data, &codec);
            QCOMPARE(withoutMark(TextCodecs::stringToData(text, codec)), withoutMark(data));
        }
    }

    void offeredCodec_data()
    {
        columns<QByteArray, QByteArray>("data", "codec");
        row("ASCII", QByteArray("abc"), QByteArray("UTF-8"));
        row("UTF-8", QByteArray(german), QByteArray("UTF-8"));
        row("big end first", QByteArray("\xfe\xff\x04\x10\x04\x11", 6), QByteArray("UTF-16BE"));
        row("Japanese",
            QTextCodec::codecForName("Shift_JIS")->fromUnicode(QString::fromUtf8(japanese)),
            QByteArray("Shift_JIS"));
        row("noise", QByteArray("\xff\x80\x81\x00\x9d", 5), QByteArray("windows-1252"));
    }

    void offeredCodec()
    {
        QFETCH(QByteArray, data);
        QTEST(TextCodecs::name(TextCodecs::faithfulCodec(data)).toLatin1(), "codec");
    }

    void firstUnencodable_data()
    {
        columns<QString, QByteArray, int>("text", "codec", "place");
        const QString smile = QString::fromUcs4(U"\U0001F600");
        const QString line = QString::fromUtf8(german);
        row("all there", line, QByteArray("windows-1252"), -1);
        row("empty", QString(), QByteArray("windows-1252"), -1);
        row("line separator", line + QChar(0x2028), QByteArray("windows-1252"), line.size());
        row("question mark in front", QStringLiteral("?\u0416"), QByteArray("ISO-8859-1"), 1);
        row("far behind", QString(200001, 'x') + QStringLiteral("\u0416"),
            QByteArray("windows-1252"), 200001);
        row("pair", "ab" + smile, QByteArray("windows-1252"), 2);
        row("pair, there", "ab" + smile + "c", QByteArray("UTF-8"), -1);
        row("pair across a block", QString(65535, 'x') + smile, QByteArray("UTF-8"), -1);
        row("half a pair", QString("ab") + QChar(0xd83d) + "c", QByteArray("UTF-8"), 2);
        row("half a pair at the end", QString("ab") + QChar(0xd83d), QByteArray("UTF-8"), 2);
        row("mark as text", QString(QChar(0xfeff)) + "a", QByteArray("UTF-8"), -1);
        row("UTF-16", smile + line, QByteArray("UTF-16"), -1);
    }

    void firstUnencodable()
    {
        const auto [text, codec] = fetched<QString, QByteArray>();
        QTEST(TextCodecs::firstUnencodable(text, number(codec)), "place");
    }

    void marks_data()
    {
        columns<QByteArray, int>("data", "size");
        row("none", QByteArray("abc"), 0);
        row("empty", QByteArray(), 0);
        row("UTF-8",
            QByteArray("\xef\xbb\xbf"
                       "abc"),
            3);
        row("cut", QByteArray("\xef\xbb"), 0);
        row("UTF-16, little",
            QByteArray("\xff\xfe"
                       "a\0",
                       4),
            2);
        row("UTF-16, big", QByteArray("\xfe\xff\0a", 4), 2);
        row("UTF-32, little", QByteArray("\xff\xfe\0\0a\0\0\0", 8), 4);
        row("UTF-32, big", QByteArray("\0\0\xfe\xff\0\0\0a", 8), 4);
    }

    void marks()
    {
        const auto [data, size] = fetched<QByteArray, int>();
        QCOMPARE(TextCodecs::byteOrderMark(data), data.left(size));
    }
};

QTEST_GUILESS_MAIN(TestTextCodecs)
#include "tst_textcodecs.moc"
