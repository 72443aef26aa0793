#pragma once

#include "family/check/documentcheck.h"

#include <zorv/core/fileid.h>

#include <QSet>

namespace Zorv {
class ProjectFile;
}

namespace Family {

class FamilyProject;
class SoundFile;
class SpriteCollection;

/// The problems of the sprites and sounds of a project, and of what names them.
class AssetCheck
{
public:
    explicit AssetCheck(const FamilyProject* project) : m_project(project) {}

    /// `place` is the path of a file that is there, in the main file. Only with `isComplete` all
    /// that could name sprites and sounds is known.
    void checkSprites(const NamedPlace& place, const QVector<NamedPlace>& named, bool isComplete);
    void checkSounds(const NamedPlace& place, const QVector<NamedPlace>& named, bool isComplete);

    const Problems& problems() const { return m_problems; }

private:
    Zorv::ProjectFile* loaded(Zorv::FileID::Type type, const NamedPlace& place) const;
    bool checkRecords(const NamedPlace& place, const QStringList& lines);
    void checkMissing(ProblemId id, const NamedPlace& place, const QVector<NamedPlace>& named,
                      const QSet<quint32>& known);
    void checkPalettes(const NamedPlace& place, const SpriteCollection* sprites);
    void tellList(ProblemId id, const NamedPlace& place, const QStringList& names);

    const FamilyProject* m_project;
    Problems m_problems;
};

}  // namespace Family
