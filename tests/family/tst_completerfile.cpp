#include "family/completer/completerfile.h"

#include "family/grammar/grammar.h"
#include "family/grammar/linereader.h"

#include <QXmlStreamReader>
#include <QtTest>

using namespace Family;

namespace {

struct Offer
{
    QString trigger;
    QString word;
    QString description;
};

QVector<Offer> offersOf(const QByteArray& content)
{
    QVector<Offer> offers;
    QStringList triggers;
    QXmlStreamReader xml(content);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        const auto attribute = [&](const char* name) {
            return xml.attributes().value(QLatin1String(name)).toString();
        };
        if (xml.name() == QLatin1String("words")) {
            triggers = attribute("trigger").split(QLatin1Char(' '));
        } else if (xml.name() == QLatin1String("word")) {
            offers.append({triggers.first(), attribute("text"), attribute("description")});
        }
    }
    return xml.hasError() ? QVector<Offer>() : offers;
}

bool isRead(const QString& line, const LineHead& head, FileKind file)
{
    LineDetails details;
    LineReport report(nullptr, &details);
    readLine(line, head, file, report);
    return details.problems.isEmpty();
}

/// True if the parser takes the line without a word under any of the heads of the grammar.
bool isReadSomewhere(const QString& line)
{
    for (int file = 0; file <= int(FileKind::Commands); ++file) {
        for (const GroupInfo* group : Grammar::groups()) {
            if (!group->isDeprecated() && isRead(line, {LineHead::Group, group}, FileKind(file))) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace

/// The generated file of words, against the parser and the tables.
class TestCompleterFile : public QObject
{
    Q_OBJECT

private slots:
    void everyWordIsRead();
    void nothingIsMissing();
    void ownFiles();
};

void TestCompleterFile::everyWordIsRead()
{
    const QVector<Offer> offers = offersOf(completerXml());
    QVERIFY(offers.size() > 30);
    for (const Offer& offer : offers) {
        QVERIFY2(!offer.description.isEmpty(), qPrintable(offer.word));
        QString line = offer.trigger + offer.word;
        if (line.startsWith(QLatin1Char('['))) {
            const bool isRead = isReadSomewhere(line + QLatin1Char(']')) ||
                                isReadSomewhere(line + QLatin1String(" name]"));
            QVERIFY2(isRead, qPrintable(line));
        } else {
            // Free keys would take anything.
            QVERIFY2(isReadSomewhere(line) && !isReadSomewhere(line + QLatin1Char('x')),
                     qPrintable(line));
        }
    }
}

void TestCompleterFile::nothingIsMissing()
{
    QSet<QString> offered;
    const QVector<Offer> offers = offersOf(completerXml());
    for (const Offer& offer : offers) {
        offered.insert(offer.trigger + offer.word);
    }
    for (const GroupInfo* group : Grammar::groups()) {
        const QString bracket = QLatin1String(group->isSubGroup() ? "[." : "[");
        QCOMPARE(offered.contains(bracket + group->name), !group->isDeprecated());
        for (const KeyInfo& key : *group) {
            const QStringList choices = key.choiceList();
            for (const QString& choice : choices) {
                const QString line = key.name + QLatin1Char('=') + choice;
                QVERIFY2(offered.contains(line), qPrintable(line));
            }
        }
    }
}

void TestCompleterFile::ownFiles()
{
    QVERIFY(isOwnCompleter(completerXml()));
    QByteArray changed = completerXml();
    changed.replace(" origin=\"zorv\"", "");
    QVERIFY(!isOwnCompleter(changed));
    QVERIFY(!isOwnCompleter(QByteArray()));
    QVERIFY(!isOwnCompleter("<snippets origin=\"zorv\"/>"));
}

QTEST_GUILESS_MAIN(TestCompleterFile)
#include "tst_completerfile.moc"
