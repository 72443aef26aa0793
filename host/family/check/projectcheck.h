#pragma once

#include "family/check/factstore.h"

#include <QSet>

namespace Family {

/// What the check of a project has found, and what it comes from.
struct ProjectFindings
{
    QString mainFile;
    Problems problems;
    QStringList paths;              ///< absolute, of all files that it depends on, there or not
    QVector<FactStore::Code> code;  ///< what its code files say, that of the main file first
    QString sprites;                ///< absolute; empty if it names none that are there
    QString sounds;
};

/// Checks a project: its code files, the files that it names, and references between them.
///
/// A main file that cannot be read is a problem by itself.
class ProjectCheck
{
public:
    ProjectCheck(const QString& mainFile, FileKind kind, FactStore* facts);

    ProjectFindings run();

private:
    void readNamed();
    void tellUnread(const NamedPlace& place, const QString& path, const QString& error);
    void checkFiles(const FileFacts& facts);
    bool checkFile(const NamedPlace& place, const FileReference& reference);
    void takeAsset(const NamedPlace& place, const FileReference& reference);
    void checkAnimations();
    void checkNames();
    void checkUses(ProblemId id, QVector<NamedPlace> FileFacts::*uses, const QStringList& names);
    void checkKnownCommands(const QStringList& names);
    QStringList namesOf(QVector<NamedPlace> FileFacts::*things) const;
    void checkNeeded(const QVector<NamedPlace>& animations, const QStringList& names);
    void checkAssets();
    NamedPlace placeOf(const FileFacts& facts, const FileReference& reference) const;
    QString resolved(const QString& path) const;
    PathFault faultOf(const QString& path);
    void dependOn(const QString& path);
    void tell(ProblemId id, const QStringList& arguments, const NamedPlace& place);

    FileKind m_kind;
    FactStore* m_facts;
    ProjectFindings m_found;
    QSet<QString> m_known;
    QHash<QString, PathFault> m_faults;
    NamedPlace m_sprites;  // the paths in the main file, if the files are there
    NamedPlace m_sounds;
    bool m_isComplete = true;  // all that could name sprites and sounds is known
};

/// Tells every animation whose identifier an earlier one of the list has.
void checkAnimationNames(const QVector<NamedPlace>& animations, Problems* problems);

}  // namespace Family
