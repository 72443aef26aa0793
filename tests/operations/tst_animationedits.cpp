#include "operations/animationedits.h"

#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/nodes/animationnode.h"
#include "operations/hostinterface.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace Family;
using namespace Operations;

namespace {

QString textOf(const QStringList& identifiers)
{
    QString text = "# head\n";
    for (const QString& identifier : identifiers) {
        text += "animation " + identifier + "\nframe 0,0 loop\n\n";
    }
    return text;
}

QStringList identifiersOf(const FamilyDocument& document)
{
    QStringList result;
    for (int i = 0; i < document.animations()->count(); ++i) {
        result.append(document.animations()->animation(i)->identifier());
    }
    return result;
}

}  // namespace

class TestAnimationEdits : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { startHost(&m_host); }
    void find_data();
    void find();
    void editsAreOneStepOfUndo();
    void refusedDuplicate_data();
    void refusedDuplicate();

private:
    HostInterface m_host;
};

void TestAnimationEdits::find_data()
{
    QTest::addColumn<QString>("reference");
    QTest::addColumn<int>("place");
    QTest::newRow("identifier") << "fire" << 1;
    QTest::newRow("place") << "#3" << 3;
    QTest::newRow("number before place") << "3" << 4;
    QTest::newRow("twice") << "20" << -1;
    QTest::newRow("unknown") << "ice" << -1;
    QTest::newRow("case counts") << "Fire" << -1;
    QTest::newRow("place outside") << "#5" << -1;
    QTest::newRow("negative place") << "#-1" << -1;
    QTest::newRow("no place") << "#" << -1;
    QTest::newRow("nothing") << "" << -1;
}

void TestAnimationEdits::find()
{
    QFETCH(QString, reference);
    QFETCH(int, place);
    FamilyDocument document(FileKind::Animations);
    document.fromString(textOf({"20", "fire", "20", "0", "3"}));
    QString error;
    QCOMPARE(findAnimation(document.animations(), reference, &error), place);
    QCOMPARE(error.isEmpty(), place >= 0);
}

// Random sets of animations against a list of identifiers as the model.
void TestAnimationEdits::editsAreOneStepOfUndo()
{
    const quint32 seed = 7;
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    for (int round = 0; round < 100; ++round) {
        QStringList model;
        for (int i = 1 + random.bounded(8); i > 0; --i) {
            model.append(random.bounded(2) ? QString::number(random.bounded(20)) : "jab");
        }
        model.removeDuplicates();
        FamilyDocument document(FileKind::Animations);
        document.fromString(textOf(model));
        const QString text = document.text();
        const QStringList before = model;
        if (random.bounded(2)) {
            QVector<int> places;
            for (int i = random.bounded(5); i > 0; --i) {
                places.append(int(random.bounded(12)) - 2);
            }
            removeAnimations(document.animations(), places);
            for (int i = model.size() - 1; i >= 0; --i) {
                if (places.contains(i)) {
                    model.removeAt(i);
                }
            }
        } else {
            const int place = random.bounded(model.size());
            const QString identifier = freeIdentifier(document.animations(), model[place]);
            QVERIFY(!model.contains(identifier));
            QString error;
            QVERIFY(duplicateAnimation(document.animations(), place, identifier, &error));
            model.insert(place + 1, identifier);
        }
        QCOMPARE(identifiersOf(document), model);
        if (document.text() != text) {
            document.undo();
        }
        QCOMPARE(document.text(), text);
        QCOMPARE(identifiersOf(document), before);
        QVERIFY(!document.isUndoAvailable());
    }
}

void TestAnimationEdits::refusedDuplicate_data()
{
    QTest::addColumn<QString>("identifier");
    QTest::newRow("taken") << "fire";
    QTest::newRow("two words") << "two words";
    QTest::newRow("empty") << "";
    QTest::newRow("line end") << "a\nb";
    QTest::newRow("comment") << "#1";
}

void TestAnimationEdits::refusedDuplicate()
{
    QFETCH(QString, identifier);
    FamilyDocument document(FileKind::Animations);
    document.fromString(textOf({"20", "fire"}));
    const QString text = document.text();
    QString error;
    QVERIFY(!duplicateAnimation(document.animations(), 0, identifier, &error));
    QVERIFY(!error.isEmpty());
    QCOMPARE(document.text(), text);
}

QTEST_MAIN(TestAnimationEdits)
#include "tst_animationedits.moc"
