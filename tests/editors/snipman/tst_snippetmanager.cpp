#include "core/enginemodel.h"
#include "editors/snipman/snippetmanager.h"
#include "modalkeys.h"
#include "support/folders.h"
#include "support/planneddialogs.h"
#include "support/testinterface.h"
#include "support/testtable.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QScrollArea>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

using Zorv::SnippetManager;

namespace {

/// A snippet around some fields and code.
QString xmlOf(const QString& fields, const QString& code)
{
    return QStringLiteral("<snippet>\r\n%1<code>%2</code>\r\n</snippet>").arg(fields, code);
}

/// Marks what goes through it.
class Marking : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* comment,
                      int) const override
    {
        const QString plain = QString::fromUtf8(text);
        return qstrcmp(context, "Snippets") == 0
                   ? QStringLiteral("%1%2 of %3").arg(prefixes.value(plain), plain, comment)
                   : QString();
    }

    QMap<QString, QString> prefixes;
};

}  // namespace

class TestSnippetManager : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_host = std::make_unique<TestInterface>();
        m_dialogs = std::make_unique<PlannedDialogs>();
        m_folder = std::make_unique<QTemporaryDir>();
    }

    void rowsAreTheFilesOfTheFolder()
    {
        auto* manager = SnippetManager::instance();
        const QAbstractItemModelTester tester(manager);
        for (const char* name : {"walk.xml", "Jump.kick.xml", "aim.xml"}) {
            write(name, "<snippet><code>x</code></snippet>");
        }
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder.xml")));
        manager->update(m_folder->path());
        QCOMPARE(names(), (QStringList{"aim", "Jump.kick", "walk"}));
        QCOMPARE(manager->fileName(1), m_folder->filePath(QStringLiteral("Jump.kick.xml")));

        QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("aim.xml"))));
        QCOMPARE(manager->snippet(*m_host, 0), QString());
        QVERIFY(m_host->status(0).contains(QLatin1String("\"aim\"")));
        manager->update(m_folder->path());
        QCOMPARE(names(), (QStringList{"Jump.kick", "walk"}));
        QCOMPARE(manager->snippet(*m_host, 1), QStringLiteral("x"));
        QCOMPARE(manager->snippet(*m_host, 2), QString());
        for (const QString& missing : {m_folder->filePath(QStringLiteral("none")), QString()}) {
            manager->update(missing);
            QCOMPARE(names(), QStringList());
        }
    }

    void bytesOfFiles_data()
    {
        columns<QByteArray, QString, QString>("bytes", "text", "told");
        const QByteArray whole = "<snippet><code>gr\xc3\xbc\xc3\x9f</code></snippet>";
        row("plain", whole, QStringLiteral("gr\u00fc\u00df"), QString());
        row("mark of UTF-8", "\xef\xbb\xbf" + whole, QStringLiteral("gr\u00fc\u00df"), QString());
        row("zero behind", whole + '\0' + "junk", QStringLiteral("gr\u00fc\u00df"), QString());
        row("zero inside", QByteArray("<snippet>\0</snippet>", 21), QString(),
            QStringLiteral("Premature end"));
        row("empty", QByteArray(), QString(), QStringLiteral("Premature end"));
        row("no text", QByteArray("\x89PNG\r\n"), QString(), QStringLiteral("Line 1"));
    }

    void bytesOfFiles()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, told);
        write("it.xml", bytes);
        SnippetManager::instance()->update(m_folder->path());
        QTEST(SnippetManager::instance()->snippet(*m_host, 0), "text");
        QCOMPARE(m_dialogs->count(), told.isEmpty() ? 0 : 1);
        QVERIFY(told.isEmpty() || m_dialogs->texts(QStringLiteral("error")).first().contains(told));
    }

    void largeFileIsRefused()
    {
        write("it.xml", "<snippet><code>" + QByteArray(10'000'000, 'x') + "</code></snippet>");
        SnippetManager::instance()->update(m_folder->path());
        QCOMPARE(SnippetManager::instance()->snippet(*m_host, 0), QString());
        QVERIFY(m_host->status(0).contains(QLatin1String("too large")));
    }

    void textWithoutFields_data()
    {
        columns<QString, QString>("code", "text");
        row("lines of a file", "\r\n\t\tone\r\n\t\t\ttwo\r\n\t", "\none\ntwo\n");
        row("empty lines", "\n\n\t\n\tx\n\n", "\n\n\nx\n\n");
        row("tabs inside and blanks stay", "\t a\tb \n  \tc", " a\tb \n  \tc");
        row("markup", "&lt;&amp;&gt;&#64;<!-- no -->\"", "<&>@\"");
        row("CDATA", "<![CDATA[\t<x>&amp;]]>", "<x>&amp;");
        row("name without a field", "@nobody@", "@nobody@");
        row("nothing", "", "");
    }

    void textWithoutFields()
    {
        QFETCH(QString, code);
        QTEST(SnippetManager::snippet(*m_host, QStringLiteral("t"), xmlOf({}, code)), "text");
        QCOMPARE(m_dialogs->count(), 0);
    }

    void faultsAreTold_data()
    {
        columns<QString, QString>("xml", "told");
        row("not closed", "<snippet>\n<code>\n", "Line 3, column 0");
        row("element in code", xmlOf({}, "a<b/>"), "Line 2, column");
        row("no code", "<snippet/>", "\"code\"");
        row("unknown type", xmlOf("\n<field name='when' title='T' type='date'/>", {}), "\"date\"");
        row("no type", xmlOf("<field name='when'/>", {}), "string, int, float");
        row("no name", xmlOf("<field type='int'/>", {}), "no name");
        row("too many fields",
            xmlOf(QStringLiteral("<field name='a' type='int'/>").repeated(1001), {}), "1000");
        QTest::newRow("too many items") << xmlOf("<field name='a' type='items' value='" +
                                                     QString(10'000, QLatin1Char(',')) + "'/>",
                                                 {})
                                        << "10000";
        row("entity without end",
            "<!DOCTYPE s [<!ENTITY a '&b;&b;'><!ENTITY b '&a;'>]>" + xmlOf({}, "&a;"), "Line 2");
    }

    void faultsAreTold()
    {
        const auto [xml, told] = fetched<QString, QString>();
        QCOMPARE(SnippetManager::snippet(*m_host, QStringLiteral("t"), xml), QString());
        QCOMPARE(m_dialogs->count(), 1);
        const QString text = m_dialogs->texts(QStringLiteral("error")).value(0);
        QVERIFY2(text.contains(told) && text.contains(QLatin1String("Line ")), qPrintable(text));
    }

    void valuesAreTyped_data()
    {
        columns<QString, QStringList, QString, QString>("fields", "keys", "code", "text");
        const QString string = "<field name='a' title='A' type='string' value='old'/>";
        const QString prefixed = "<field name='ab' title='AB' type='string' value='two'/>";
        const QString real = "<field name='r' title='R' type='float' value='2.5'/>";
        const QString items = "<field name='i' title='I' type='items' value='x,y,z' "
                              "value_title='Left,Middle,Right'/>";
        row("default", string, QStringList{""}, "@a", "old");
        row("text", string, QStringList{"n & <w>"}, "@a, @A, @a", "n & <w>, @A, n & <w>");
        row("whole number", "<field name='n' type='int' value='7'/>", QStringList{"-12"}, "@n",
            "-12");
        row("bad default", "<field name='n' type='int' value='?'/>", QStringList{""}, "@n", "0");
        row("number", real, QStringList{""}, "@r", "2.5");
        row("large number", real, QStringList{"12345678.125"}, "@r", "12345678.125");
        row("number past the range", real, QStringList{"0.001"}, "@r", "0.001");
        row("list", items, QStringList{""}, "@i", "x");
        row("list by letter", items, QStringList{"R"}, "@i", "z");
        row("fewer values", "<field name='i' type='items' value='x' value_title='A,B'/>",
            QStringList{"B"}, "@i", "B");
        row("short name first", string + prefixed, QStringList{"1", "2"}, "@ab @a", "1b 1");
        row("long name first", prefixed + string, QStringList{"1", "2"}, "@ab @a", "1 2");
        row("name in a value", string + prefixed, QStringList{"@ab", "2"}, "@a", "2");
    }

    void valuesAreTyped()
    {
        QFETCH(QString, fields);
        QFETCH(QStringList, keys);
        QFETCH(QString, code);
        whenModal([&](QDialog* dialog) {
            QCOMPARE(dialog->windowTitle(), QStringLiteral("My snippet"));
            typeFields(keys);
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        QTEST(SnippetManager::snippet(*m_host, QStringLiteral("My snippet"), xmlOf(fields, code)),
              "text");
        QCOMPARE(m_dialogs->count(), 0);
    }

    void givingUp()
    {
        whenModal([](QDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
        QCOMPARE(SnippetManager::snippet(*m_host, {},
                                         xmlOf("<field name='a' type='string' value='b'/>", "@a")),
                 QString());
    }

    void windowThatGoesTakesTheDialogAlong()
    {
        m_host->window = new QWidget;
        QTimer::singleShot(100, this, [this] { delete m_host->window; });
        QCOMPARE(SnippetManager::snippet(*m_host, {}, xmlOf("<field name='a' type='int'/>", "@a")),
                 QString());
    }

    void manyFieldsAreReachedByKeys()
    {
        QString fields, code;
        for (int i = 0; i < 400; ++i) {
            fields += QStringLiteral("<field name='f%1.' title='F' type='string'/>").arg(i);
            code += QStringLiteral("@f%1.,").arg(i);
        }
        whenModal([](QDialog* dialog) {
            for (int i = 0; i < 399; ++i) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            }
            QWidget* last = QApplication::focusWidget();
            QCOMPARE(last->objectName(), QStringLiteral("f399."));
            const QWidget* view = dialog->findChild<QScrollArea*>()->viewport();
            QVERIFY(view->rect().contains(last->mapTo(view, last->rect().center())));
            QVERIFY(dialog->height() < 2000);
            typeFields({QStringLiteral("end")});
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        QCOMPARE(SnippetManager::snippet(*m_host, {}, xmlOf(fields, code)),
                 QString(399, QLatin1Char(',')) + QLatin1String("end,"));
    }

    void valuesThatGrowWithoutEnd()
    {
        QString fields;
        for (int i = 0; i < 60; ++i) {
            fields += QStringLiteral("<field name='%1' title='%1' type='string' value='@%2@%2'/>")
                          .arg(QChar(0x100 + i), QChar(0x101 + i));
        }
        whenModal([](QDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Return); });
        QCOMPARE(SnippetManager::snippet(*m_host, {}, xmlOf(fields, QStringLiteral("@\u0100"))),
                 QString());
        QVERIFY(
            m_dialogs->texts(QStringLiteral("error")).value(0).contains(QLatin1String("large")));
    }

    void textsArePlainNamedAndTranslated()
    {
        Marking marking;
        QCoreApplication::installTranslator(&marking);
        whenModal([](QDialog* dialog) {
            auto* list = dialog->findChild<QComboBox*>(QStringLiteral("i"));
            QCOMPARE(list->itemText(1), QStringLiteral("B of i"));
            QCOMPARE(list->accessibleName(), QStringLiteral("<b>X & Y</b> of i"));
            const auto labels = dialog->findChildren<QLabel*>();
            QCOMPARE(labels.size(), 1);
            QCOMPARE(labels.first()->textFormat(), Qt::PlainText);
            QCOMPARE(labels.first()->buddy(), list);
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        QCOMPARE(
            SnippetManager::snippet(
                *m_host, {},
                xmlOf("<field name='i' title='&lt;b>X &amp; Y&lt;/b>' type='items' value='v,w' "
                      "value_title='A,B'/>",
                      "@i")),
            QStringLiteral("v"));
        QCoreApplication::removeTranslator(&marking);
    }

    void namesAreShownAndSortedInTheLanguage()
    {
        auto* manager = SnippetManager::instance();
        for (const char* name : {"b.xml", "b a.xml", "c.xml"}) {
            write(name, {});
        }
        manager->update(m_folder->path());
        QCOMPARE(names(), (QStringList{"b", "b a", "c"}));
        const QAbstractItemModelTester tester(manager);
        QComboBox box;
        box.setModel(manager);
        box.setCurrentIndex(2);
        Marking marking;
        marking.prefixes = {{QStringLiteral("c"), QStringLiteral("a ")}};
        QCoreApplication::installTranslator(&marking);
        manager->retranslate();
        QCOMPARE(names(), (QStringList{"a c of snippet", "b a of snippet", "b of snippet"}));
        QCOMPARE(box.currentText(), QStringLiteral("a c of snippet"));
        QCOMPARE(box.currentData(Qt::EditRole).toString(), QStringLiteral("c"));
        QCOMPARE(manager->fileName(0), m_folder->filePath(QStringLiteral("c.xml")));
        QCoreApplication::removeTranslator(&marking);
    }

    void translationSource()
    {
        const QString name = m_folder->filePath(QStringLiteral("s.ts"));
        const QString xml = xmlOf("<field name='n' title='Life &amp; power' type='int' value='1'/>"
                                  "<field name='i' title='Side' type='items' value='a,b' "
                                  "value_title='Left,Gr\u00fcn'/>",
                                  "x");
        QVERIFY(SnippetManager::genTS(*m_host, name, xml));
        const auto message = [](const char* text, const char* comment) {
            return QByteArray("\t<message>\n\t\t<source>") + text + "</source>\n\t\t<comment>" +
                   comment +
                   "</comment>\n\t\t<translation type=\"unfinished\"></translation>\n"
                   "\t</message>\n";
        };
        const QByteArray whole =
            "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n<TS version=\"2.0\">\n"
            "<context>\n\t<name>Snippets</name>\n" +
            message("Life &amp; power", "n") + message("Side", "i") + message("Left", "i") +
            message("Gr\xc3\xbcn", "i") + "</context>\n</TS>";
        QCOMPARE(readFile(name), whole);

        // A snippet that is broken leaves the file as it was; so does a place that is none.
        QVERIFY(!SnippetManager::genTS(*m_host, name, QStringLiteral("<snippet>")));
        QCOMPARE(readFile(name), whole);
        QVERIFY(!SnippetManager::genTS(*m_host, name + QLatin1String("/below"), xml));
        QCOMPARE(m_dialogs->count(QStringLiteral("error")), 2);
    }

private:
    static QStringList names()
    {
        QStringList result;
        const auto* manager = SnippetManager::instance();
        for (int i = 0; i < manager->rowCount(); ++i) {
            result.append(manager->index(i).data().toString());
        }
        return result;
    }

    void write(const char* name, const QByteArray& bytes)
    {
        QVERIFY(writeFile(m_folder->filePath(QLatin1String(name)), bytes));
    }

    std::unique_ptr<TestInterface> m_host;
    std::unique_ptr<PlannedDialogs> m_dialogs;
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_MAIN(TestSnippetManager)
#include "tst_snippetmanager.moc"
