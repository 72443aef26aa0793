// Matches of a small game with plain numbers: what a script leads to is told by each rule of the
// docs. And matches at random, of the samples and of a game full of what nobody should write.

#include "rules/codetext.h"
#include "rules/gamereader.h"
#include "rules/movefacts.h"
#include "rules/tick.h"
#include "script/description.h"
#include "script/script.h"
#include "support/folders.h"
#include "support/testtable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <cstring>

using namespace Rules;

namespace {

constexpr quint32 Seed = 20261122;

// Attacks reach from the axis to 40, hit from the 4th tick on and for 2 ticks, and take 10.
const char fighterText[] = R"([constants]
life = 1000
power = 1000
gravity = 1
combo = 100, 50
[.walk]
forward = 2
back = -2
[.run]
forward = 4, 0
back = -4, -3
[.jump]
neutral = 0, -8
ticks = 2, 3
[.body]
push = -10, -80, 10, 0
[commands]
light = "L"
heavy = "H"
both = "L + M"
low = "D + L"
wave = "D, DF, F, L"
charge = "~10B, F, H"
twice = "M"
start = "S"
run = "F, F"
hop-back = "B, B"
[.defaults]
time = 12
buffer = 3
[move jab]
command = light
animation = hit
cancels = strong
[.hit]
damage = 100, 10
level = high
stun = 10
push = 2, 0
[move strong]
command = heavy
animation = hit
priority = 5
[.hit]
damage = 200, 20
level = low
stun = 20
guard-stun = 4
stop = 3
push = 4, -5
gain = 7, 3
[move grab]
command = both
animation = hit
cancels = toss
[.hit]
damage = 10, 0
level = throw
stun = 30
[move toss]
animation = hit
[.hit]
damage = 50, 0
level = throw
push = 5, -6
[move slide]
command = low
animation = hit
from = crouch
[.hit]
damage = 1, 0
[move fireball]
command = wave
animation = hit
[.cost]
power = 300
[.hit]
damage = 40, 4
[move rush]
command = charge
animation = hit
velocity = 8, 0
[.hit]
damage = 30, 3
[move rain]
command = twice
animation = rain
[.hit]
damage = 10, 1
hits = 2
stun = 20
[move tackle]
command = light
animation = hit
from = run
[.hit]
damage = 5, 1
[move dive]
command = light
animation = hit
air = only
[.hit]
damage = 60, 6
level = high
[move counter]
command = start
animation = hit
from = guard
[.hit]
damage = 3, 0
animation 10
body -10,-80, 10,0
frame 0,0 delay -1
animation 13
body -10,-40, 10,0
frame 0,0 delay -1
animation 60
frame 0,0 delay -1
animation hit
body -10,-80, 10,0
frame 0,0 delay 3
attack 0,-70, 40,-10
body -10,-80, 10,0
frame 0,0 delay 2
body -10,-80, 10,0
frame 0,0 delay 5
frame 0,0 delay -1
animation rain
attack 0,-70, 40,-10
frame 0,0 delay 3
attack 0,-70, 40,-10
frame 0,0 delay 3
attack 0,-70, 40,-10
frame 0,0 delay 3
)";

const char stageText[] = "[info]\nname = \"Bare\"\nresolution = 400, 300\n[arena]\nleft = -200\n"
                         "right = 200\nfloor = 0\nrounds = 1\ntime = 2\n[.start]\nfirst = -20, 0\n"
                         "second = 20, 0\n";

// Cancels into itself, frames that are never shown, boxes far away, nothing where things belong.
const char badText[] = R"([constants]
life = 1
gravity = 0
[.walk]
forward = -64
back = 64
[.jump]
neutral = 64, 64
forward = -64, -64
[.body]
push = 32767, 32767, -32768, -32768
widths = 4096, 4096
[commands]
l = "L"
m = ",,"
h = "H"
run = "F, F"
[move a]
command = l
animation = none
cancels = a
[.hit]
damage = 9999, 9999
[move b]
command = l
animation = zero
cancels = b
cancels = c
[.cost]
life = 9999
[move c]
command = h
animation = far
cancels = c
[.hit]
damage = 1, 1
hits = 100
push = -64, 64
animation zero
frame 0,0 delay 0
frame 0,0 delay 0 loop
animation far
attack 32767,-32768, -32768,32767
body -32768,-32768, 32767,32767
frame 0,0 delay 1
animation empty
)";

void put(const QTemporaryDir& folder, const char* name, const QByteArray& text)
{
    QDir(folder.path()).mkpath(QFileInfo(name).path());
    QFile file(folder.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

bool load(const QString& folder, const QString& first, const QString& second, Game* game)
{
    GameReader reader(folder);
    QString error;
    const QString files[] = {
        findMainFile(folder, ".character", first, 0, &error),
        findMainFile(folder, ".character", second, 1, &error),
        findMainFile(folder, ".stage", {}, 0, &error),
    };
    game->hasIntro = false;
    const bool isRead = reader.readFighter(files[0], &game->fighters[0], &error) &&
                        reader.readFighter(files[1], &game->fighters[1], &error) &&
                        reader.readStage(files[2], &game->stage, &error);
    completeGame(game);
    return isRead && reader.notes().isEmpty();
}

/// "0.action hit": a value of a fighter, or of the state.
QString valueAt(const QJsonObject& state, const QString& path)
{
    const QStringList parts = path.split('.');
    const QJsonValue value = parts.size() == 2
                                 ? state["fighters"].toArray().at(parts[0].toInt())[parts[1]]
                                 : state[path];
    return value.toVariant().toString();
}

Inputs randomInputs(QRandomGenerator& random, const Inputs& before)
{
    Inputs inputs = before;
    for (quint8& signs : inputs.signs) {
        if (random.bounded(4) == 0) {
            signs = quint8(random.bounded(256) & random.bounded(256));
        }
    }
    return inputs;
}

}  // namespace

class TestRules : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void rule_data();
    void rule();
    void variant_data();
    void variant();
    void neitherComesFirst();
    void introEnds();
    void outOfRange();
    void sampleMove_data();
    void sampleMove();
    void everyMoveOfTheSamplesIsShown();
    void sampleFrames_data();
    void sampleFrames();
    void sameInputsGiveSameStates();
    void limitsHold_data();
    void limitsHold();
    void scriptFaults_data();
    void scriptFaults();

private:
    static QString mismatch(const Game& game, State state, const QString& text,
                            const QString& expected);
    Game changedGame(const QString& fighter, const QString& stage) const;

    QTemporaryDir m_folder;
    Game m_game;
};

void TestRules::initTestCase()
{
    put(m_folder, "characters/plain/plain.character", fighterText);
    put(m_folder, "characters/bad/bad.character", badText);
    put(m_folder, "stages/bare/bare.stage", stageText);
    QVERIFY(load(m_folder.path(), "plain", "plain", &m_game));
}

QString TestRules::mismatch(const Game& game, State state, const QString& text,
                            const QString& expected)
{
    Player::Script script;
    QString error;
    if (!script.read(QString(text).replace(';', '\n'), &error)) {
        return error;
    }
    script.run(game, &state, [](const State&) { return true; });
    const QByteArray json = Player::jsonOf(game, state);
    const QJsonObject now = QJsonDocument::fromJson(json).object();
    for (const QString& each : expected.split(',', Qt::SkipEmptyParts)) {
        const QString path = each.section(' ', 0, 0);
        if (path + ' ' + valueAt(now, path) != each) {
            return each + " expected: " + json;
        }
    }
    return {};
}

void TestRules::rule_data()
{
    columns<QString, QString>("script", "expected");
    const struct
    {
        const char *name, *script, *expected;
    } rows[] = {
        {"walking", "places -100 100;10 F B", "0.x -80,1.x 120,0.action walk,1.action walk-back"},
        {"the side one looks to", "places 100 -100;1 -;10 F", "0.x 80,0.facing left"},
        {"a run, and its end", "places -150 150;1 F;1 -;5 F", "0.action run,0.x -128"},
        {"no run without the pause", "places -150 150;7 F", "0.action walk"},
        {"no run by way of another side", "places -150 150;1 F;1 DF;1 D;1 DF;1 F", "0.action walk"},
        {"what lies next to it may lie between", "places -150 150;1 F;1 DF;1 F", "0.action run"},
        {"a motion goes before a jump", "power 500 0;1 D;1 DF;1 F;1 UF;1 UF+L", "0.move fireball"},
        {"a hop lands", "places -100 100;1 B;1 -;1 B;12 -", "0.action stand,0.y 0"},
        {"before a jump", "2 U", "0.action jump,0.y 0"},
        {"a jump", "3 U", "0.action air,0.y -8"},
        {"the way of a jump", "2 U;17 -", "0.action land,0.y 0"},
        {"crouched", "3 D", "0.action crouch,0.animation 13"},
        {"both are kept apart", "places -5 5", ""},
        {"nobody goes through the other", "30 F F", "0.x -10.5,1.x 10.5"},
        {"the end of the stage", "90 B", "0.x -190"},
        {"who stands at the end gives nothing", "places -190 -150;60 - F", "0.x -190,1.x -169"},
        {"a move and its end", "places -100 100;1 L;9 -", "0.action move,0.move jab"},
        {"it ends at the frame that stays", "places -100 100;1 L;10 -", "0.action stand"},
        {"a command waits", "places -100 100;1 L;7 -;1 L;2 -", "0.move jab,0.frame 0"},
        {"and is forgotten", "places -100 100;1 L;6 -;1 L;3 -", "0.action stand"},
        {"it hits in its 4th tick", "1 L;2 -;1 -", "1.action hit,1.life 900,0.stop 8"},
        {"both stand still", "1 L;11 -", "0.frame 1,0.stop 0,1.stun 10"},
        {"the attacker is free first", "1 L;18 -", "0.action stand,1.action hit"},
        {"the stun ends", "1 L;22 -", "1.action stand,1.combo 0"},
        {"once without a number", "1 L;30 -", "1.life 900"},
        {"as often as told", "1 M;40 -", "1.life 985"},
        {"a combo takes less", "1 L;3 -;1 H;30 -", "1.life 800"},
        {"no cancel of what met nothing", "places -100 100;1 L;3 -;1 H;4 -", "0.move jab"},
        {"without the power another one", "power 299 0;1 D;1 DF;1 F;1 F+L", "0.move jab"},
        {"a longer motion comes first", "power 500 0;1 D;1 DF;1 F;1 F+L",
         "0.move fireball,0.power 200"},
        {"too slow", "power 500 0;9 D;1 DF;12 F;1 F+L", "0.move jab"},
        {"a step that was held counts to its end", "power 500 0;30 D;1 DF;1 F;1 L",
         "0.move fireball"},
        {"a charge", "places -100 100;12 B;1 F;1 F+H", "0.move rush"},
        {"a charge that is too short", "places -100 100;9 B;1 F;1 F+H", "0.move strong"},
        {"two fingers", "1 L;1 L+M", "0.move grab"},
        {"fingers that are too far apart", "1 L;5 L;1 L+M", "0.move jab"},
        {"from a crouch", "3 D;1 D+L", "0.move slide"},
        {"from a run", "places -100 100;1 F;1 -;4 F;1 F+L", "0.move tackle"},
        {"in the air", "4 U;1 L", "0.move dive"},
        {"a landing ends what began in the air", "2 U;14 -;1 L;3 -", "0.action land"},
        {"guarded high", "1 L B;3 - B", "1.action guarded-hit,1.life 990"},
        {"a low guard against high", "1 L DB;3 - DB", "1.action hit"},
        {"a high guard against low", "1 H B;3 - B", "1.action fall"},
        {"guarded low", "1 H DB;3 - DB", "1.action guarded-hit,1.life 980,0.power 3,1.power 10"},
        {"the stun of a guard", "1 H DB;10 - DB", "1.action guarded-hit"},
        {"and its end", "1 H DB;11 - DB", "1.action crouch"},
        {"out of a guard", "1 H DB;8 - DB;1 - S", "1.move counter"},
        {"near an attack one guards", "places -50 50;1 L B;1 - B", "1.action guard"},
        {"a throw holds", "1 L+M B;3 - B", "1.action held"},
        {"and its follower throws", "1 L+M B;18 - B", "1.action fall,1.isThrown ,1.life 965"},
        {"nobody is thrown in the air", "1 L+M U;3 - U", "1.life 1000"},
        {"upward takes the feet away", "1 H;3 -", "1.action fall,1.life 800,0.power 7,1.power 100"},
        {"who lies cannot be hit", "1 H;24 -;1 L;8 -", "1.action lying,1.life 800"},
        {"and gets up", "1 H;60 -", "1.action stand"},
        {"the greater priority wins", "1 L H;3 -", "0.life 800,1.life 1000"},
        {"equal ones both hit", "1 L L;3 -", "0.life 900,1.life 900"},
        {"two throws undo each other", "1 L+M L+M;30 -", "0.life 1000,1.life 1000"},
        {"the push at the end goes back", "places 150 190;1 L;30 -", "1.x 190,0.x 135.1484375"},
        {"no life left", "life 1000 100;1 L;3 -", "phase round-over,0.wins 1,1.action fall"},
        {"a match is won", "life 1000 100;1 L;300 -", "phase match-over,winner 0"},
        {"the time is over", "life 1000 900;120 -", "phase round-over,winner 0"},
        {"an equal share is a draw", "life 500 500;400 -", "phase match-over,winner -1"},
    };
    for (const auto& each : rows) {
        row(each.name, QString(each.script), QString(each.expected));
    }
}

void TestRules::rule()
{
    const auto [script, expected] = fetched<QString, QString>();
    QCOMPARE(mismatch(m_game, firstState(m_game), script, expected), QString());
}

void TestRules::variant_data()
{
    columns<QString, QString, QString, QString>("fighter", "stage", "script", "expected");
    const QString move = "[move jab];command = light;animation = hit;";
    const QString jab = move + "[.hit];damage = 100, 10;";
    const QString signal = "[move x];command = x;animation = hit;[commands];x = ";
    const QString grab = "[move grab];command = both;animation = hit;[.hit];damage = 10, 0;"
                         "level = throw;";
    const QString slide = "[constants];[.run];back = -4, 0;animation 23;frame 0,0 delay 3";
    const struct
    {
        const char* name;
        QString fighter, script, expected;
        QString stage{};
    } rows[] = {
        {"a button is let go", signal + "\"~S\"", "5 S;1 -", "0.move x"},
        {"not while it is held", signal + "\"~S\"", "6 S", "0.action stand"},
        {"to the side is not let go", signal + "\"~9B, S\"", "20 DB;1 B+S", "0.action walk-back"},
        {"let go of down", signal + "\"~9D, S\"", "20 DB;1 B+S", "0.move x"},
        {"the longest hold", signal + "\"~600S, M\"", "620 S;5 -;1 M", "0.move x", "time = 0"},
        {"not as long", signal + "\"~600S, M\"", "580 S;5 -;1 M", "0.move rain", "time = 0"},
        {"down counts its diagonals", "", "3 D;1 DB+L", "0.move slide"},
        {"forward does not", signal + "\"F + S\"", "2 -;1 DF+S", "0.action crouch"},
        {"more directions come first", signal + "\"F + L\"", "1 F+L", "0.move x"},
        {"else the first one", signal + "\"L\"", "1 L", "0.move x"},
        {"one press is one move", move + "animation hit;frame 0,0 delay 1", "1 L;2 L",
         "0.action stand"},
        {"from a stand", signal + "\"S\";[move x];from = stand", "3 D;1 D+S", "0.move x"},
        {"not from a crouch", "[move strong];from = stand;command = heavy;animation = hit",
         "3 D;1 D+H", "0.action crouch"},
        {"it looks to one side", "[constants];turns = no", "places 99 -99;5 -", "0.facing right"},
        {"turning is shown", "animation 11;frame 0,0 delay 4", "places 99 -99;4 -",
         "0.animation 11"},
        {"a jump back", "[constants];[.jump];back = -3, -8;ticks = 2, 3", "places 0 99;4 UB",
         "0.x -6"},
        {"a hop without height", slide, "places 0 99;1 B;1 -;1 B;2 -", "0.action hop,0.x -12.5625"},
        {"and its end", slide, "places 0 99;1 B;1 -;1 B;3 -", "0.action stand"},
        {"a move slows down", move + "velocity = 8, 0", "places 0 99;1 L;1 -", "0.x 15.5"},
        {"gravity of the stage", "", "3 U;1 -", "0.y -15.5", "gravity = 0.5"},
        {"boxes as they are written",
         "animation hit;attack 40,-10, 0,-70;frame 0,0 offset 99,9 flip h scale 3,3 delay 3", "1 L",
         "1.life 900"},
        {"a frame without a body", "animation 10;frame 0,0 delay -1", "1 L;5 -", "1.life 1000"},
        {"attacks are those of moves", "animation 10;attack 0,-70, 40,-10;frame 0,0 delay -1",
         "5 -", "0.life 1000,1.life 1000"},
        {"over each other", "[constants];[.jump];forward = 8, -40;ticks = 2, 3", "3 UF;12 -",
         "0.x 84"},
        {"as far as the screen is wide", "", "places -190 190;1 -", "0.x -190,1.x 190"},
        {"and no farther", "", "places -190 190;1 -", "0.x -90,1.x 90", "zoom = 2, 4"},
        {"widths", "[constants];[.body];widths = 30, 40", "90 B F", "0.x -170"},
        {"a loop does not count", "animation hit;frame 0,0 delay 3 loop", "1 L;3 -",
         "0.action stand"},
        {"a move lands and goes on", move + "velocity = 0, -2", "1 L;8 -", "0.action move,0.y 0"},
        {"a cost leaves one life", move + "[.cost];life = 9999", "1 L", "0.life 1"},
        {"a cancel without a hit", move + "cancels = strong", "1 L;1 H", "0.move strong"},
        {"itself again", move + "cancels = jab;[.hit];damage = 1, 1", "1 L;3 -;9 L",
         "0.move jab,0.frame 0"},
        {"what follows is for the floor",
         move + "velocity = 0, -9;cancels = x;[.hit];damage = 1, 0;stop = 0;[move x];"
                "animation = hit",
         "1 L;5 -", "0.move jab"},
        {"defence has an end", "[constants];attack = 50%;defence = 1%", "1 L;3 -", "1.life 500"},
        {"percents", "[constants];attack = 50%;defence = 200%", "1 L;3 -", "1.life 975"},
        {"at least 1", "[constants];attack = 0%", "1 L;3 -", "1.life 999"},
        {"without stop and stun", jab, "1 L;3 -", "0.stop 8,1.stun 12"},
        {"stun of a guard", jab + "stun = 20", "1 L B;3 - B", "1.stun 13"},
        {"without gain", jab, "1 L;3 -", "0.power 100,1.power 50"},
        {"without gain, guarded", jab, "1 L B;3 - B", "0.power 50,1.power 5"},
        {"the most power", "[constants];power = 60", "1 L;3 -", "0.power 60"},
        {"a hit that makes fall", jab + "falls = yes;stop = 0", "1 L;4 -", "1.action fall,1.y -3"},
        {"one that does not", jab + "falls = no;push = 0, -9", "1 L;3 -", "1.action hit"},
        {"a little upward", jab + "push = 0, -2", "1 L;3 -", "1.action hit"},
        {"hit in the air", jab, "4 - U;1 L U;3 -", "1.action fall"},
        {"a high hit", jab + "level = high;animation 50;frame 0,0 delay -1", "1 L;3 -",
         "1.animation 50"},
        {"not yet dizzy", jab + "stun = 60;animation 63;frame 0,0 delay -1", "1 L;50 -",
         "1.animation 10"},
        {"dizzy", jab + "stun = 60;animation 63;frame 0,0 delay -1", "1 L;51 -", "1.animation 63"},
        {"pushed away from behind",
         "[constants];turns = no;" + jab +
             "push = 9, 0;stop = 0;animation hit;attack -40,-70, 40,-10;frame 0,0 delay 3",
         "places 40 0;1 L;1 -", "1.x -9"},
        {"the longer stop holds both",
         "[move strong];command = heavy;animation = hit;[.hit];damage = 1, 0;stop = 3", "1 L H;3 -",
         "0.stop 8,1.stop 8"},
        {"guarded in the air", jab + "level = low", "4 - U;1 L UB;3 - B", "1.action guarded-hit"},
        {"far from an attack", "", "places -61 60;1 L B;1 - B", "1.action walk-back"},
        {"guarded on without B", "", "1 M B;30 -", "1.life 998"},
        {"a throw without what follows", grab, "1 L+M B;3 - B", "1.action fall"},
        {"a throw that does not fall", grab + "falls = no", "1 L+M;3 -", "1.action hit"},
        {"no throw in a stun", jab + "stun = 10", "1 L;17 -;1 L+M;3 -", "0.move grab,1.life 900"},
        {"a winner begins with full life", "", "life 400 100;1 L;230 -",
         "round 1,0.wins 1,0.life 1000,1.life 1000", "rounds = 2"},
        {"with a share of it", "[constants];recovery = 0.25, 0", "life 400 100;1 L;230 -",
         "round 1,0.life 650,1.life 1000", "rounds = 2"},
        {"both have lost", "", "life 100 100;1 L L;230 -",
         "round 1,0.wins 1,1.wins 1,winner -1,0.life 1000", "rounds = 2"},
        {"won by time", "animation win-1;frame 0,0 delay -1;animation lose;frame 0,0 delay -1",
         "life 1000 900;230 -", "phase victory,0.animation win-1,1.animation lose"},
        {"a round without end", "", "200 -", "phase fight,clock -1", "time = 0"},
        {"looking outward", "[constants];turns = no", "1 -", "0.facing left,1.facing right",
         "[.start];facing = outward"},
    };
    for (const auto& each : rows) {
        row(each.name, each.fighter, each.stage, each.script, each.expected);
    }
}

/// What stands in front holds, of groups and keys as of moves and animations.
void TestRules::variant()
{
    const auto [fighter, stage, script, expected] = fetched<QString, QString, QString, QString>();
    const Game game = changedGame(fighter, stage);
    QCOMPARE(mismatch(game, firstState(game), script, expected), QString());
}

Game TestRules::changedGame(const QString& fighter, const QString& stage) const
{
    Game game = m_game;
    GameReader reader(m_folder.path());
    CodeText text(m_folder.path(), m_game.fighters[0].mainFile, Family::FileKind::Character);
    text.take(QString(fighter).replace(';', '\n') + '\n' + fighterText);
    reader.takeFighter(text, &game.fighters[0]);
    game.fighters[1] = game.fighters[0];
    CodeText arena(m_folder.path(), m_game.stage.mainFile, Family::FileKind::Stage);
    arena.take("[arena]\n" + QString(stage).replace(';', '\n') + '\n' + stageText);
    reader.takeStage(arena, &game.stage);
    completeGame(&game);
    return game;
}

/// With both exchanged, places and inputs too, both do what they did.
void TestRules::neitherComesFirst()
{
    Game game;
    QVERIFY(load(ZORV_SAMPLES "/arena", "maren", "iwao", &game));
    Game exchanged = game;
    std::swap(exchanged.fighters[0], exchanged.fighters[1]);
    std::swap(exchanged.gravity[0], exchanged.gravity[1]);
    std::swap(exchanged.stage.start[0], exchanged.stage.start[1]);
    QRandomGenerator random(Seed);
    State state = firstState(game);
    State other = firstState(exchanged);
    Inputs inputs;
    for (int i = 0; i < 50000 && state.phase != Phase::MatchOver; ++i) {
        inputs = randomInputs(random, inputs);
        tick(game, inputs, &state);
        tick(exchanged, Inputs{{inputs.signs[1], inputs.signs[0]}}, &other);
        for (int side = 0; side < 2; ++side) {
            if (memcmp(&state.fighters[side], &other.fighters[1 - side], sizeof(FighterState))) {
                QCOMPARE(Player::jsonOf(game, state), Player::jsonOf(exchanged, other));
            }
            state.fighters[side].life = game.fighters[side].life;
            other.fighters[1 - side].life = game.fighters[side].life;
        }
    }
}

/// The button that ends the intro is no move.
void TestRules::introEnds()
{
    Game game = changedGame("animation intro;frame 0,0 delay 60", {});
    game.hasIntro = true;
    QCOMPARE(mismatch(game, firstState(game), "5 -", "phase intro"), QString());
    QCOMPARE(mismatch(game, firstState(game), "5 -;4 L", "phase fight,0.action stand"), QString());
}

/// Numbers that no key keeps in a range come from the ends of what can be written.
void TestRules::outOfRange()
{
    const Game game = changedGame("[constants];[.body];push = -2147483648, -2147483648, 2147483647,"
                                  "2147483647;[move jab];command = light;animation = hit;[.hit];"
                                  "damage = 1, 1;spark = 2147483647, -2147483648",
                                  "[.start];first = -2147483648, 0;second = 2147483647, 0;[arena]");
    QCOMPARE(mismatch(game, firstState(game), "1 L;9 -", "0.x 0.5"), QString());
}

// Scripts of the sample game, for which the other one is Iwao.
const struct
{
    const char *fighter, *script, *move;
} sampleScripts[] = {
    {"maren", "1 L", "jab"},
    {"maren", "1 M", "elbow"},
    {"maren", "1 H", "round-kick"},
    {"maren", "1 F;1 F+H", "axe-kick"},
    {"maren", "3 D;1 DB+L", "low-jab"},
    {"maren", "3 D;1 D+M", "low-kick"},
    {"maren", "3 D;1 D+H", "sweep"},
    {"maren", "8 U;1 L", "air-jab"},
    {"maren", "8 U;1 M", "air-kick"},
    {"maren", "8 U;1 H", "heel"},
    {"maren", "1 F+L;1 F+L+M", "overboard"},
    {"maren", "1 B+L+M", "undertow"},
    {"maren", "1 F;1 -;5 F;1 F+M", "boarding"},
    {"maren", "2 D;2 DF;2 F;1 F+L", "harpoon-l"},
    {"maren", "2 D;2 DF;2 F;1 F+M", "harpoon-m"},
    {"maren", "2 D;2 DF;2 F;1 F+H", "harpoon-h"},
    {"maren", "1 F;1 D;1 DF;1 DF+L", "tide-l"},
    {"maren", "1 DF;1 -;1 DF;1 M", "tide-m"},
    {"maren", "1 F;1 D;1 DF;1 DF+H", "tide-h"},
    {"maren", "2 D;2 DB;1 B+L", "rope"},
    {"maren", "places -50 50;2 D;2 DB;1 B+L;40 -", "rope-pull"},
    {"maren", "1 D;1 DF;1 F;1 D;1 DF;1 F;1 H", "sjögång"},
    {"maren", "1 S", "taunt"},
    {"maren", "places -25 25;1 - H;16 B;1 F;1 F+M+H;20 -", "push-off"},
    {"maren", "places -20 20;10 U U;1 - L;28 -;1 L+M+H;4 -", "recover"},
    {"iwao", "1 L", "palm"},
    {"iwao", "1 M", "forearm"},
    {"iwao", "1 H", "hammer"},
    {"iwao", "1 F;1 F+H", "stomp"},
    {"iwao", "3 D;1 DB+L", "low-palm"},
    {"iwao", "3 D;1 D+M", "shove"},
    {"iwao", "3 D;1 D+H", "barrel"},
    {"iwao", "10 U;1 L", "air-palm"},
    {"iwao", "10 U;1 M", "belly"},
    {"iwao", "10 U;1 H", "drop"},
    {"iwao", "1 F+L+M", "load"},
    {"iwao", "1 B+L+M", "unload"},
    {"iwao", "35 B;1 F;1 F+L", "charge-l"},
    {"iwao", "35 B;1 F;1 F+M", "charge-m"},
    {"iwao", "35 B;1 F;1 F+H", "charge-h"},
    {"iwao", "35 DB;1 U;1 U+L", "bell-l"},
    {"iwao", "35 DB;1 U;1 U+M", "bell-m"},
    {"iwao", "1 D;1 -;1 D;1 H", "bell-h"},
    {"iwao", "1 F;1 DF;1 D;1 DB;1 B;1 B+L", "crane"},
    {"iwao", "places -22 22;1 F;1 DF;1 D;1 DB;1 B;1 B+L;60 -", "crane-turn"},
    {"iwao", "1 F;1 -;5 F;1 F+H", "cart"},
    {"iwao", "1 D;1 DB;1 B;1 D;1 DB;1 B;1 H", "大波"},
    {"iwao", "1 S", "taunt"},
    {"iwao", "places -30 30;1 - L;8 B;1 F;1 F+M+H;20 -", "push-off"},
    {"iwao", "places -20 20;10 U U;1 - L;28 -;1 L+M+H;4 -", "recover"},
};

void TestRules::sampleMove_data()
{
    columns<QString, QString, QString>("fighter", "script", "move");
    for (const auto& each : sampleScripts) {
        const QByteArray name = QByteArray(each.fighter) + ": " + each.move;
        row(name.constData(), QString(each.fighter), QString(each.script), QString(each.move));
    }
}

/// The move starts, and those of these that cannot be met by chance also hit.
void TestRules::sampleMove()
{
    const auto [fighter, text, move] = fetched<QString, QString, QString>();
    Game game;
    QVERIFY(load(ZORV_SAMPLES "/arena", fighter, "iwao", &game));
    Player::Script script;
    QString error;
    QVERIFY(script.read("places -200 200\npower 3000 0\n1 -\n" + QString(text).replace(';', '\n'),
                        &error));
    State state = firstState(game);
    QSet<QString> met[2];
    script.run(game, &state, [&](const State& now) {
        for (int i = 0; i < now.eventCount; ++i) {
            const Event& event = now.events[i];
            if (event.fighter == 0 && event.move >= 0) {
                met[event.kind == Event::Hit].insert(game.fighters[0].moves.at(event.move).name);
            }
        }
        return true;
    });
    QVERIFY(met[0].contains(move));
    const QStringList followers{"rope-pull", "crane-turn", "push-off"};
    QCOMPARE(met[1].contains(move), followers.contains(move));
}

void TestRules::everyMoveOfTheSamplesIsShown()
{
    for (const QString& fighter : {QString("maren"), QString("iwao")}) {
        Game game;
        QVERIFY(load(ZORV_SAMPLES "/arena", fighter, fighter, &game));
        for (const Move& move : qAsConst(game.fighters[0].moves)) {
            const bool isShown = std::any_of(
                std::begin(sampleScripts), std::end(sampleScripts), [&](const auto& each) {
                    return fighter == each.fighter && move.name == each.move;
                });
            QVERIFY2(isShown, qPrintable(fighter + ": " + move.name));
        }
    }
}

void TestRules::sampleFrames_data()
{
    columns<QString>("fighter");
    row("maren", QString("maren"));
    row("iwao", QString("iwao"));
}

/// The comments of the samples come from the tables that the animations are made of.
void TestRules::sampleFrames()
{
    const auto [fighter] = fetched<QString>();
    static const QRegularExpression told(
        "# start (\\d+), active (\\d+), recovery (\\d+): (\\d+) "
        "ticks(?:, ([+-]\\d+) when it hits)?\\s+\\[move ([^]]+)\\]");
    Game game;
    QVERIFY(load(ZORV_SAMPLES "/arena", fighter, fighter, &game));
    const QVector<Move>& moves = game.fighters[0].moves;
    const QString text = QString::fromUtf8(
        readFile(QStringLiteral(ZORV_SAMPLES "/arena/characters/%1/moves.code").arg(fighter)));
    int count = 0;
    for (auto found = told.globalMatch(text); found.hasNext(); ++count) {
        const QRegularExpressionMatch match = found.next();
        const auto move = std::find_if(moves.cbegin(), moves.cend(), [&](const Move& each) {
            return each.name == match.captured(6);
        });
        QVERIFY(move != moves.cend());
        const MoveFacts facts = factsOf(game.fighters[0], int(move - moves.cbegin()));
        int active = 0;
        for (const MoveFacts::Active& each : facts.active) {
            active += each.ticks;
        }
        const auto number = [&match](int index) { return match.captured(index).toInt(); };
        const QVector<int> expected{number(1), number(2), number(3), number(4)};
        QCOMPARE((QVector<int>{facts.start, active, facts.recovery, facts.total}), expected);
        QCOMPARE(facts.hit.isMet, !facts.isInAir);
        QCOMPARE(facts.guard.isMet, !facts.isInAir && move->hit.level != HitLevel::Throw);
        if (facts.hit.isMet && !facts.hit.falls) {
            QCOMPARE(facts.hit.advantage, number(5));
        }
    }
    QCOMPARE(count, 13);
}

/// From a copy in the middle the same comes out as without it, and the same as in other builds and
/// on other machines. Another rule gives another number.
void TestRules::sameInputsGiveSameStates()
{
    quint64 ends[3];
    State middle = {};
    for (quint64& end : ends) {
        end = 0;
        const bool isLast = &end == &ends[2];
        QRandomGenerator random(Seed);
        State state = firstState(m_game);
        Inputs inputs;
        for (int i = 0; i < 5000; ++i) {
            inputs = randomInputs(random, inputs);
            if (i == 2500 && isLast) {
                state = middle;
            }
            tick(m_game, inputs, &state);
            state = state.phase == Phase::MatchOver ? firstState(m_game) : state;
            if (i == 2499) {
                middle = state;
            }
            end = end * 31 + hashOf(state);
        }
    }
    QCOMPARE(ends[1], ends[0]);
    QCOMPARE(ends[2], ends[0]);
    QCOMPARE(ends[0], quint64(14649994537401034519u));
}

void TestRules::limitsHold_data()
{
    columns<QString, QString, QString>("folder", "first", "second");
    row("samples", QString(ZORV_SAMPLES "/arena"), QString("maren"), QString("iwao"));
    row("plain", m_folder.path(), QString("plain"), QString("plain"));
    row("bad", m_folder.path(), QString("bad"), QString("plain"));
}

void TestRules::limitsHold()
{
    const auto [folder, first, second] = fetched<QString, QString, QString>();
    Game game;
    QVERIFY(load(folder, first, second, &game));
    QRandomGenerator random(Seed);
    State state = firstState(game);
    Inputs inputs;
    int hits = 0;
    for (int i = 0; i < 100000; ++i) {
        inputs = randomInputs(random, inputs);
        tick(game, inputs, &state);
        hits += int(std::count_if(state.events, state.events + state.eventCount,
                                  [](const Event& event) { return event.kind == Event::Hit; }));
        for (int side = 0; side < 2; ++side) {
            const FighterState& own = state.fighters[side];
            const FighterData& data = game.fighters[side];
            const bool isInside = own.x >= game.stage.left * One && own.x <= game.stage.right * One;
            if (!isInside || own.y > 0 || own.life < 0 || own.life > data.life || own.power < 0 ||
                own.power > data.power || own.stun < 0) {
                QFAIL(Player::jsonOf(game, state).constData());
            }
        }
        if (state.phase == Phase::MatchOver) {
            state = firstState(game);
        }
    }
    QVERIFY(hits > 0);
}

void TestRules::scriptFaults_data()
{
    columns<QString, bool>("text", "isFine");
    row("comment", QString("# x\n\n 3  F+L   - # y"), true);
    row("one", QString("3 DF"), true);
    row("no ticks", QString("0 F"), false);
    row("no number", QString("F"), false);
    row("unknown sign", QString("3 X"), false);
    row("two directions", QString("3 D+F"), false);
    row("three", QString("3 - - -"), false);
    row("too long", QString("999999 -\n2 -"), false);
    row("one place", QString("places 3"), false);
}

void TestRules::scriptFaults()
{
    const auto [text, isFine] = fetched<QString, bool>();
    QString error;
    QCOMPARE(Player::Script().read(text, &error), isFine);
    QCOMPARE(error.isEmpty(), isFine);
}

QTEST_GUILESS_MAIN(TestRules)
#include "tst_rules.moc"
