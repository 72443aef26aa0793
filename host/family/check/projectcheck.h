#pragma once

#include "check/documentcheck.h"

namespace Family {

class FamilyProject;

/// The problems of a project beyond those of single files.
class ProjectCheck
{
public:
    explicit ProjectCheck(const FamilyProject* project);

    Problems run();

private:
    QString shownName(const FamilyDocument* document) const;
    void checkFiles(const FamilyDocument* document);
    bool checkFile(const NamedPlace& place, const QString& mainFile);
    void checkReferences(const QVector<NamedPlace>& references,
                         const QVector<NamedPlace>& animations);

    const FamilyProject* m_project;
    Problems m_problems;
    bool m_complete = true;
};

}  // namespace Family
