#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/meaning/projectnames.h"
#include "family/nodes/animationnode.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"
#include "operations/moveframes.h"

#include <QtTest>

using namespace Operations;

class TestMoveFrames : public QObject
{
    Q_OBJECT

private slots:
    void editorTellsWhatTheCommandTells();
    void unsavedTextCounts();
};

namespace {

/// What is told of an animation of a project; nothing without a move of it.
std::optional<Rules::MoveFacts> factsIn(const Family::FamilyProject* project, const QString& name)
{
    for (const Family::FamilyDocument* document : project->documents()) {
        const Family::FamilyAnimations* list = document->animations();
        for (int i = 0; i < list->count(); ++i) {
            if (list->animation(i)->identifier() == name) {
                return moveFactsOf(list->animation(i), {document, project});
            }
        }
    }
    return {};
}

QVector<int> numbersOf(const Rules::MoveFacts& facts)
{
    QVector<int> numbers{facts.start, facts.recovery, facts.total};
    for (const Rules::MoveFacts::Active& active : facts.active) {
        numbers << active.tick << active.ticks;
    }
    return numbers;
}

}  // namespace

/// One is read from a whole character on the disk, the other from two nodes of an open one.
void TestMoveFrames::editorTellsWhatTheCommandTells()
{
    const QString game = QStringLiteral(ZORV_SAMPLES "/arena/characters/maren/maren.character");
    Family::FamilyParentProject parent(Family::FamilyParentProject::folderOf(game));
    QStringList errors;
    int count = 0;
    for (const CharacterMoves& character : moveFrames(game, &errors)) {
        QString error;
        auto* project = Family::FamilyProject::open(&parent, character.data.mainFile, &error);
        QVERIFY2(project, qPrintable(error));
        for (int i = 0; i < character.facts.size(); ++i, ++count) {
            const Rules::Move& move = character.data.moves.at(i);
            const auto told =
                factsIn(project, character.data.animations.at(move.animation).identifier);
            QVERIFY2(told && numbersOf(*told) == numbersOf(character.facts.at(i)),
                     qPrintable(move.name));
        }
        QVERIFY(!factsIn(project, "10"));
        project->release();
    }
    QVERIFY(errors.isEmpty() && count > 20);
}

/// A move ends with the frame that stays.
void TestMoveFrames::unsavedTextCounts()
{
    Family::FamilyDocument document(Family::FileKind::Character);
    document.fromString("animation 200\nframe 0,0 delay 3\nattack 0,0, 9,9\nframe 0,1 delay 2\n"
                        "frame 0,2 delay 4\nframe 0,3 delay -1\nframe 0,4 delay 9\n"
                        "[move jab]\nanimation = 200\n[.hit]\ndamage = 1, 0");
    const Family::ProjectNames names(&document, nullptr);
    const auto facts = moveFactsOf(document.animations()->animation(0), names);
    QVERIFY(facts && facts->active.size() == 1);
    QCOMPARE(facts->start, 3);
    QCOMPARE(facts->active.first().ticks, 2);
    QVERIFY(facts->recovery >= 4 && facts->recovery <= 5 && facts->total == 5 + facts->recovery);
}

QTEST_MAIN(TestMoveFrames)
#include "tst_moveframes.moc"
