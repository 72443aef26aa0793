#include "text/zorvtranslator.h"

#include <QMenu>
#include <QTranslator>
#include <QtTest>

using Zorv::ZorvTranslator;

namespace {

/// Puts every text into brackets.
class Brackets : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return qstrcmp(context, "Zorv::ZorvTranslator") == 0
                   ? QStringLiteral("[%1]").arg(QLatin1String(text))
                   : QString();
    }
};

QString label(unsigned id)
{
    return ZorvTranslator::instance()->trText(id);
}

QString tip(unsigned id)
{
    return ZorvTranslator::instance()->trToolTip(id);
}

}  // namespace

class TestZorvTranslator : public QObject
{
    Q_OBJECT

private slots:
    void tables();
    void menuFollowsLanguage();
};

void TestZorvTranslator::tables()
{
    QVERIFY(label(172).isEmpty() && tip(0).isEmpty() && tip(156).isEmpty());
    // Every number has a label; some share that of another, by up to two steps.
    for (unsigned id = 0; id <= 171; ++id) {
        QVERIFY2(!label(id).isEmpty(), qPrintable(QString::number(id)));
    }
    QCOMPARE(label(146), label(30));
    QCOMPARE(label(147), label(31));
    QCOMPARE(label(155), QStringLiteral("Import from another project..."));
    QCOMPARE(label(171), QStringLiteral("Save selected images"));
    QVERIFY(tip(10).isEmpty() && tip(67).isEmpty() && tip(140).isEmpty());
    QCOMPARE(tip(146), QStringLiteral("Add one or more sounds"));
    // Habits and translations hang on these.
    QCOMPARE(tip(142), QStringLiteral("lear any selection"));
    QCOMPARE(tip(64), QStringLiteral("Remove all Contact boxs of current animation"));
}

void TestZorvTranslator::menuFollowsLanguage()
{
    QMenu menu;
    menu.setWhatsThis(QStringLiteral("old"));
    ZorvTranslator::instance()->trMenu(&menu, 105);
    QCOMPARE(menu.title(), QStringLiteral("Add"));
    QCOMPARE(menu.toolTip(), QStringLiteral("Add one or more sprites"));
    QCOMPARE(menu.statusTip(), menu.toolTip());
    QVERIFY(menu.whatsThis().isEmpty());

    Brackets brackets;
    QCoreApplication::installTranslator(&brackets);
    ZorvTranslator::instance()->trMenu(&menu, 105);
    QCOMPARE(menu.title(), QStringLiteral("[Add]"));
    QCOMPARE(menu.statusTip(), QStringLiteral("[Add one or more sprites]"));
    QCoreApplication::removeTranslator(&brackets);
    QCOMPARE(label(105), QStringLiteral("Add"));
}

QTEST_MAIN(TestZorvTranslator)
#include "tst_zorvtranslator.moc"
