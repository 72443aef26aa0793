#include "family/check/check.h"
#include "family/data/snippettexts.h"
#include "operations/hostinterface.h"
#include "support/folders.h"
#include "support/planneddialogs.h"

#include <zorv/editors/snipman/snipdlg.h>
#include <zorv/editors/snipman/snippetmanager.h>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QTemporaryDir>
#include <QTimer>
#include <QXmlStreamReader>
#include <QtTest>

using Zorv::SnippetManager;

namespace {

/// A text and what it belongs to, as a file of translations has it.
using Entry = QPair<QString, QString>;

/// Where a snippet belongs: the file, what stands above it and what it refers to.
struct Place
{
    const char* snippet;
    const char* file;
    const char* above;
    const char* below;
    const char* cursor;  ///< what stands in front of the cursor in the finished text
};

const char* const stageAbove = "[arena]\nleft = -100\nright = 100\nfloor = 0\n";
const char* const frames = "animation 200\nframe 0,0 loop\nanimation 800\nframe 0,0 loop\n"
                           "animation 1000\nframe 0,0 loop\n[commands]\nlight = \"L\"\n"
                           "throw = \"F + M\"\nwave = \"D, DF, F, L\"\n";

const Place places[] = {
    {"Attack", "a.character", "", frames, "guard = 5, 0\n"},
    {"Attack animation", "a.anim", "", "", "attack 12,-87, 50,-72"},
    {"Character head", "a.character", "", "", "note       = \""},
    {"Command", "a.commands", "[commands]\n", "", "wave = \"D, DF, F, L\""},
    {"Comment header", "a.code", "", "", "-----\n"},
    {"Group of commands", "a.commands", "", "", "run    = \"F, F\"\n"},
    {"Music", "a.stage", stageAbove, "", "fade   = 1.5\n"},
    {"Palette", "a.character", "", "", "brightness = 100%\n"},
    {"Special move", "a.character", "", frames, "note      = \""},
    {"Stage head", "a.stage", "", "", "note       = \""},
    {"Stage layer", "a.stage", stageAbove, "", "offset  = 0, 0"},
    {"Standing animation", "a.anim", "", "", "frame 0,3  delay 7\n"},
    {"Throw", "a.character", "", frames, "hit = 1, 4\n"},
    {"Walk cycle", "a.anim", "", "", "frame 20,5  delay 5\n"},
};

void write(const QDir& folder, const QString& name, const QString& text)
{
    QVERIFY(writeFile(folder.filePath(name), text.toUtf8()));
}

}  // namespace

class TestShippedSnippets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SnippetManager::instance()->update(QStringLiteral(ZORV_SNIPPETS)); }

    void everySnippetHasAPlaceHere()
    {
        QStringList expected;
        for (const Place& place : places) {
            expected.append(QLatin1String(place.snippet));
        }
        QStringList there;
        for (int row = 0; row < SnippetManager::instance()->rowCount(); ++row) {
            there.append(SnippetManager::instance()->index(row).data(Qt::EditRole).toString());
        }
        expected.sort();
        there.sort();
        QCOMPARE(there, expected);
    }

    void defaultsParseWithoutAnyProblem_data()
    {
        QTest::addColumn<int>("place");
        for (size_t i = 0; i < std::size(places); ++i) {
            QTest::newRow(places[i].snippet) << int(i);
        }
    }

    void defaultsParseWithoutAnyProblem()
    {
        QFETCH(int, place);
        const Place& it = places[place];
        QString text = filledIn(rowOf(QLatin1String(it.snippet)));
        const QString marker = QStringLiteral("CURSOR");
        QCOMPARE(text.count(marker), 1);
        QVERIFY2(text.left(text.indexOf(marker)).endsWith(QLatin1String(it.cursor)),
                 qPrintable(text));
        text.remove(marker);
        QVERIFY2(!text.contains(QLatin1Char('@')), qPrintable(text));

        const QTemporaryDir game;
        const QDir folder(game.path());
        // What the defaults name.
        for (const char* name : {"fighter.code", "fighter.anim", "fighter.commands", "music.wav",
                                 "palettes/blue.act"}) {
            write(folder, QLatin1String(name), {});
        }
        write(folder, QLatin1String(it.file),
              QLatin1String(it.above) + text + QLatin1String(it.below));
        QString error;
        const Family::Problems problems =
            Family::checkGame(folder.filePath(QLatin1String(it.file)), &error);
        QCOMPARE(error, QString());
        QVERIFY2(problems.isEmpty(), qPrintable(problemLine(problems.value(0)) + text));
    }

    void filesAreAsTheDialogWritesThem_data() { defaultsParseWithoutAnyProblem_data(); }

    void filesAreAsTheDialogWritesThem()
    {
        QFETCH(int, place);
        const QString name =
            SnippetManager::instance()->fileName(rowOf(QLatin1String(places[place].snippet)));
        const SnipDlg dialog(&m_host, name);
        QFile file(name);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(dialog.toString().toUtf8(), file.readAll());
        QCOMPARE(dialog.findChild<QLabel*>(QStringLiteral("hint"))->text(), QString());
    }

    void textsForTranslatorsAreComplete()
    {
        QSet<Entry> expected, table;
        for (const Place& place : places) {
            const QString name = QLatin1String(place.snippet);
            expected.insert({name, QStringLiteral("snippet")});
            expected += entriesOf(SnippetManager::instance()->fileName(rowOf(name)));
        }
        for (const Family::SnippetText& entry : Family::snippetTexts) {
            table.insert({QLatin1String(entry.text), QLatin1String(entry.comment)});
        }
        QCOMPARE(table - expected, QSet<Entry>());
        QCOMPARE(expected - table, QSet<Entry>());
    }

private:
    static unsigned rowOf(const QString& name)
    {
        const auto* manager = SnippetManager::instance();
        return unsigned(manager->match(manager->index(0), Qt::EditRole, name, 1, Qt::MatchExactly)
                            .value(0)
                            .row());
    }

    QString filledIn(unsigned row)
    {
        QTimer::singleShot(0, [] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                dialog->accept();
            }
        });
        return SnippetManager::instance()->snippet(m_host, row);
    }

    /// The messages of the translation source of a snippet.
    QSet<Entry> entriesOf(const QString& fileName)
    {
        const QTemporaryDir folder;
        const QString source = folder.filePath(QStringLiteral("s.ts"));
        QFile xml(fileName), ts(source);
        if (!xml.open(QIODevice::ReadOnly) ||
            !SnippetManager::genTS(m_host, source, QString::fromUtf8(xml.readAll())) ||
            !ts.open(QIODevice::ReadOnly)) {
            return {};
        }
        QSet<Entry> entries;
        QString text;
        for (QXmlStreamReader reader(&ts); !reader.atEnd(); reader.readNext()) {
            if (reader.isStartElement() && reader.name() == QLatin1String("source")) {
                text = reader.readElementText();
            } else if (reader.isStartElement() && reader.name() == QLatin1String("comment")) {
                entries.insert({text, reader.readElementText()});
            }
        }
        return entries;
    }

    Operations::HostInterface m_host;
    PlannedDialogs m_dialogs;
};

QTEST_MAIN(TestShippedSnippets)
#include "tst_shippedsnippets.moc"
