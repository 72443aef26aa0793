#include "cli/cli.h"
#include "cli/command.h"
#include "cli/jsonlist.h"
#include "cli/output.h"
#include "family/project/familyparentproject.h"
#include "operations/moveframes.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonObject>

#include <memory>

namespace Cli {

namespace {

using Rules::FighterData;
using Rules::Move;
using Rules::MoveFacts;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};

constexpr const char* levelNames[] = {"high", "middle", "low", "throw"};

/// "3(4)2": ticks with attack boxes, and the gaps between them.
QString activeText(const MoveFacts& facts)
{
    QString text;
    int end = 0;
    for (const MoveFacts::Active& active : facts.active) {
        text += text.isEmpty() ? QString() : QStringLiteral("(%1)").arg(active.tick - end);
        text += QString::number(active.ticks);
        end = active.tick + active.ticks;
    }
    return text;
}

QString advantageText(int ticks)
{
    return ticks > 0 ? QLatin1Char('+') + QString::number(ticks) : QString::number(ticks);
}

QString factsText(const Move& move, const MoveFacts& facts)
{
    QStringList parts;
    if (facts.active.isEmpty()) {
        parts.append(Text::tr("%1 ticks").arg(facts.total));
    } else {
        parts.append(Text::tr("start %1, active %2, recovery %3")
                         .arg(QString::number(facts.start), activeText(facts),
                              QString::number(facts.recovery)));
    }
    if (facts.hit.isMet) {
        parts.append(Text::tr("hit %1").arg(advantageText(facts.hit.advantage)) +
                     (facts.hit.falls ? Text::tr(" (falls)") : QString()));
    }
    if (facts.guard.isMet) {
        parts.append(Text::tr("guard %1").arg(advantageText(facts.guard.advantage)));
    }
    if (move.hasHit) {
        parts.append(QLatin1String(levelNames[int(move.hit.level)]));
    }
    return parts.join(QLatin1String(", "));
}

QJsonObject meetingObject(const MoveFacts::Meeting& meeting)
{
    return {{QStringLiteral("advantage"), meeting.advantage},
            {QStringLiteral("damage"), meeting.damage},
            {QStringLiteral("falls"), meeting.falls},
            {QStringLiteral("hits"), meeting.hits}};
}

QJsonObject objectOf(const FighterData& data, const Move& move, const MoveFacts& facts,
                     const QString& file)
{
    QJsonArray active;
    for (const MoveFacts::Active& each : facts.active) {
        active.append(QJsonObject{{QStringLiteral("tick"), each.tick},
                                  {QStringLiteral("ticks"), each.ticks}});
    }
    QJsonObject object{{QStringLiteral("file"), file},
                       {QStringLiteral("line"), move.place.line},
                       {QStringLiteral("character"), data.name},
                       {QStringLiteral("move"), move.name},
                       {QStringLiteral("inAir"), facts.isInAir},
                       {QStringLiteral("total"), facts.total},
                       {QStringLiteral("start"), facts.start},
                       {QStringLiteral("active"), active},
                       {QStringLiteral("recovery"), facts.recovery},
                       {QStringLiteral("power"), move.costPower}};
    if (move.command >= 0) {
        object.insert(QStringLiteral("motions"),
                      QJsonArray::fromStringList(data.commands.at(move.command).texts));
    }
    if (move.animation >= 0) {
        object.insert(QStringLiteral("animation"), data.animations.at(move.animation).identifier);
    }
    if (move.hasHit) {
        object.insert(QStringLiteral("level"), QLatin1String(levelNames[int(move.hit.level)]));
    }
    if (facts.hit.isMet) {
        object.insert(QStringLiteral("hit"), meetingObject(facts.hit));
    }
    if (facts.guard.isMet) {
        object.insert(QStringLiteral("guard"), meetingObject(facts.guard));
    }
    return object;
}

}  // namespace

int listMoves(const Invocation& invocation, Output& output)
{
    const QString& path = invocation.operands.first();
    QStringList errors;
    const auto characters = Operations::moveFrames(path, &errors);
    const QDir game(Family::FamilyParentProject::folderOf(path));
    std::unique_ptr<JsonList> list;
    if (invocation.json) {
        list = std::make_unique<JsonList>(output);
    }
    for (const Operations::CharacterMoves& character : characters) {
        for (int i = 0; i < character.facts.size(); ++i) {
            const Move& move = character.data.moves.at(i);
            const QString file = game.relativeFilePath(move.place.file);
            if (list) {
                list->add(objectOf(character.data, move, character.facts.at(i), file));
            } else {
                output.writeLine(
                    {QStringLiteral("%1:%2").arg(file, QString::number(move.place.line)), move.name,
                     factsText(move, character.facts.at(i))});
            }
        }
    }
    list.reset();
    for (const QString& error : qAsConst(errors)) {
        complain(error);
    }
    return errors.isEmpty() ? Fine : NotDone;
}

}  // namespace Cli
