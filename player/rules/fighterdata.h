#pragma once

#include "family/grammar/motion.h"
#include "family/meaning/neededanimations.h"
#include "family/nodes/framedata.h"
#include "rules/fixed.h"

#include <QPoint>
#include <QString>
#include <QVector>

namespace Rules {

/// A contact box in pixels from the axis of a fighter that looks to the right, all sides inclusive.
struct Box
{
    qint32 left = 0;
    qint32 top = 0;
    qint32 right = 0;
    qint32 bottom = 0;
};

/// A location in the text of a game.
struct TextPlace
{
    QString file;  ///< absolute
    int line = 0;  ///< from 1
};

struct Frame
{
    Family::FrameData data;
    int line = 0;
    QVector<Box> attack;
    QVector<Box> body;
    int next = 0;             ///< the frame after it in a loop; itself if it stays
    bool isLastShown = true;  ///< a pass ends with it
};

struct Animation
{
    static constexpr int MostTicks = 100000;

    QString identifier;
    TextPlace place;
    QVector<Frame> frames;
    int first = 0;        ///< the first visible frame
    int ticks = 0;        ///< of one pass, without a frame that stays
    int lastAttack = -1;  ///< the tick of a pass in which it attacks last; -1 without attacks
};

struct Command
{
    QString name;
    QStringList texts;
    QVector<Family::Motion> motions;
    int steps = 0;       ///< of the longest motion
    int buttons = 0;     ///< maximum in a last step
    int directions = 0;  ///< likewise
};

enum class Air : qint32 { No, Yes, Only };
enum class From : qint32 { Any, Stand, Crouch, Run, Guard, Fall };
enum class HitLevel : qint32 { High, Middle, Low, Throw };

/// A sound of a move.
struct SoundId
{
    int group = -1;  ///< -1 for none
    int number = 0;
};

/// The effect of a hit by a move.
struct Hit
{
    int damage = 0;
    int guardDamage = 0;
    HitLevel level = HitLevel::Middle;
    int hits = 1;
    int stop = 8;
    int stun = 12;
    int guardStun = 8;
    Fixed pushX = 0;
    Fixed pushY = 0;
    bool falls = false;
    int gain = 0;
    int guardGain = 0;
    QPoint spark;
    QVector<int> shake;
};

struct Move
{
    static constexpr int None = -1;

    QString name;
    TextPlace place;
    int animation = -1;  ///< index in `FighterData::animations`; -1 if it is missing
    int command = None;
    QString commandName;
    Air air = Air::No;
    From from = From::Any;
    int priority = 4;
    bool hasVelocity = false;
    Fixed velocityX = 0;
    Fixed velocityY = 0;
    QVector<int> cancels;  ///< moves with a command
    int follower = None;   ///< the move without a command that follows automatically
    int costPower = 0;
    int costLife = 0;
    bool hasHit = false;
    Hit hit;
    SoundId hitSound;
    SoundId guardSound;
    int volume = 100;
};

/// Everything that the rules know about a character. It does not change during a match.
struct FighterData
{
    static constexpr int MostCommands = 128;

    QString name;
    QString mainFile;
    int life = 1000;
    int power = 3000;
    int attack = 100;   ///< percent
    int defence = 100;  ///< percent, at least 10
    double gravity = 0.5;
    bool turns = true;
    QVector<int> combo;     ///< percents
    QVector<int> recovery;  ///< in 1/65536; empty for full recovery
    Fixed walkForward = 2 * One;
    Fixed walkBack = -2 * One;
    bool hasRun = false;
    Fixed runX = 0;
    Fixed runBackX = 0;
    Fixed runBackY = 0;
    Fixed jumpX[3] = {0, 5 * One / 2, -5 * One / 2};  ///< neutral, forward, back
    Fixed jumpY[3] = {-8 * One, -8 * One, -8 * One};
    int jumpStart = 3;
    int jumpEnd = 4;
    Box push{-16, -80, 16, 0};
    int backWidth = 16;
    int frontWidth = 16;
    int time = 18;
    int buffer = 4;
    int runCommand = Move::None;
    int hopCommand = Move::None;
    QVector<Command> commands;
    QVector<Animation> animations;
    QVector<Move> moves;
    int shown[Family::AnimationRoleCount];  ///< the animation of each role; -1 for none

    int animationOf(Family::AnimationRole role) const { return shown[int(role)]; }
};

/// Everything that the rules know about a stage.
struct StageData
{
    QString name;
    QString mainFile;
    qint32 left = -320;  ///< in pixels, like all positions
    qint32 right = 320;
    qint32 floor = 0;
    double gravity = 1;
    qint32 start[2] = {-90, 90};
    bool facesInward = true;
    int screenWidth = 640;  ///< at the smallest zoom
    int rounds = 2;
    int seconds = 99;  ///< 0 for no limit
};

/// The data of a match.
struct Game
{
    FighterData fighters[2];
    StageData stage;
    Fixed gravity[2] = {One / 2, One / 2};  ///< of both fighters, on this stage
    bool hasIntro = true;
};

}  // namespace Rules
