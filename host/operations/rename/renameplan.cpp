#include "operations/rename/renameplan.h"

#include "family/grammar/linescanner.h"
#include "family/meaning/knowncommands.h"
#include "family/meaning/neededanimations.h"
#include "operations/rename/renamedtext_p.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

// The plan is built from the uses in the index. Everything that speaks against the rename is
// collected as a conflict, so that the user sees all problems at once: files that cannot be read or
// written, unsaved texts, a name that is taken, a line that would not be read as meant. All uses in
// a file become one change. A use in line 0 is a record of a sprite or sound file. A file is moved
// after all lines that name it are changed.

namespace Operations {

using Family::AssetId;
using Family::NameKind;

namespace {

constexpr int MostTold = 5;  // places to list that have the name already

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::Rename)
};

class Planner
{
public:
    Planner(const ReferenceIndex& index, RenamePlan* plan, const QSet<QString>& unsaved)
        : m_index(index), m_subject(plan->subject), m_plan(*plan), m_unsaved(unsaved)
    {
    }

    void run();

private:
    bool checkName();
    void checkReadable();
    void checkHidden(const QVector<NameUse>& uses);
    void checkFileName();
    void checkTaken();
    void planFile(const QString& path, const QVector<NameUse>& uses);
    void planText(const QString& path, const QVector<NameUse>& uses);
    void planAsset(const QString& path);
    void planMove();
    QString newNameIn(const QString& path);
    bool isFree(const QString& path);
    void tellProjects();
    void tellEngine();
    QString shown(const QString& path) const
    {
        return QDir(m_index.gameFolder()).relativeFilePath(path);
    }
    void conflict(const QString& text) { m_plan.conflicts.append(text); }

    const ReferenceIndex& m_index;
    const Subject& m_subject;
    RenamePlan& m_plan;
    const QSet<QString>& m_unsaved;
    Subject m_renamed;
    QVector<IndexedProject> m_projects;
};

void Planner::run()
{
    m_projects = m_index.projectsOf(m_subject);
    const QVector<NameUse> uses = m_index.usesOf(m_subject);
    if (uses.isEmpty()) {
        conflict(unknownSubject(m_subject));
        return;
    }
    checkReadable();
    checkHidden(uses);
    if (!checkName()) {
        return;
    }
    const bool isWord = Family::isWord(m_plan.name);
    for (int i = 0; i < uses.size();) {
        const QString path = uses.at(i).path;
        QVector<NameUse> ofFile;
        for (; i < uses.size() && uses.at(i).path == path; ++i) {
            ofFile.append(uses.at(i));
            if (m_subject.kind == NameKind::Move && !isWord && !uses.at(i).isDefinition) {
                conflict(Text::tr("%1, line %2: Only a word can stand here, of letters, digits, "
                                  "'_' and '-'. Choose another name.")
                             .arg(shown(path), QString::number(uses.at(i).line)));
            }
        }
        planFile(path, ofFile);
    }
    if (m_subject.kind == NameKind::File) {
        planMove();
    }
    tellProjects();
    tellEngine();
}

/// A file that cannot be read may contain the name too.
void Planner::checkReadable()
{
    QSet<QString> paths;
    for (const IndexedProject& project : qAsConst(m_projects)) {
        for (const QString& path : project.code) {
            const auto names = m_index.names(path);
            if (names && !names->error.isEmpty() && QFileInfo::exists(path) &&
                !paths.contains(path)) {
                paths.insert(path);
                conflict(names->error);
            }
        }
    }
}

bool isNamedIn(const FileNames& file, const Subject& subject)
{
    const auto hasId = [&](const auto& use) { return use.id == subject.id; };
    if (subject.kind == NameKind::Sprite || subject.kind == NameKind::Sound) {
        const auto& uses = subject.kind == NameKind::Sprite ? file.sprites : file.sounds;
        return std::any_of(uses.begin(), uses.end(), hasId);
    }
    return std::any_of(file.names.begin(), file.names.end(), [&](const PlacedName& placed) {
        return subject.kind == NameKind::File
                   ? QFileInfo(placed.name.name).fileName() == QFileInfo(subject.name).fileName()
                   : subject.isNamedBy(placed.name);
    });
}

/// An unsaved text hides names in the file on disk, and undo may bring those back.
void Planner::checkHidden(const QVector<NameUse>& uses)
{
    QSet<QString> paths;
    for (const NameUse& use : uses) {
        paths.insert(use.path);
    }
    for (const IndexedProject& project : qAsConst(m_projects)) {
        for (const QString& path : project.code) {
            if (m_unsaved.contains(path) && !paths.contains(path)) {
                paths.insert(path);
                if (isNamedIn(namesOfFile(path), m_subject)) {
                    isFree(path);
                }
            }
        }
    }
}

/// False if the new name rules out any plan.
bool Planner::checkName()
{
    QString error;
    m_renamed = Subject::fromText(m_subject.mainFile, m_subject.kind, m_plan.name, &error);
    if (m_renamed.isNone()) {
        conflict(error);
        return false;
    }
    m_plan.name = m_renamed.shown();
    if (m_plan.name == m_subject.shown()) {
        conflict(Text::tr("It is called '%1' already.").arg(m_plan.name));
        return false;
    }
    if (m_subject.kind == NameKind::File) {
        checkFileName();
    }
    checkTaken();
    return true;
}

void Planner::checkFileName()
{
    const QFileInfo file(m_renamed.name);
    if (Family::pathFault(m_index.gameFolder(), m_subject.mainFile, m_plan.name) !=
        Family::PathFault::Fine) {
        conflict(Text::tr("'%1' leads out of the game folder, or to the main file. Choose another "
                          "name.")
                     .arg(m_plan.name));
    } else if (file.exists()) {
        conflict(Text::tr("There is a file '%1' already. Choose another name.").arg(m_plan.name));
    } else if (!QFileInfo(file.path()).isDir()) {
        conflict(Text::tr("There is no folder '%1'. Make it first.").arg(shown(file.path())));
    }
    if (file.suffix() != QFileInfo(m_subject.name).suffix()) {
        conflict(Text::tr("The name of the file has to end in '.%1' as before: that tells what it "
                          "is.")
                     .arg(QFileInfo(m_subject.name).suffix()));
    }
    const bool isMain = std::any_of(
        m_index.projects().begin(), m_index.projects().end(),
        [this](const IndexedProject& project) { return project.mainFile == m_subject.name; });
    if (isMain) {
        conflict(Text::tr("'%1' is a main file, which no line has to name. Close the project, and "
                          "rename the file by itself.")
                     .arg(m_subject.shown()));
    }
}

/// Finds things that have the new name already, or lines that use it although nothing has it.
void Planner::checkTaken()
{
    QStringList places;
    for (const IndexedProject& project : qAsConst(m_projects)) {
        Subject other = m_renamed;
        other.mainFile = project.mainFile;
        const QVector<NameUse> uses = m_index.usesOf(other);
        for (const NameUse& use : uses) {
            const QString text =
                use.line == 0 ? Text::tr("%1 has a '%2' already.").arg(shown(use.path), m_plan.name)
                              : Text::tr("%1, line %2, names '%3' already.")
                                    .arg(shown(use.path), QString::number(use.line), m_plan.name);
            if (!places.contains(text)) {
                places.append(text);
            }
        }
    }
    m_plan.conflicts += places.mid(0, MostTold);
    if (places.size() > MostTold) {
        conflict(Text::tr("%n more places name it.", nullptr, places.size() - MostTold));
    }
}

bool Planner::isFree(const QString& path)
{
    if (m_unsaved.contains(path)) {
        conflict(Text::tr("%1 has changes that are not saved. Save them first.").arg(shown(path)));
        return false;
    }
    if (!QFileInfo(path).isWritable()) {
        conflict(Text::tr("%1 is write-protected. Allow writing to it first.").arg(shown(path)));
        return false;
    }
    return true;
}

void Planner::planFile(const QString& path, const QVector<NameUse>& uses)
{
    if (!isFree(path)) {
        return;
    }
    if (uses.first().line == 0) {
        planAsset(path);
    } else {
        planText(path, uses);
    }
}

/// Paths are relative to the main file's folder. A line shared by two projects may need two
/// different ones.
QString Planner::newNameIn(const QString& path)
{
    if (m_subject.kind != NameKind::File) {
        return m_plan.name;
    }
    QString name;
    for (const IndexedProject& project : qAsConst(m_projects)) {
        if (!project.code.contains(path)) {
            continue;
        }
        const QString own = QFileInfo(project.mainFile).dir().relativeFilePath(m_renamed.name);
        if (!name.isEmpty() && own != name) {
            conflict(Text::tr("%1 belongs to several projects, and '%2' lies elsewhere for each. "
                              "Choose another folder.")
                         .arg(shown(path), m_plan.name));
        }
        name = own;
    }
    return name;
}

void Planner::planText(const QString& path, const QVector<NameUse>& uses)
{
    RenamedText text(path);
    const QString name = newNameIn(path);
    for (const NameUse& use : uses) {
        text.replace(use, m_subject, name);
    }
    if (text.fault().isEmpty()) {
        text.finish();
    }
    if (!text.fault().isEmpty()) {
        conflict(text.fault());
    }
    m_plan.lines += text.lines();
    m_plan.changes.texts.append(text.change());
}

void Planner::planAsset(const QString& path)
{
    AssetId from = m_subject.id;
    AssetId to = m_renamed.id;
    const bool isPalette = m_subject.kind == NameKind::Palette;
    if (isPalette && !(AssetId::read(m_subject.name, &from) && AssetId::read(m_plan.name, &to))) {
        conflict(Text::tr("%1 has a palette '%2': it can only be called by a group and a number.")
                     .arg(shown(path), m_subject.shown()));
    }
    if (QFileInfo(path).isDir()) {
        conflict(Text::tr("%1 is a folder of images. Give its image the new number there, or "
                          "convert it to a sprite file.")
                     .arg(shown(path)));
        return;
    }
    m_plan.changes.assets.append({path, m_subject.kind, from, to});
    m_plan.lines.append({path, 0, 0, m_subject.shown(), m_plan.name});
}

void Planner::planMove()
{
    if (!QFileInfo::exists(m_subject.name)) {
        m_plan.notes.append(Text::tr("There is no file '%1'; only the lines that name it change.")
                                .arg(m_subject.shown()));
        return;
    }
    if (isFree(m_subject.name)) {
        m_plan.changes.moves.append({m_subject.name, m_renamed.name});
        m_plan.lines.append({m_subject.name, 0, 0, shown(m_subject.name), shown(m_renamed.name)});
    }
}

void Planner::tellProjects()
{
    if (m_subject.kind == NameKind::File || m_projects.size() < 2) {
        return;
    }
    QStringList others;
    for (const IndexedProject& project : qAsConst(m_projects)) {
        if (project.mainFile != m_subject.mainFile) {
            others.append(shown(project.mainFile));
        }
    }
    m_plan.notes.append(
        Text::tr("It is the same thing for projects that share files with this one, and changes "
                 "there too: %1.")
            .arg(others.join(QLatin1String(", "))));
}

/// Engines refer to some animations and commands by fixed names.
bool isKnownToEngines(NameKind kind, const QString& name)
{
    if (kind == NameKind::Command) {
        return Family::knownCommand(name);
    }
    for (int role = 0; role < Family::AnimationRoleCount && kind == NameKind::Animation; ++role) {
        const auto& needed = Family::neededAnimation(Family::AnimationRole(role));
        if (name == QLatin1String(needed.identifier)) {
            return true;
        }
    }
    return false;
}

void Planner::tellEngine()
{
    if (isKnownToEngines(m_subject.kind, m_subject.name)) {
        m_plan.notes.append(Text::tr("Engines look for '%1' by this name, and will not find it any "
                                     "more.")
                                .arg(m_subject.name));
    }
    if (isKnownToEngines(m_subject.kind, m_plan.name)) {
        m_plan.notes.append(
            Text::tr("Engines know '%1' by this name, and will use it.").arg(m_plan.name));
    }
}

}  // namespace

RenamePlan planRename(const ReferenceIndex& index, const Subject& subject, const QString& name,
                      const QSet<QString>& unsaved)
{
    RenamePlan plan;
    plan.subject = subject;
    plan.name = name;
    Planner(index, &plan, unsaved).run();
    return plan;
}

}  // namespace Operations
