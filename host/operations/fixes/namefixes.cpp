#include "operations/fixes/namefixes.h"

#include "family/grammar/grammar.h"
#include "family/meaning/knowncommands.h"
#include "family/meaning/neededanimations.h"
#include "operations/create/create.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

// New parts go where a person would write them: an animation after the one with the next lower
// number, a command after the last one, a move after the one that names it. A new part only uses
// things that exist, so that it causes no new problems.

namespace Operations {

using Family::FactStore;
using Family::NamedPlace;
using Family::Problem;
using Family::ProblemId;
using Family::ProjectFindings;
using Zorv::FileID;

namespace {

using Names = QVector<NamedPlace> Family::FileFacts::*;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::Fixes)
};

QStringList namesIn(const ProjectFindings& project, Names names)
{
    QStringList result;
    for (const FactStore::Code& code : project.code) {
        for (const NamedPlace& place : code.get()->*names) {
            result.append(place.name);
        }
    }
    return result;
}

/// The missing name: the value of the line. If a key needs a command that is missing, the name that
/// engines know for it.
QString missingName(const Problem& problem, const FaultyLine& line)
{
    if (problem.id != ProblemId::CommandMissing || !line.parsed.key ||
        line.parsed.key->form == Family::Form::CommandName) {
        return line.parsed.value.toString();
    }
    const auto* known = line.head.group
                            ? Family::knownCommandOf(line.head.group->name, line.parsed.key->name)
                            : nullptr;
    return known ? QString(known->name) : QString();
}

/// Adds an insertion. Insertions at the same position are joined in the order of the calls.
void insert(int position, const QString& text, Fix* fix)
{
    const auto at = std::lower_bound(fix->changes.begin(), fix->changes.end(), position,
                                     [](const TextChange& a, int b) { return a.position < b; });
    if (at != fix->changes.end() && at->position == position) {
        at->text += text;
    } else {
        fix->changes.insert(at, {position, 0, text});
    }
}

void insertBelow(const TextLines& lines, int line, const QString& text, Fix* fix)
{
    insert(lines.end(line), QLatin1Char('\n') + text, fix);
}

/// Appends a separate part to a text.
void append(const QString& text, const QString& part, Fix* fix)
{
    const QString gap = text.isEmpty()                     ? QString()
                        : text.endsWith(QLatin1Char('\n')) ? QStringLiteral("\n")
                                                           : QStringLiteral("\n\n");
    insert(text.size(), gap + part + QLatin1Char('\n'), fix);
}

int numberOf(const QString& identifier)
{
    bool isNumber = false;
    const int number = identifier.toInt(&isNumber);
    return isNumber ? number : -1;
}

/// The animation to insert a new one after: for a number the one with the next lower number, for a
/// word the last one.
const NamedPlace* animationBefore(const Family::FileFacts& facts, const QString& name)
{
    const NamedPlace* before = nullptr;
    const int number = numberOf(name);
    for (const NamedPlace& place : facts.animations) {
        const int other = numberOf(place.name);
        const bool fits = number < 0 || (other >= 0 && other < number);
        if (fits && (number < 0 || !before || other > numberOf(before->name))) {
            before = &place;
        }
    }
    return before;
}

QString spriteBehind(const Family::FileFacts& facts, int line)
{
    for (const Family::AssetUse& use : facts.sprites) {
        if (use.line > line) {
            return use.id.text();
        }
    }
    return facts.sprites.isEmpty() ? QString() : facts.sprites.last().id.text();
}

QString anySprite(const ProjectFindings& project)
{
    for (const FactStore::Code& code : project.code) {
        if (!code->sprites.isEmpty()) {
            return code->sprites.first().id.text();
        }
    }
    return QStringLiteral("0,0");
}

/// The file of the project for new parts of a kind.
const Family::FileFacts* fileFor(const ProjectFindings& project, Names names, FileID::Type type)
{
    for (const FactStore::Code& code : project.code) {
        if (!(code.get()->*names).isEmpty()) {
            return code.get();
        }
    }
    const QDir folder = QFileInfo(project.mainFile).absoluteDir();
    for (const Family::FileReference& reference : project.code.first()->files) {
        const QString path = QDir::cleanPath(folder.absoluteFilePath(reference.path));
        for (const FactStore::Code& code : project.code) {
            if (reference.type == type && code->path == path) {
                return code.get();
            }
        }
    }
    return project.code.first().get();
}

/// The file with the animation to insert a new one after; else the first file with animations.
const Family::FileFacts* fileForAnimation(const ProjectFindings& project, const QString& name)
{
    const Family::FileFacts* best = nullptr;
    int nearest = -1;
    for (const FactStore::Code& code : project.code) {
        const NamedPlace* before = animationBefore(*code, name);
        if (before && (!best || numberOf(before->name) > nearest)) {
            best = code.get();
            nearest = numberOf(before->name);
        }
    }
    return best ? best : fileFor(project, &Family::FileFacts::animations, FileID::Animations);
}

/// A new animation has one frame, with a sprite that the animation before it shows.
void addAnimation(const QString& name, const Family::FileFacts& facts, const TextLines& lines,
                  const ProjectFindings& project, Fix* fix)
{
    const NamedPlace* before = animationBefore(facts, name);
    const QString found = spriteBehind(facts, before ? before->line : 0);
    const QString part = QStringLiteral("animation %1\nframe %2  delay 6  loop")
                             .arg(name, found.isEmpty() ? anySprite(project) : found);
    if (before) {
        insertBelow(lines, lines.lastOf(before->line - 1), QLatin1Char('\n') + part, fix);
    } else if (!facts.animations.isEmpty()) {
        const int head = lines.firstAbove(facts.animations.first().line - 1);
        insert(lines.start(head), part + QLatin1String("\n\n"), fix);
    } else {
        append(fix->before, part, fix);
    }
}

Fix newAnimations(const QStringList& names, const Family::FileFacts& facts,
                  const ProjectFindings& project, const FixSource& source)
{
    Fix fix;
    fix.path = facts.path;
    fix.before = source.textOf(fix.path);
    const TextLines lines(fix.before);
    for (const QString& name : names) {
        addAnimation(name, facts, lines, project, &fix);
    }
    fix.title = names.size() == 1
                    ? Text::tr("Create the animation '%1'").arg(names.first())
                    : Text::tr("Create the animations %1").arg(names.join(QLatin1String(", ")));
    fix.cursor = fix.changes.first().position + 2;
    return fix;
}

/// Only a person can choose a motion, except for commands that engines know: those have a usual
/// one.
Fix newCommand(const QString& name, const ProjectFindings& project, const FixSource& source)
{
    const Family::FileFacts* facts =
        fileFor(project, &Family::FileFacts::commands, FileID::Commands);
    Fix fix;
    fix.path = facts->path;
    fix.before = source.textOf(fix.path);
    fix.title = Text::tr("Create the command '%1'").arg(name);
    const Family::KnownCommand* known = Family::knownCommand(name);
    const QString line = QStringLiteral("%1 = \"%2\"")
                             .arg(name, known ? QLatin1String(known->motion) : QLatin1String());
    const TextLines lines(fix.before);
    int head = -1;
    for (int i = 0; i < lines.count(); ++i) {
        const QString code = lines.line(i).trimmed().remove(QLatin1Char(' '));
        head = code.startsWith(QLatin1String("[commands]")) ? i : head;
    }
    if (!facts->commands.isEmpty()) {
        insertBelow(lines, facts->commands.last().line - 1, line, &fix);
    } else if (head >= 0) {
        insertBelow(lines, head, line, &fix);
    } else {
        append(fix.before, QLatin1String("[commands]\n") + line, &fix);
    }
    const TextChange& change = fix.changes.first();
    fix.cursor = change.position + change.text.lastIndexOf(QLatin1Char('"'));
    return fix;
}

/// The animation of the move that contains a line.
QString animationOfMove(const Family::FileFacts& facts, int moveLine, int nextMove)
{
    for (const NamedPlace& place : facts.references) {
        if (place.line > moveLine && place.line < nextMove) {
            return place.name;
        }
    }
    return {};
}

Fix newMove(const QString& name, const FaultyLine& line, const Family::FileFacts& facts,
            const ProjectFindings& project)
{
    int head = 0;
    int next = line.lines.count() + 1;
    for (const NamedPlace& move : facts.moves) {
        if (move.line <= line.index) {
            head = move.line;
        } else {
            next = std::min(next, move.line);
        }
    }
    const QString own = animationOfMove(facts, head, next);
    const QString animation =
        own.isEmpty() ? namesIn(project, &Family::FileFacts::animations).value(0, "10") : own;
    Fix fix;
    fix.title = Text::tr("Create the move '%1'").arg(name);
    insertBelow(line.lines, line.lines.lastOf(std::max(head - 1, 0)),
                QStringLiteral("\n[move %1]\nanimation = %2").arg(name, animation), &fix);
    const TextChange& change = fix.changes.first();
    fix.cursor = change.position + change.text.size();
    return fix;
}

Fix newAsset(Fix::Kind kind, const FaultyLine& line, const QString& path)
{
    Fix fix;
    fix.kind = kind;
    fix.path = path;
    const QVariantList numbers = line.parsed.value.toList();
    const bool isFrame = line.parsed.kind == Family::ParsedLine::Frame;
    fix.id = {quint16(isFrame ? line.parsed.frame.group : numbers.value(0).toInt()),
              quint16(isFrame ? line.parsed.frame.number : numbers.value(1).toInt())};
    fix.title = (kind == Fix::Sprite ? Text::tr("Create the sprite %1, with a placeholder")
                                     : Text::tr("Create the sound %1, with silence"))
                    .arg(fix.id.text());
    return fix;
}

const Family::FileFacts* factsOf(const ProjectFindings& project, const QString& path)
{
    for (const FactStore::Code& code : project.code) {
        if (code->path == path) {
            return code.get();
        }
    }
    return nullptr;
}

QStringList nearBy(ProblemId id, const ProjectFindings& project)
{
    return id == ProblemId::AnimationMissing
               ? namesIn(project, &Family::FileFacts::animations)
               : namesIn(project, id == ProblemId::CommandMissing ? &Family::FileFacts::commands
                                                                  : &Family::FileFacts::moves);
}

Fix otherWord(const QString& word, const FaultyLine& line)
{
    Fix fix;
    fix.title = Text::tr("Write '%1'").arg(word);
    fix.changes = {{line.at(line.column), line.length, word}};
    return fix;
}

}  // namespace

QVector<Fix> nameFixes(const Problem& problem, const FaultyLine& line,
                       const ProjectFindings& project, const FixSource& source)
{
    QVector<Fix> fixes;
    const QString path = QDir::cleanPath(QDir(source.folder).absoluteFilePath(problem.file));
    const Family::FileFacts* facts = factsOf(project, path);
    if (!facts) {
        return fixes;
    }
    const QString name = missingName(problem, line);
    const QString near = Family::nearName(name, nearBy(problem.id, project));
    const bool isWord = line.parsed.value.toString() == name;
    if (isWord && !near.isEmpty()) {
        fixes.append(otherWord(near, line));
    }
    switch (problem.id) {
    case ProblemId::AnimationMissing:
        fixes.append(newAnimations({name}, *fileForAnimation(project, name), project, source));
        break;
    case ProblemId::AnimationsNeeded:
        fixes = {
            newAnimations(Family::missingBasics(namesIn(project, &Family::FileFacts::animations)),
                          *facts, project, source)};
        break;
    case ProblemId::CommandMissing:
        fixes.append(newCommand(name, project, source));
        break;
    case ProblemId::MoveMissing:
        fixes.append(newMove(name, line, *facts, project));
        break;
    case ProblemId::SpriteMissing:
        fixes = {newAsset(Fix::Sprite, line, project.sprites)};
        break;
    case ProblemId::SoundMissing:
        fixes = {newAsset(Fix::Sound, line, project.sounds)};
        break;
    default:
        fixes.clear();
        break;
    }
    return fixes;
}

QVector<Fix> fileFixes(const FaultyLine& line, const ProjectFindings& project)
{
    QVector<Fix> fixes;
    const QString written = line.parsed.value.toString();
    const QFileInfo info(
        QDir::cleanPath(QFileInfo(project.mainFile).absolutePath() + QLatin1Char('/') + written));
    const QString suffix = QLatin1Char('.') + info.suffix();
    const QString near = Family::nearName(
        info.fileName(), info.dir().entryList({QLatin1Char('*') + suffix}, QDir::Files));
    const int place = line.line.indexOf(info.fileName(), line.column);
    if (!near.isEmpty() && place >= 0) {
        Fix fix;
        fix.title = Text::tr("Write '%1'").arg(near);
        fix.changes = {{line.at(place), info.fileName().size(), near}};
        fixes.append(fix);
    }
    if (!written.isEmpty() && !info.exists() && newFileSuffixes().contains(suffix.toLower())) {
        Fix fix;
        fix.kind = Fix::File;
        fix.title = Text::tr("Create the file '%1'").arg(written);
        fix.path = info.filePath();
        fix.palettes = project.sprites;
        fixes.append(fix);
    }
    return fixes;
}

}  // namespace Operations
