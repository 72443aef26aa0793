#include "family/check/projectcheck.h"

#include "family/check/assetcheck.h"
#include "family/grammar/grammar.h"
#include "family/meaning/knowncommands.h"
#include "family/meaning/neededanimations.h"
#include "family/project/unreachable.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMap>

#include <algorithm>

namespace Family {

using Zorv::FileID;

ProjectCheck::ProjectCheck(const QString& mainFile, FileKind kind, FactStore* facts)
    : m_kind(kind), m_facts(facts)
{
    m_found.mainFile = mainFile;
}

void ProjectCheck::tell(ProblemId id, const QStringList& arguments, const NamedPlace& place)
{
    m_found.problems.append(problemAt(id, arguments, place));
}

QString ProjectCheck::resolved(const QString& path) const
{
    return QDir::cleanPath(QFileInfo(m_found.mainFile).absolutePath() + QLatin1Char('/') + path);
}

void ProjectCheck::dependOn(const QString& path)
{
    if (!m_known.contains(path)) {
        m_known.insert(path);
        m_found.paths.append(path);
        m_facts->watch(path);
    }
}

ProjectFindings ProjectCheck::run()
{
    dependOn(m_found.mainFile);
    const FactStore::Code main = m_facts->code(m_found.mainFile, m_kind);
    if (!main->error.isEmpty()) {
        const QString name = m_facts->shownName(m_found.mainFile);
        const QString reason = unreadableReason(m_found.mainFile);
        tell(ProblemId::FileUnreadable, {name, reason}, {{}, name, 1, 1, 0});
        // A file that can be opened but not used has an error text with its own advice.
        Problem& problem = m_found.problems.last();
        problem.text = reason.isEmpty() ? main->error : problem.text;
        return m_found;
    }
    m_found.code.append(main);
    readNamed();
    for (const FactStore::Code& code : qAsConst(m_found.code)) {
        m_found.problems += code->problems;
        checkFiles(*code);
    }
    checkAnimations();
    checkNames();
    checkAssets();
    return m_found;
}

/// Reads the code files named by the main file, kind by kind. A file named as several kinds counts
/// only as the first.
void ProjectCheck::readNamed()
{
    const FactStore::Code main = m_found.code.first();
    QSet<QString> taken{m_found.mainFile};
    QMap<int, QVector<FactStore::Code>> read;
    for (const FileReference& reference : main->files) {
        const QString path = resolved(reference.path);
        const bool isLoaded = isCodeFile(reference.type) || isAssetFile(reference.type);
        if (!isLoaded || taken.contains(path) || faultOf(reference.path) != PathFault::Fine) {
            continue;
        }
        taken.insert(path);
        if (isCodeFile(reference.type)) {
            const FactStore::Code code = m_facts->code(path, fileKindOfType(reference.type));
            code->error.isEmpty() ? read[reference.type].append(code)
                                  : tellUnread(placeOf(*main, reference), path, code->error);
        }
    }
    for (const auto type : {FileID::Code, FileID::Animations, FileID::Commands}) {
        m_found.code += read.value(type);
    }
}

/// A file that is missing or cannot be opened is reported with its path elsewhere.
void ProjectCheck::tellUnread(const NamedPlace& place, const QString& path, const QString& error)
{
    m_isComplete = false;
    if (QFileInfo::exists(path) && unreadableReason(path).isEmpty()) {
        tell(ProblemId::FileUnreadable, {}, place);
        m_found.problems.last().text = error;
    }
}

PathFault ProjectCheck::faultOf(const QString& path)
{
    const auto known = m_faults.constFind(path);
    return known != m_faults.cend()
               ? *known
               : *m_faults.insert(path, pathFault(m_facts->gameFolder(), m_found.mainFile, path));
}

NamedPlace ProjectCheck::placeOf(const FileFacts& facts, const FileReference& reference) const
{
    return {reference.path, facts.file, reference.line + 1, reference.column + 1, reference.length};
}

void ProjectCheck::checkFiles(const FileFacts& facts)
{
    QHash<QString, int> named;
    for (const FileReference& reference : facts.files) {
        const NamedPlace place = placeOf(facts, reference);
        const bool listed = reference.type != ResourceFile;
        int& first = named[QDir::cleanPath(reference.path)];
        if (listed && first > 0) {
            tell(ProblemId::FileTwice, {reference.path, QString::number(first)}, place);
            continue;
        }
        first = listed ? place.line : 0;
        const bool isThere = checkFile(place, reference);
        if (isAssetFile(reference.type)) {
            if (isThere && &facts == m_found.code.first().get()) {
                takeAsset(place, reference);
            }
        } else if (!isThere && listed) {
            m_isComplete = false;
        }
    }
}

bool ProjectCheck::checkFile(const NamedPlace& place, const FileReference& reference)
{
    const QString path = resolved(place.name);
    dependOn(path);
    const PathFault fault = faultOf(place.name);
    if (fault == PathFault::LeavesGame) {
        tell(ProblemId::FileOutside, {place.name}, place);
        return false;
    }
    if (fault == PathFault::NamesItself) {
        tell(ProblemId::FileItself, {}, place);
        return true;
    }
    if (fault == PathFault::Fine && m_facts->isReplaced(path)) {
        return true;
    }
    const QFileInfo info(path);
    if (fault == PathFault::Empty || !info.exists()) {
        tell(ProblemId::FileMissing, {place.name}, place);
        return false;
    }
    if (reference.type == FileID::Sprites && info.isDir()) {
        return true;
    }
    const QString reason = unreadableReason(path);
    if (!reason.isEmpty()) {
        tell(ProblemId::FileUnreadable, {place.name, reason}, place);
    }
    return reason.isEmpty();
}

// The first one counts, as for every duplicated key.
void ProjectCheck::takeAsset(const NamedPlace& place, const FileReference& reference)
{
    const bool isSprites = reference.type == FileID::Sprites;
    NamedPlace& taken = isSprites ? m_sprites : m_sounds;
    if (taken.name.isEmpty()) {
        taken = place;
        (isSprites ? m_found.sprites : m_found.sounds) = resolved(place.name);
    }
}

void ProjectCheck::checkAnimations()
{
    QVector<NamedPlace> animations;
    for (const FactStore::Code& code : qAsConst(m_found.code)) {
        animations += code->animations;
    }
    checkAnimationNames(animations, &m_found.problems);
    // If a file is missing, animations may only seem to be missing.
    if (!m_isComplete) {
        return;
    }
    QStringList names;
    for (const NamedPlace& animation : qAsConst(animations)) {
        names.append(animation.name);
    }
    checkNeeded(animations, names);
    checkUses(ProblemId::AnimationMissing, &FileFacts::references, names);
}

QStringList ProjectCheck::namesOf(QVector<NamedPlace> FileFacts::*things) const
{
    QStringList names;
    for (const FactStore::Code& code : m_found.code) {
        for (const NamedPlace& thing : code.get()->*things) {
            names.append(thing.name);
        }
    }
    return names;
}

void ProjectCheck::checkUses(ProblemId id, QVector<NamedPlace> FileFacts::*uses,
                             const QStringList& names)
{
    const QSet<QString> known(names.begin(), names.end());
    for (const FactStore::Code& code : qAsConst(m_found.code)) {
        for (const NamedPlace& use : code.get()->*uses) {
            if (!known.contains(use.name)) {
                tell(id, {use.name, nameHint(use.name, names)}, use);
            }
        }
    }
}

/// A stage can share a file with moves, but they are not its own. If a file is missing, the names
/// defined there may only seem to be missing.
void ProjectCheck::checkNames()
{
    if (m_kind == FileKind::Character && m_isComplete) {
        const QStringList commands = namesOf(&FileFacts::commands);
        checkUses(ProblemId::CommandMissing, &FileFacts::commandUses, commands);
        checkKnownCommands(commands);
        checkUses(ProblemId::MoveMissing, &FileFacts::moveUses, namesOf(&FileFacts::moves));
    }
}

/// Only for a character with commands: others have not been prepared for an engine yet.
void ProjectCheck::checkKnownCommands(const QStringList& names)
{
    for (const FactStore::Code& code : qAsConst(m_found.code)) {
        for (const NamedPlace& use : code->knownCommands) {
            if (!names.isEmpty() && !names.contains(use.name)) {
                const char* description = knownCommand(use.name)->description;
                tell(ProblemId::CommandMissing,
                     {use.name, QCoreApplication::translate("Family", description)}, use);
            }
        }
    }
}

/// Only for a character that has been prepared for an engine. Others lack nothing yet.
void ProjectCheck::checkNeeded(const QVector<NamedPlace>& animations, const QStringList& names)
{
    const bool hasCommands =
        std::any_of(m_found.code.cbegin(), m_found.code.cend(),
                    [](const FactStore::Code& code) { return !code->commands.isEmpty(); });
    const QStringList missing = missingBasics(names);
    if (m_kind == FileKind::Character && hasCommands && !missing.isEmpty()) {
        const QLatin1String stance(neededAnimation(AnimationRole::Stance).identifier);
        tell(ProblemId::AnimationsNeeded, {missing.join(QLatin1String(", "))},
             animations.at(names.indexOf(stance)));
    }
}

void ProjectCheck::checkAssets()
{
    if (!m_found.sprites.isEmpty()) {
        AssetCheck check(m_sprites, m_found.code, m_isComplete);
        check.checkSprites(*m_facts->assets(FileID::Sprites, m_found.sprites));
        m_found.problems += check.problems();
    }
    if (!m_found.sounds.isEmpty()) {
        AssetCheck check(m_sounds, m_found.code, m_isComplete);
        check.checkSounds(*m_facts->assets(FileID::Sounds, m_found.sounds));
        m_found.problems += check.problems();
    }
}

void checkAnimationNames(const QVector<NamedPlace>& animations, Problems* problems)
{
    QHash<QString, const NamedPlace*> first;
    for (const NamedPlace& place : animations) {
        const NamedPlace*& known = first[place.name];
        if (known) {
            problems->append(problemAt(ProblemId::AnimationTwice,
                                       {place.name, known->file, QString::number(known->line)},
                                       place));
        } else {
            known = &place;
        }
    }
}

}  // namespace Family
