#include "family/check/projectcheck.h"

#include "family/check/assetcheck.h"
#include "family/familydocument.h"
#include "family/grammar/grammar.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"
#include "family/project/filereference.h"
#include "family/project/unreachable.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace Family {

ProjectCheck::ProjectCheck(const FamilyProject* project) : m_project(project) {}

QString ProjectCheck::shownName(const FamilyDocument* document) const
{
    if (document->fileName().isEmpty()) {
        return FamilyProject::tr("new file");
    }
    return QDir(m_project->parent()->absolutePath()).relativeFilePath(document->fileName());
}

Problems ProjectCheck::run()
{
    QVector<NamedPlace> animations;
    QVector<NamedPlace> references;
    QVector<NamedPlace> sprites;
    QVector<NamedPlace> sounds;
    const QList<FamilyDocument*> documents = m_project->documents();
    for (const FamilyDocument* document : documents) {
        DocumentCheck check(document, shownName(document));
        m_problems += check.run();
        animations += check.animations();
        references += check.references();
        sprites += check.sprites();
        sounds += check.sounds();
        checkFiles(document);
    }
    checkAnimationNames(animations, &m_problems);
    // With a file missing, animations may only seem to be missing.
    if (m_complete) {
        checkReferences(references, animations);
    }
    checkAssets(sprites, sounds);
    return m_problems;
}

void ProjectCheck::checkAssets(const QVector<NamedPlace>& sprites,
                               const QVector<NamedPlace>& sounds)
{
    AssetCheck check(m_project);
    if (!m_sprites.name.isEmpty()) {
        check.checkSprites(m_sprites, sprites, m_complete);
    }
    if (!m_sounds.name.isEmpty()) {
        check.checkSounds(m_sounds, sounds, m_complete);
    }
    m_problems += check.problems();
}

// The first one counts, as for every key that stands twice.
void ProjectCheck::takeAsset(const NamedPlace& place, const FileReference& reference)
{
    NamedPlace& taken = reference.type == Zorv::FileID::Sprites ? m_sprites : m_sounds;
    if (taken.name.isEmpty()) {
        taken = place;
    }
}

void ProjectCheck::checkFiles(const FamilyDocument* document)
{
    QHash<QString, int> named;
    const QVector<FileReference> references = fileReferences(document);
    for (const FileReference& reference : references) {
        const NamedPlace place{reference.path, shownName(document), reference.line + 1,
                               reference.column + 1, reference.length};
        const bool listed = reference.type != ResourceFile;
        int& first = named[QDir::cleanPath(reference.path)];
        if (listed && first > 0) {
            m_problems.append(
                problemAt(ProblemId::FileTwice, {reference.path, QString::number(first)}, place));
            continue;
        }
        first = listed ? place.line : 0;
        const bool isThere = checkFile(place, reference);
        if (isAssetFile(reference.type)) {
            if (isThere && document == m_project->mainDocument()) {
                takeAsset(place, reference);
            }
        } else if (!isThere && listed) {
            m_complete = false;
        }
    }
}

bool ProjectCheck::checkFile(const NamedPlace& place, const FileReference& reference)
{
    const PathFault fault =
        pathFault(m_project->parent()->absolutePath(), m_project->fileName(), place.name);
    if (fault == PathFault::LeavesGame) {
        m_problems.append(problemAt(ProblemId::FileOutside, {place.name}, place));
        return false;
    }
    if (fault == PathFault::NamesItself) {
        m_problems.append(problemAt(ProblemId::FileItself, {}, place));
        return true;
    }
    const QFileInfo info(m_project->resolvePath(place.name));
    if (fault == PathFault::Empty || !info.exists()) {
        m_problems.append(problemAt(ProblemId::FileMissing, {place.name}, place));
        return false;
    }
    if (reference.type == Zorv::FileID::Sprites && info.isDir()) {
        return true;
    }
    const QString reason = unreadableReason(info.filePath());
    if (!reason.isEmpty()) {
        m_problems.append(problemAt(ProblemId::FileUnreadable, {place.name, reason}, place));
    }
    return reason.isEmpty();
}

void ProjectCheck::checkReferences(const QVector<NamedPlace>& references,
                                   const QVector<NamedPlace>& animations)
{
    QSet<QString> known;
    QStringList names;
    for (const NamedPlace& animation : animations) {
        known.insert(animation.name);
        names.append(animation.name);
    }
    for (const NamedPlace& reference : references) {
        if (!known.contains(reference.name)) {
            m_problems.append(problemAt(ProblemId::AnimationMissing,
                                        {reference.name, nameHint(reference.name, names)},
                                        reference));
        }
    }
}

}  // namespace Family
