#include "operations/animationedits.h"

#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/nodes/animationnode.h"
#include "operations/hostinterface.h"
#include "support/testtable.h"

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

QString randomText(QRandomGenerator* random)
{
    const QStringList others{"",         "",           "frame 0,0 loop", "# note",
                             "\t# note", "[move jab]", "life = 1"};
    QStringList lines;
    QList<int> ids{0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    for (int i = random->bounded(20); i >= 0; --i) {
        const int kind = random->bounded(others.size() + 4);
        const QString line =
            kind < others.size()
                ? others[kind]
                : QString("animation %1 \"A\" # 1").arg(ids.takeAt(random->bounded(ids.size())));
        lines.append(line.endsWith("note") ? line + QString::number(i) : line);
        if (ids.isEmpty()) {
            break;
        }
    }
    return lines.join('\n') + (random->bounded(2) ? "\n" : "");
}

/// A head with the lines that belong to it.
struct Part
{
    QStringList comments;
    QString head;
    QStringList body;

    QString id() const { return head.section(' ', 1, 1); }
    Part withId(const QString& id) const
    {
        return {comments, QString("animation %1 \"A\" # 1").arg(id), body};
    }
    bool operator==(const Part& other) const
    {
        return comments == other.comments && head == other.head && body == other.body;
    }
};

/// A text taken apart at its heads; empty lines at the end of a part do not count.
struct Parts
{
    Parts(const QString& text, bool commentsTravel)
    {
        QStringList lines = text.split('\n');
        QStringList body;
        for (int i = lines.size() - 1; i >= 0; --i) {
            if (!lines[i].startsWith('[') && !lines[i].startsWith("animation")) {
                body.prepend(lines[i]);
                continue;
            }
            Part part{{}, lines[i], trimmed(body)};
            body.clear();
            while (commentsTravel && i > 0 && lines[i - 1].trimmed().startsWith('#')) {
                part.comments.prepend(lines[--i]);
            }
            (part.head.startsWith('[') ? groups : animations).prepend(part);
        }
        beginning = trimmed(body);
    }
    static QStringList trimmed(QStringList lines)
    {
        while (!lines.isEmpty() && lines.last().isEmpty()) {
            lines.removeLast();
        }
        return lines;
    }
    bool operator==(const Parts& other) const
    {
        return beginning == other.beginning && animations == other.animations &&
               groups == other.groups;
    }

    QStringList beginning;
    QList<Part> animations;
    QList<Part> groups;
};

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
    void editsAreOneStepOfUndo_data();
    void editsAreOneStepOfUndo();
    void refusedDuplicate_data();
    void refusedDuplicate();

private:
    HostInterface m_host;
};

void TestAnimationEdits::find_data()
{
    columns<QString, int>("reference", "place");
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
    const auto [reference, place] = fetched<QString, int>();
    FamilyDocument document(FileKind::Animations);
    document.fromString(textOf({"20", "fire", "20", "0", "3"}));
    QString error;
    QCOMPARE(findAnimation(document.animations(), reference, &error), place);
    QCOMPARE(error.isEmpty(), place >= 0);
}

void TestAnimationEdits::editsAreOneStepOfUndo_data()
{
    QTest::addColumn<bool>("commentsTravel");
    QTest::newRow("comments travel") << true;
    QTest::newRow("comments stay") << false;
}

// Random texts, with heads divided from their comments by the slow model below.
void TestAnimationEdits::editsAreOneStepOfUndo()
{
    QFETCH(bool, commentsTravel);
    const quint32 seed = 7;
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    for (int round = 0; round < 400; ++round) {
        FamilyDocument document(FileKind::Animations);
        document.setOption("code_comments_travel", commentsTravel, false, false);
        document.fromString(randomText(&random));
        const QString text = document.text();
        Parts parts(text, commentsTravel);
        const QStringList before = identifiersOf(document);
        if (before.isEmpty()) {
            continue;
        }
        const int place = random.bounded(before.size());
        const int other = random.bounded(before.size());
        QString edit;
        switch (random.bounded(4)) {
        case 0:
            edit = "remove";
            removeAnimations(document.animations(), {place, -1, other, place, before.size()});
            parts.animations.removeAt(std::max(place, other));
            if (place != other) {
                parts.animations.removeAt(std::min(place, other));
            }
            break;
        case 1: {
            edit = "duplicate";
            const QString id = freeIdentifier(document.animations(), before[place]);
            QVERIFY(!before.contains(id));
            QString error;
            QVERIFY(duplicateAnimation(document.animations(), place, id, &error));
            parts.animations.insert(place + 1, parts.animations[place].withId(id));
            break;
        }
        case 2:
            edit = "move";
            QVERIFY(moveAnimation(document.animations(), place, other));
            parts.animations.move(place, other);
            break;
        default:
            edit = "sort";
            document.animations()->autoOrganize();
            std::stable_sort(
                parts.animations.begin(), parts.animations.end(),
                [](const Part& a, const Part& b) { return a.id().toInt() < b.id().toInt(); });
        }
        const Parts now(document.text(), commentsTravel);
        const QString what =
            edit + QString(" %1 %2\n").arg(place).arg(other) + text + "\n->\n" + document.text();
        QVERIFY2(now == parts, qPrintable(what));
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
