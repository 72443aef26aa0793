#pragma once

#include "family/check/documentcheck.h"

namespace Family {

class FamilyProject;
struct FileReference;

/// The problems of a project beyond those of single files.
class ProjectCheck
{
public:
    explicit ProjectCheck(const FamilyProject* project);

    Problems run();

private:
    QString shownName(const FamilyDocument* document) const;
    void checkFiles(const FamilyDocument* document);
    bool checkFile(const NamedPlace& place, const FileReference& reference);
    void takeAsset(const NamedPlace& place, const FileReference& reference);
    void checkAssets(const QVector<NamedPlace>& sprites, const QVector<NamedPlace>& sounds);
    void checkReferences(const QVector<NamedPlace>& references,
                         const QVector<NamedPlace>& animations);

    const FamilyProject* m_project;
    Problems m_problems;
    NamedPlace m_sprites;  // the paths in the main file, if the files are there
    NamedPlace m_sounds;
    bool m_complete = true;
};

}  // namespace Family
