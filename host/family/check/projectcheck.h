#pragma once

#include "family/check/factstore.h"

#include <QSet>

namespace Family {

/// The result of checking a project, and its inputs.
struct ProjectFindings
{
    QString mainFile;
    Problems problems;
    QStringList paths;              ///< absolute; all files it depends on, existing or not
    QVector<FactStore::Code> code;  ///< content of its code files, main file first
    QString sprites;                ///< absolute; empty if no existing file is named
    QString sounds;
};

/// Checks a project: its code files, the files that they name, and the references between them.
///
/// If the main file cannot be read, that is the only problem reported.
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
    NamedPlace m_sprites;  // paths in the main file, if the files exist
    NamedPlace m_sounds;
    bool m_isComplete = true;  // all code that could use sprites and sounds is known
};

/// Reports every animation whose identifier occurs earlier in the list.
void checkAnimationNames(const QVector<NamedPlace>& animations, Problems* problems);

}  // namespace Family
