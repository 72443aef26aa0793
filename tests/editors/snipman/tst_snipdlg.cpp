#include "editors/snipman/combosnipfield.h"
#include "editors/snipman/regularsnipfield.h"
#include "editors/snipman/snipdlg.h"
#include "editors/snipman/snipfielddlg.h"
#include "editors/snipman/snipfieldsmodel.h"
#include "editors/snipman/snippetmanager.h"
#include "modalkeys.h"
#include "support/folders.h"
#include "support/planneddialogs.h"
#include "support/testinterface.h"
#include "support/testtable.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSharedPointer>
#include <QTemporaryDir>
#include <QtTest>

using FieldPointer = QSharedPointer<SnipField>;
Q_DECLARE_METATYPE(FieldPointer)

namespace {

const QByteArray exampleFile =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<snippet>\r\n\r\n"
    "\t<field name=\"n\" title=\"Name\" type=\"string\" value=\"jab\"/>\r\n"
    "\t<field name=\"s\" title=\"Side\" type=\"items\" value=\"l,r\" "
    "value_title=\"Left,Right\"/>\r\n"
    "\r\n\t<code>\r\n\t\t[move @n]\r\n\t\t\r\n\t\tside = @s\r\n"
    "\t</code>\r\n\r\n</snippet>";

void press(const QDialog& dialog, const char* name)
{
    auto* button = dialog.findChild<QPushButton*>(QLatin1String(name));
    QVERIFY2(button && button->isEnabled(), name);
    QTest::mouseClick(button, Qt::LeftButton);
}

QStringList rows(const QAbstractItemModel& model)
{
    QStringList result;
    for (int i = 0; i < model.rowCount(); ++i) {
        result.append(model.index(i, 0).data().toString());
    }
    return result;
}

}  // namespace

class TestSnipDlg : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_host = std::make_unique<TestInterface>();
        m_dialogs = std::make_unique<PlannedDialogs>();
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(QStringLiteral("jab.xml"));
        writeFile(m_path, exampleFile);
    }

    void fileComesBackByteForByte()
    {
        const SnipDlg dialog(m_host.get(), m_path);
        QCOMPARE(dialog.toString().toUtf8(), exampleFile);
        QVERIFY(!dialog.hasUnsavedChanges());
        const SnipDlg empty(m_host.get(), {});
        QCOMPARE(empty.toString().toUtf8(),
                 QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<snippet>\r\n\r\n"
                            "\r\n\t<code>\r\n\t\t\r\n\t</code>\r\n\r\n</snippet>"));
    }

    // Whatever a person types is there after it was saved, and is what the snippet gives.
    void anyTextSurvivesTheFile()
    {
        const quint32 seed = 8505;
        qInfo("seed %u", seed);
        QRandomGenerator random(seed);
        const QString alphabet = QStringLiteral("ab\t \n<>&\"';]=@\u00e4\u4e2d\u00a0");
        for (int round = 0; round < 100; ++round) {
            QString code;
            for (int i = random.bounded(30); i > 0; --i) {
                code += alphabet[random.bounded(alphabet.size())];
            }
            SnipDlg dialog(m_host.get(), {});
            codeOf(dialog)->setPlainText(code);
            m_dialogs->fileAnswers = {{m_path}};
            press(dialog, "saveBut");
            QVERIFY(!dialog.hasUnsavedChanges());
            const SnipDlg again(m_host.get(), m_path);
            QCOMPARE(again.toString(), dialog.toString());
            QCOMPARE(codeOf(again)->document()->toRawText(),
                     codeOf(dialog)->document()->toRawText());

            QString expected = QLatin1Char('\n') + code + QLatin1Char('\n');
            expected.replace(QRegularExpression(QStringLiteral("\n\t+")), QStringLiteral("\n"));
            QCOMPARE(Zorv::SnippetManager::snippet(*m_host, {}, again.toString()), expected);
        }
        QCOMPARE(m_dialogs->count(QStringLiteral("error")), 0);
    }

    void attributesAreEscaped()
    {
        const QString odd = QStringLiteral("a\"b'<c>&d\te\x01");
        QCOMPARE(RegularSnipField(odd, odd, QStringLiteral("string"), odd).attr(),
                 QStringLiteral("value=\"a&quot;b'&lt;c>&amp;d&#9;e\""));
        QCOMPARE(ComboSnipField({}, {}, {"<", ">"}, {"&", "x,y"}).attr(),
                 QStringLiteral("value=\"&lt;,>\" value_title=\"&amp;,x,y\""));
    }

    void brokenFiles_data()
    {
        columns<QByteArray, int, bool>("bytes", "fields", "isKept");
        row("no XML", QByteArray("<snippet><field name='a' type='int'/>"), 0, false);
        row("unknown type",
            QByteArray("<snippet><field name='a' type='date' value='v'/><code/></snippet>"), 1,
            true);
        row("large", QByteArray(2'000'000, ' '), 0, false);
    }

    void brokenFiles()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, isKept);
        writeFile(m_path, bytes);
        SnipDlg dialog(m_host.get(), m_path);
        QCOMPARE(m_dialogs->count(QStringLiteral("error")), 1);
        QTEST(fieldsOf(dialog)->rowCount(), "fields");
        // What could not be read is not offered to be replaced.
        m_dialogs->fileAnswers = {{QString()}};
        press(dialog, "saveBut");
        QCOMPARE(m_dialogs->shown.last().folder == m_path, isKept);
        QCOMPARE(readFile(m_path), bytes);
    }

    void questionsForFiles()
    {
        SnipDlg dialog(m_host.get(), m_path);
        const QString source = m_folder->filePath(QStringLiteral("jab.ts"));
        m_dialogs->fileAnswers = {{source}, {m_folder->filePath(QStringLiteral("new.xml"))}};
        press(dialog, "saveTSBut");
        press(dialog, "saveBut");
        QCOMPARE(m_dialogs->shown[0].title, QStringLiteral("Save for translation"));
        QCOMPARE(m_dialogs->shown[0].text, QStringLiteral("Qt translation sources (*.ts)"));
        QCOMPARE(m_dialogs->shown[0].folder, source);
        QCOMPARE(m_dialogs->shown[1].title, QStringLiteral("Save code snippet"));
        QCOMPARE(m_dialogs->shown[1].text, QStringLiteral("Extensible Markup Language (*.xml)"));
        QVERIFY(readFile(source).contains("<source>Right</source>"));
        QCOMPARE(readFile(m_folder->filePath(QStringLiteral("new.xml"))), exampleFile);
    }

    void failedSaveIsToldAndTheDialogStays()
    {
        SnipDlg dialog(m_host.get(), m_path);
        dialog.show();
        codeOf(dialog)->setPlainText(QStringLiteral("other"));
        m_dialogs->buttonAnswers = {Zorv::Dialogs::Yes};
        m_dialogs->fileAnswers = {{m_path + QLatin1String("/below.xml")}};
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(dialog.isVisible() && dialog.hasUnsavedChanges());
        QCOMPARE(m_dialogs->count(QStringLiteral("error")), 1);
        QCOMPARE(readFile(m_path), exampleFile);
    }

    void closingAsks_data()
    {
        columns<int, bool, bool>("answer", "isOpen", "isSaved");
        row("save", int(Zorv::Dialogs::Yes), false, true);
        row("drop", int(Zorv::Dialogs::No), false, false);
        row("stay", int(Zorv::Dialogs::Cancel), true, false);
    }

    void closingAsks()
    {
        QFETCH(int, answer);
        QFETCH(bool, isSaved);
        SnipDlg dialog(m_host.get(), m_path);
        dialog.show();
        QTest::keyClicks(codeOf(dialog), QStringLiteral("# "));
        m_dialogs->buttonAnswers = {Zorv::Dialogs::Button(answer)};
        m_dialogs->fileAnswers = {{m_path}};
        dialog.close();
        QTEST(dialog.isVisible(), "isOpen");
        QCOMPARE(readFile(m_path).contains("# [move"), isSaved);
        QCOMPARE(m_dialogs->count(QStringLiteral("question")), 1);
    }

    void fieldsAreMadeByKeys()
    {
        SnipDlg dialog(m_host.get(), {});
        dialog.show();
        const QAbstractItemModelTester tester(fieldsOf(dialog));
        whenModal([](QDialog* field) {
            const auto* ok = field->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
            QVERIFY(!ok->isEnabled());
            typeFields({"speed", "Speed", "Num", "0.25"});
            QVERIFY(ok->isEnabled());
            QTest::keyClick(field, Qt::Key_Return);
        });
        press(dialog, "addBut");
        whenModal([](QDialog* field) {
            typeFields({"sp", "Side", "List", "Left\nRight", "l\nr"});
            QTest::keyClick(field->findChild<QLineEdit*>(QStringLiteral("name")), Qt::Key_Return);
        });
        press(dialog, "addBut");
        QCOMPARE(rows(*fieldsOf(dialog)), (QStringList{"@speed, Speed", "@sp, Side"}));
        QVERIFY(dialog.toString().contains(QLatin1String(
            "\t<field name=\"speed\" title=\"Speed\" type=\"float\" value=\"0.25\"/>\r\n"
            "\t<field name=\"sp\" title=\"Side\" type=\"items\" value=\"l,r\" "
            "value_title=\"Left,Right\"/>\r\n")));

        // The shorter of two names hides the other only when it stands first.
        const auto* hint = dialog.findChild<QLabel*>(QStringLiteral("hint"));
        QVERIFY(!hint->isVisible());
        press(dialog, "upBut");
        QVERIFY(hint->isVisible() && hint->text().contains(QLatin1String("@speed")));
        press(dialog, "downBut");
        QVERIFY(!hint->isVisible());

        whenModal([](QDialog* field) {
            typeFields({"side"});
            QTest::keyClick(field, Qt::Key_Return);
        });
        QTest::keyClick(dialog.findChild<QListView*>(), Qt::Key_Return);
        QCOMPARE(rows(*fieldsOf(dialog)), (QStringList{"@speed, Speed", "@side, Side"}));
        press(dialog, "delBut");
        press(dialog, "delBut");
        QCOMPARE(rows(*fieldsOf(dialog)), QStringList());
        QVERIFY(!dialog.findChild<QPushButton*>(QStringLiteral("delBut"))->isEnabled());
    }

    void fieldsAreEditedAsTheyAre_data()
    {
        QTest::addColumn<FieldPointer>("field");
        const auto regular = [](const char* type, const char* value) {
            return FieldPointer(new RegularSnipField(QStringLiteral("n"), QStringLiteral("T"),
                                                     QLatin1String(type), QLatin1String(value)));
        };
        row("text", regular("string", " a \"b\""));
        row("whole number", regular("int", "-99999999"));
        row("number", regular("float", "-0.000125"));
        row("list",
            FieldPointer(new ComboSnipField(QStringLiteral("n"), {}, {"1", "", "3"}, {"a", "b"})));
    }

    void fieldsAreEditedAsTheyAre()
    {
        QFETCH(FieldPointer, field);
        SnipFieldDlg dialog(nullptr);
        dialog.setField(*field);
        const std::unique_ptr<SnipField> result(dialog.getField());
        QCOMPARE(result->name, field->name);
        QCOMPARE(result->title, field->title);
        QCOMPARE(result->type(), field->type());
        QCOMPARE(result->attr(), field->attr());
    }

    void previewAndInsertGiveTheText()
    {
        SnipDlg dialog(m_host.get(), m_path);
        dialog.show();
        QStringList inserted;
        connect(&dialog, &SnipDlg::insertRequested,
                [&](const QString& text) { inserted.append(text); });
        const auto answer = [](QDialog* form) {
            typeFields({"kick", "R"});
            QTest::keyClick(form, Qt::Key_Return);
        };
        const QString text = QStringLiteral("\n[move kick]\n\nside = r\n");
        const auto* preview = dialog.findChild<QPlainTextEdit*>(QStringLiteral("preview"));
        QVERIFY(!preview->isVisible());
        whenModal(answer);
        press(dialog, "previewBut");
        QVERIFY(preview->isVisible());
        QCOMPARE(preview->toPlainText(), text);

        whenModal([](QDialog* form) { QTest::keyClick(form, Qt::Key_Escape); });
        press(dialog, "insertBut");
        QVERIFY(dialog.isVisible() && inserted.isEmpty());
        whenModal(answer);
        press(dialog, "insertBut");
        QCOMPARE(inserted, QStringList(text));
        QVERIFY(!dialog.isVisible());
    }

    void everyInputIsReachedByTabAndHasAName()
    {
        SnipDlg dialog(m_host.get(), m_path);
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QSet<QString> reached;
        for (int i = 0; i < 30; ++i) {
            QWidget* widget = QApplication::focusWidget();
            const auto* spoken = QAccessible::queryAccessibleInterface(widget);
            QVERIFY2(!spoken->text(QAccessible::Name).isEmpty(), qPrintable(widget->objectName()));
            reached.insert(widget->objectName());
            QTest::keyClick(widget, Qt::Key_Tab);
        }
        for (const char* name : {"fieldList", "addBut", "editBut", "delBut", "downBut", "code",
                                 "previewBut", "insertBut", "saveTSBut", "saveBut", "closeBut"}) {
            QVERIFY2(reached.contains(QLatin1String(name)), name);
        }
    }

    void modelFollowsAList()
    {
        const quint32 seed = 8506;
        qInfo("seed %u", seed);
        QRandomGenerator random(seed);
        SnipFieldsModel model;
        const QAbstractItemModelTester tester(&model);
        QStringList list;
        for (int step = 0; step < 500; ++step) {
            const int row = random.bounded(8), to = random.bounded(8);
            switch (random.bounded(4)) {
            case 0:
            case 1:
                model.add(new RegularSnipField(QString::number(step), {}, {}, {}));
                list.append(QLatin1Char('@') + QString::number(step));
                break;
            case 2:
                model.remove(unsigned(row));
                list.erase(list.begin() + qMin(row, list.size()),
                           list.begin() + qMin(row + 1, list.size()));
                break;
            default:
                model.move(unsigned(row), unsigned(to));
                if (qMax(row, to) < list.size()) {
                    list.move(row, to);
                }
            }
            QCOMPARE(rows(model), list);
        }
    }

private:
    static QPlainTextEdit* codeOf(const SnipDlg& dialog)
    {
        return dialog.findChild<QPlainTextEdit*>(QStringLiteral("code"));
    }

    static SnipFieldsModel* fieldsOf(const SnipDlg& dialog)
    {
        return dialog.findChild<SnipFieldsModel*>();
    }

    std::unique_ptr<TestInterface> m_host;
    std::unique_ptr<PlannedDialogs> m_dialogs;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

QTEST_MAIN(TestSnipDlg)
#include "tst_snipdlg.moc"
