#include "rules/gamereader.h"

#include "family/grammar/grammar.h"
#include "family/project/familyparentproject.h"
#include "family/project/unreachable.h"
#include "rules/codevalues.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

namespace Rules {

using Family::AnimationRole;

namespace {

/// The index of the first thing with each name. A map, because a text may contain a hundred
/// thousand things.
using Places = QHash<QString, int>;

/// False if the name exists already. Things without a name are never duplicates.
bool isNew(const QString& name, int place, Places* places)
{
    const bool isKnown = places->contains(name);
    if (!isKnown && !name.isEmpty()) {
        places->insert(name, place);
    }
    return !isKnown;
}

/// Finds a thing by name: the first one counts.
template <class Things, class Name>
int placeOf(const Things& things, const QString& name, Name nameOf)
{
    for (int i = 0; i < things.size(); ++i) {
        if (!name.isEmpty() && nameOf(things.at(i)) == name) {
            return i;
        }
    }
    return -1;
}

int animationCalled(const FighterData& data, const QString& name)
{
    return placeOf(data.animations, name, [](const Animation& each) { return each.identifier; });
}

/// Clamps a coordinate that has no limit of its own to the range of boxes, so that sums cannot
/// overflow.
int placeFrom(int written)
{
    constexpr int most = 32767;
    return qBound(-most - 1, written, most);
}

int commandCalled(const FighterData& data, const QString& name)
{
    return placeOf(data.commands, name, [](const Command& each) { return each.name; });
}

void readBody(const Values& values, const CodeGroup& constants, FighterData* data)
{
    const QVariantList push = numbersOf(constants.value("body.push"));
    if (push.size() == 4) {
        const auto at = [&push](int index) { return placeFrom(push.at(index).toInt()); };
        data->push = {qMin(at(0), at(2)), qMin(at(1), at(3)), qMax(at(0), at(2)),
                      qMax(at(1), at(3))};
    }
    data->backWidth = qMax(-data->push.left, 0);
    data->frontWidth = qMax(data->push.right, 0);
    values.wholes("body.widths", &data->backWidth, &data->frontWidth);
}

void readConstants(const CodeGroup& constants, FighterData* data)
{
    const Values values(constants);
    values.whole("life", &data->life);
    values.whole("power", &data->power);
    values.whole("attack", &data->attack);
    values.whole("defence", &data->defence);
    data->defence = qMax(data->defence, 10);
    values.real("gravity", &data->gravity);
    data->turns = values.word("turns") != QLatin1String("no");
    data->combo = wholesOf(constants.value("combo"));
    const QVariantList recovery = constants.value("recovery").toList();
    for (const QVariant& share : recovery) {
        data->recovery.append(int(std::lround(share.toDouble() * 65536)));
    }
    values.speed("walk.forward", &data->walkForward);
    values.speed("walk.back", &data->walkBack);
    Fixed ignored = 0;
    data->hasRun = constants.hasSubGroup("run");
    values.speeds("run.forward", &data->runX, &ignored);
    values.speeds("run.back", &data->runBackX, &data->runBackY);
    const char* const jumps[] = {"jump.neutral", "jump.forward", "jump.back"};
    for (int i = 0; i < 3; ++i) {
        values.speeds(jumps[i], &data->jumpX[i], &data->jumpY[i]);
    }
    values.wholes("jump.ticks", &data->jumpStart, &data->jumpEnd);
    readBody(values, constants, data);
}

int bitCount(unsigned bits)
{
    return int(qPopulationCount(bits));
}

/// Reads the valid motions. `check` reports the others.
void readCommands(const CodeGroup& group, FighterData* data, int* left)
{
    for (const auto& entry : group.values) {
        if (entry.first == QLatin1String("defaults.time")) {
            data->time = entry.second.toInt();
        } else if (entry.first == QLatin1String("defaults.buffer")) {
            data->buffer = entry.second.toInt();
        }
        Family::Motion motion;
        QString fault;
        if (entry.first.contains(QLatin1Char('.')) ||
            !Family::readMotion(entry.second.toString(), &motion, &fault)) {
            continue;
        }
        int place = commandCalled(*data, entry.first);
        if (place < 0 && data->commands.size() == FighterData::MostCommands) {
            ++*left;
            continue;
        }
        if (place < 0) {
            place = data->commands.size();
            data->commands.append({entry.first, {}, {}, 0, 0, 0});
        }
        Command& command = data->commands[place];
        const Family::MotionStep& last = motion.constLast();
        command.texts.append(entry.second.toString());
        command.motions.append(motion);
        command.steps = qMax(command.steps, motion.size());
        command.buttons = qMax(command.buttons, bitCount(last.buttons()));
        command.directions = qMax(command.directions, bitCount(last.direction()));
    }
    data->runCommand = commandCalled(*data, QStringLiteral("run"));
    data->hopCommand = commandCalled(*data, QStringLiteral("hop-back"));
}

void readHit(const CodeGroup& group, Hit* hit)
{
    const Values values(group);
    values.wholes("hit.damage", &hit->damage, &hit->guardDamage);
    const QString level = values.word("hit.level");
    hit->level = level.isEmpty() ? HitLevel::Middle
                                 : choiceOf<HitLevel>(level, {"high", "middle", "low", "throw"});
    values.whole("hit.hits", &hit->hits);
    values.whole("hit.stop", &hit->stop);
    values.whole("hit.stun", &hit->stun);
    hit->guardStun = hit->stun * 2 / 3;
    values.whole("hit.guard-stun", &hit->guardStun);
    values.speeds("hit.push", &hit->pushX, &hit->pushY);
    const QString falls = values.word("hit.falls");
    const bool isThrow = hit->level == HitLevel::Throw;
    hit->falls = falls.isEmpty() ? isThrow || hit->pushY < -2 * One : falls == QLatin1String("yes");
    hit->gain = hit->damage;
    hit->guardGain = hit->damage / 2;
    values.wholes("hit.gain", &hit->gain, &hit->guardGain);
    values.wholes("hit.spark", &hit->spark.rx(), &hit->spark.ry());
    hit->spark = {placeFrom(hit->spark.x()), placeFrom(hit->spark.y())};
    hit->shake = wholesOf(group.value("hit.shake"));
}

Move moveOf(const CodeGroup& group, const FighterData& data, const Places& animations)
{
    const Values values(group);
    Move move;
    move.name = group.argument;
    move.place = group.place;
    move.animation = animations.value(values.word("animation"), -1);
    move.commandName = values.word("command");
    move.command = commandCalled(data, move.commandName);
    move.air = choiceOf<Air>(values.word("air"), {"no", "yes", "only"});
    move.from =
        choiceOf<From>(values.word("from"), {"any", "stand", "crouch", "run", "guard", "fall"});
    values.whole("priority", &move.priority);
    move.hasVelocity = values.speeds("velocity", &move.velocityX, &move.velocityY);
    values.whole("cost.power", &move.costPower);
    values.whole("cost.life", &move.costLife);
    move.hasHit = group.hasSubGroup("hit");
    readHit(group, &move.hit);
    values.wholes("sound.hit", &move.hitSound.group, &move.hitSound.number);
    values.wholes("sound.guard", &move.guardSound.group, &move.guardSound.number);
    values.whole("sound.volume", &move.volume);
    return move;
}

void readMoves(const CodeText& text, const Places& animations, FighterData* data)
{
    QVector<const CodeGroup*> groups;
    Places places;
    for (const CodeGroup& group : text.groups()) {
        if (group.name == QLatin1String("move") && isNew(group.argument, groups.size(), &places)) {
            data->moves.append(moveOf(group, *data, animations));
            groups.append(&group);
        }
    }
    for (int i = 0; i < groups.size(); ++i) {
        Move& move = data->moves[i];
        for (const auto& entry : groups.at(i)->values) {
            const int target = entry.first == QLatin1String("cancels")
                                   ? places.value(entry.second.toString(), -1)
                                   : -1;
            if (target >= 0 && !data->moves.at(target).commandName.isEmpty()) {
                move.cancels.append(target);
            } else if (target >= 0 && move.follower < 0) {
                move.follower = target;
            }
        }
    }
}

/// Chooses the animation of each role; -1 to show nothing.
void chooseAnimations(const CodeGroup& constants, FighterData* data)
{
    for (int role = 0; role < Family::AnimationRoleCount; ++role) {
        int shown = -1;
        for (int each = role; each >= 0 && shown < 0;) {
            const auto& row = Family::neededAnimation(AnimationRole(each));
            shown = animationCalled(*data, QLatin1String(row.identifier));
            each = row.substitute;
        }
        data->shown[role] = shown;
    }
    const auto choose = [&](AnimationRole role, const char* key) {
        const int named = animationCalled(*data, constants.value(key).toString());
        int& shown = data->shown[int(role)];
        shown = named >= 0 ? named : shown;
    };
    choose(AnimationRole::Walk, "walk.animation");
    choose(AnimationRole::Run, "run.animation");
    int& stance = data->shown[int(AnimationRole::Stance)];
    if (stance >= 0 || data->animations.isEmpty()) {
        return;
    }
    // Without a stance, everything that falls back to it shows the first animation.
    for (int role = 0; role < Family::AnimationRoleCount; ++role) {
        int last = role;
        while (Family::neededAnimation(AnimationRole(last)).substitute >= 0) {
            last = Family::neededAnimation(AnimationRole(last)).substitute;
        }
        if (last == int(AnimationRole::Stance) && data->shown[role] < 0) {
            data->shown[role] = 0;
        }
    }
}

void readArena(const CodeText& text, StageData* data)
{
    const CodeGroup arena = text.joined("arena");
    const Values values(arena);
    values.whole("left", &data->left);
    values.whole("right", &data->right);
    values.whole("floor", &data->floor);
    if (data->right < data->left) {
        qSwap(data->left, data->right);
    }
    values.real("gravity", &data->gravity);
    values.whole("rounds", &data->rounds);
    values.whole("time", &data->seconds);
    const int middle = data->left + (data->right - data->left) / 2;
    int ignored = 0;
    data->start[0] = middle - 90;
    data->start[1] = middle + 90;
    values.wholes("start.first", &data->start[0], &ignored);
    values.wholes("start.second", &data->start[1], &ignored);
    for (qint32& start : data->start) {
        start = qBound(data->left, start, data->right);
    }
    data->facesInward = values.word("start.facing") != QLatin1String("outward");
    int width = 640;
    int height = 0;
    const CodeGroup info = text.joined("info");
    Values(info).wholes("resolution", &width, &height);
    const QVariantList zoom = arena.value("zoom").toList();
    const double smallest =
        zoom.size() == 2 ? qMin(zoom.at(0).toDouble(), zoom.at(1).toDouble()) : 1;
    data->screenWidth = int(width / qMax(smallest, 0.1));
}

QString titleOf(const CodeText& text, const QString& mainFile)
{
    const QString name = text.joined("info").value("name").toString();
    return name.isEmpty() ? QFileInfo(mainFile).completeBaseName() : name;
}

}  // namespace

GameReader::GameReader(const QString& gameFolder)
    : m_gameFolder(QFileInfo(gameFolder).absoluteFilePath())
{
}

bool GameReader::readFighter(const QString& mainFile, FighterData* data, QString* error)
{
    CodeText text(m_gameFolder, mainFile, Family::FileKind::Character);
    if (!text.read(error)) {
        return false;
    }
    takeFighter(text, data);
    return true;
}

void GameReader::takeFighter(const CodeText& text, FighterData* data)
{
    *data = {};
    data->mainFile = text.mainFile();
    data->name = titleOf(text, data->mainFile);
    Places animations;
    for (const Animation& animation : text.animations()) {
        if (!animation.frames.isEmpty() &&
            isNew(animation.identifier, data->animations.size(), &animations)) {
            data->animations.append(animation);
        }
    }
    const CodeGroup constants = text.joined("constants");
    readConstants(constants, data);
    int left = 0;
    readCommands(text.joined("commands"), data, &left);
    readMoves(text, animations, data);
    chooseAnimations(constants, data);
    m_notes += text.notes();
    if (left > 0) {
        m_notes.append(tr("'%1' has more than %2 commands. Those behind are left out.")
                           .arg(data->name, QString::number(FighterData::MostCommands)));
    }
}

bool GameReader::readStage(const QString& mainFile, StageData* data, QString* error)
{
    CodeText text(m_gameFolder, mainFile, Family::FileKind::Stage);
    if (!text.read(error)) {
        return false;
    }
    takeStage(text, data);
    return true;
}

void GameReader::takeStage(const CodeText& text, StageData* data)
{
    *data = {};
    data->mainFile = text.mainFile();
    data->name = titleOf(text, data->mainFile);
    readArena(text, data);
    m_notes += text.notes();
}

void completeGame(Game* game)
{
    for (int i = 0; i < 2; ++i) {
        game->gravity[i] = fixedOf(game->fighters[i].gravity * game->stage.gravity);
    }
}

QString findMainFile(const QString& gameFolder, const QString& suffix, const QString& name,
                     int index, QString* error)
{
    QStringList found;
    const QStringList files = Family::FamilyParentProject::mainFiles(gameFolder);
    for (const QString& file : files) {
        if (file.endsWith(suffix)) {
            found.append(file);
        }
    }
    if (name.isEmpty()) {
        if (found.isEmpty()) {
            *error = Family::orUnreachable(
                GameReader::tr("There is no file '*%1' in '%2'.").arg(suffix, QStringLiteral("%1")),
                gameFolder);
        }
        return found.value(qMin(index, found.size() - 1));
    }
    QStringList names;
    for (const QString& file : qAsConst(found)) {
        const QFileInfo info(file);
        names.append(info.completeBaseName());
        if (name == info.completeBaseName() || name == info.dir().dirName()) {
            return file;
        }
    }
    // A copy that the editor made for an engine has no suffix.
    if (QFileInfo(name).isFile()) {
        return QFileInfo(name).absoluteFilePath();
    }
    *error = GameReader::tr("There is no '%1' in '%2'. %3")
                 .arg(name, gameFolder, Family::nameHint(name, names));
    return {};
}

}  // namespace Rules
