#include "check/projectcheck.h"

#include "familydocument.h"
#include "grammar/grammar.h"
#include "project/familyparentproject.h"
#include "project/familyproject.h"
#include "project/filereference.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
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
    const QList<FamilyDocument*> documents = m_project->documents();
    for (const FamilyDocument* document : documents) {
        DocumentCheck check(document, shownName(document));
        m_problems += check.run();
        animations += check.animations();
        references += check.references();
        checkFiles(document);
    }
    checkAnimationNames(animations, &m_problems);
    // With a file missing, animations may only seem to be missing.
    if (m_complete) {
        checkReferences(references, animations);
    }
    return m_problems;
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
        if (!checkFile(place, m_project->fileName()) && listed) {
            m_complete = false;
        }
    }
}

bool ProjectCheck::checkFile(const NamedPlace& place, const QString& mainFile)
{
    const PathFault fault = pathFault(m_project->parent()->absolutePath(), mainFile, place.name);
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
    QFile file(info.filePath());
    QString reason;
    if (!info.isFile()) {
        reason = QCoreApplication::translate("Family", "it is not a file");
    } else if (!file.open(QIODevice::ReadOnly)) {
        reason = file.errorString();
    }
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
