#include "animation/dialogs/animalign.h"
#include "animation/dialogs/animedittxt.h"

#include "support/planneddialogs.h"
#include "support/testinterface.h"

#include "editors/code/codeeditor.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"

#include <QComboBox>
#include <QListView>
#include <QPushButton>
#include <QSpinBox>
#include <QtTest>

using namespace Zorv;

class TestAnimationDialogs : public QObject
{
    Q_OBJECT

private slots:
    void alignsWhatIsSelected();
    void tellsOfNumbersThatDoNotFit();
    void typedCodeIsNotLost();
    void codeFollowsTheSettings();

private:
    template <class Widget>
    static Widget* child(const QWidget& dialog, const char* name)
    {
        return dialog.findChild<Widget*>(QLatin1String(name));
    }
    static void click(const QWidget& dialog, const char* name)
    {
        QTest::mouseClick(child<QPushButton>(dialog, name), Qt::LeftButton);
    }
    static void type(QSpinBox* field, const char* text)
    {
        field->selectAll();
        QTest::keyClicks(field, QLatin1String(text));
        QTest::keyClick(field, Qt::Key_Return);
    }
};

void TestAnimationDialogs::alignsWhatIsSelected()
{
    Family::FamilyDocument document(Family::FileKind::Animations);
    document.fromString(QStringLiteral("animation 0\nbody 0,0, 9,9\nframe 0,0\nanimation 1\n"
                                       "body 10,0, 19,9\nframe 0,0  offset 1,1\nanimation 2"));
    const QString first = document.text();
    PlannedDialogs dialogs;
    AnimAlign dialog(document.animations(), 1);
    dialog.show();
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Alignment tool"));
    QCOMPARE(dialog.selected(), QVector<int>{1});
    QVERIFY(!dialog.hasPreview());
    auto* operation = child<QComboBox>(dialog, "operation");
    const QStringList modes{QStringLiteral("Offset axis"), QStringLiteral("Offset Contact boxes"),
                            QStringLiteral("Resize Contact boxes (top-left)"),
                            QStringLiteral("Resize Contact boxes (bottom-right)"),
                            QStringLiteral("Scale Contact boxes")};
    QStringList shown;
    for (int i = 0; i < operation->count(); ++i) {
        shown.append(operation->itemText(i));
    }
    QCOMPARE(shown, modes);

    QSpinBox* x = child<QSpinBox>(dialog, "xVal");
    QSpinBox* y = child<QSpinBox>(dialog, "yVal");
    QSignalSpy changed(&dialog, &AnimAlign::changed);
    type(x, "-3");
    QVERIFY(dialog.hasPreview());
    QVERIFY(!changed.isEmpty());
    QCOMPARE(document.text(), first);
    click(dialog, "applyButton");
    QVERIFY(document.text().contains(QLatin1String("offset -2,1")));
    QCOMPARE(document.undoTitle(), modes.at(0));
    QVERIFY(!dialog.hasPreview());

    type(x, "99999");
    QVERIFY(x->value() <= 32767);
    QTest::keyClick(operation, Qt::Key_End);
    QCOMPARE(dialog.alignment().mode, Alignment::ScaleBoxes);
    QCOMPARE(dialog.alignment().x, 100);
    QCOMPARE(x->minimum(), 0);
    type(y, "50");
    click(dialog, "invertButton");
    QCOMPARE(dialog.selected(), (QVector<int>{0, 2}));
    click(dialog, "applyButton");
    QCOMPARE(document.text().count(QLatin1String("body 0,0, 9,4")), 1);
    QTest::keyClick(operation, Qt::Key_Home);
    QCOMPARE(dialog.alignment().y, 0);

    click(dialog, "clearButton");
    QVERIFY(!child<QPushButton>(dialog, "applyButton")->isEnabled());
    click(dialog, "selectAllButton");
    QCOMPARE(dialog.selected().size(), 3);
    document.undo();
    document.undo();
    QCOMPARE(document.text(), first);
    click(dialog, "closeButton");
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialogs.count(), 0);
}

void TestAnimationDialogs::tellsOfNumbersThatDoNotFit()
{
    PlannedDialogs dialogs;
    auto* document = new Family::FamilyDocument(Family::FileKind::Animations);
    document->fromString(QStringLiteral("animation 0\nframe 0,0  offset 30000,0\nframe 0,0"));
    AnimAlign dialog(document->animations(), 0);
    dialog.show();
    type(child<QSpinBox>(dialog, "xVal"), "5000");
    click(dialog, "applyButton");
    QCOMPARE(dialogs.count(QStringLiteral("warning")), 1);
    QVERIFY(dialogs.texts(QStringLiteral("warning")).first().startsWith(QLatin1Char('1')));
    QVERIFY(document->text().endsWith(QLatin1String("frame 0,0  offset 5000,0")));
    document->release();
    QVERIFY(!dialog.isVisible());
}

void TestAnimationDialogs::typedCodeIsNotLost()
{
    TestInterface host;
    PlannedDialogs dialogs;
    AnimEditTxt dialog(&host);
    QString applied;
    bool isTaken = true;
    connect(&dialog, &AnimEditTxt::applyRequested, [&](const QString& text) {
        applied = text;
        if (isTaken) {
            dialog.setText(text);
        }
    });
    auto* code = child<CodeEditor>(dialog, "code");
    auto* apply = child<QPushButton>(dialog, "applyButton");
    dialog.setText(QStringLiteral("animation\u00a01\nframe 0,0"), QStringLiteral("1 Jab"));
    dialog.show();
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Edit animation code"));
    QVERIFY(!apply->isEnabled());
    code->moveCursor(QTextCursor::End);
    QTest::keyClicks(code, QStringLiteral(" loop"));
    QVERIFY(dialog.isModified());
    click(dialog, "applyButton");
    QCOMPARE(applied, QStringLiteral("animation\u00a01\nframe 0,0 loop"));
    QVERIFY(!apply->isEnabled());

    // Closed while something is typed: stay, apply in vain, apply, drop.
    QTest::keyClicks(code, QStringLiteral("x"));
    isTaken = false;
    dialogs.buttonAnswers = {Dialogs::Cancel, Dialogs::Yes};
    click(dialog, "closeButton");
    QVERIFY(dialog.isVisible());
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(dialog.isVisible() && dialog.isModified());
    isTaken = true;
    dialogs.buttonAnswers = {Dialogs::Yes};
    dialog.close();
    QVERIFY(!dialog.isVisible());
    QVERIFY(applied.endsWith(QLatin1String("loopx")));
    dialog.show();
    QTest::keyClicks(code, QStringLiteral("y"));
    dialogs.buttonAnswers = {Dialogs::No};
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible() && !dialog.isModified());
    QCOMPARE(dialogs.count(QStringLiteral("question")), 4);
    dialog.close();
    QCOMPARE(dialogs.count(QStringLiteral("question")), 4);
}

void TestAnimationDialogs::codeFollowsTheSettings()
{
    TestInterface host;
    const QString geometry = QStringLiteral("anim_editcode_geometry");
    QTextCharFormat paren;
    paren.setFontItalic(true);
    host.options = {{QStringLiteral("code_line_numbers"), false},
                    {QStringLiteral("code_highlight_line"), false},
                    {QStringLiteral("line"), QColor(Qt::red)},
                    {QStringLiteral("block_range"), QColor(Qt::green)},
                    {QStringLiteral("paren_range"), QColor(Qt::blue)},
                    {QStringLiteral("paren"), QTextFormat(paren)},
                    {geometry, QRect(30, 40, 400, 300)}};
    AnimEditTxt dialog(&host);
    const auto& formatting = child<CodeEditor>(dialog, "code")->syntaxFormatting();
    QVERIFY(!formatting.lineNumbers && !formatting.highlightCurrentLine);
    QCOMPARE(formatting.currentLineColor, QColor(Qt::red));
    QCOMPARE(formatting.blockRangeColor, QColor(Qt::green));
    QCOMPARE(formatting.parenRangeFormat.background().color(), QColor(Qt::blue));
    QVERIFY(formatting.parenFormat.fontItalic());
    host.options[QStringLiteral("code_line_numbers")] = true;
    dialog.reconfig();
    QVERIFY(child<CodeEditor>(dialog, "code")->syntaxFormatting().lineNumbers);

    dialog.show();
    QCOMPARE(dialog.geometry(), QRect(30, 40, 400, 300));
    dialog.setGeometry(50, 60, 420, 310);
    dialog.close();
    QCOMPARE(host.option(geometry).toRect(), QRect(50, 60, 420, 310));
    host.options[geometry] = QRect(-9000, 40, 400, 300);
    dialog.show();
    QCOMPARE(dialog.geometry(), QRect(50, 60, 420, 310));
}

QTEST_MAIN(TestAnimationDialogs)
#include "tst_animationdialogs.moc"
