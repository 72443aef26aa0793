#pragma once

#include <QString>
#include <QStringList>

#include <memory>

namespace Family {
class AnimationNode;
class FamilyDocument;
class FamilyParentProject;
class FamilyProject;
class SpriteCollection;
}  // namespace Family

namespace Operations {

/// An animation on disk with the sprites that it shows, open for as long as this lives.
class OpenAnimation
{
public:
    /// Whether an animation of a single file is to be had without sprites.
    enum SpriteNeed { NeedsSprites, OptionalSprites };

    /// Finds the animation that `name` means: an identifier or, of a single file, a place as "#3".
    ///
    /// `path` is a game folder; the main file of one of its projects; or a single code file, whose
    /// sprites are those of `spriteFile`, or of the one sprite file beside it. Without one, or with
    /// several that are meant, `errorString()` tells what there is; if sprites are optional, and
    /// none were named, `notes()` does.
    OpenAnimation(const QString& path, const QString& name, const QString& spriteFile = {},
                  SpriteNeed need = NeedsSprites);
    ~OpenAnimation();

    /// True if the animation was found.
    explicit operator bool() const { return m_animation; }
    const Family::AnimationNode& animation() const { return *m_animation; }
    QString errorString() const { return m_error; }

    /// Null for a project without any, or whose sprites could not be read, and where they are
    /// optional.
    const Family::SpriteCollection* sprites() const { return m_sprites; }

    /// What of the project could not be read, a line each for the person.
    QStringList notes() const { return m_notes; }

private:
    Q_DISABLE_COPY(OpenAnimation)
    void findInFile(const QString& fileName, const QString& name, const QString& spriteFile,
                    SpriteNeed need);
    void findInProjects(const QStringList& mainFiles, const QString& name);
    bool findInProject(const Family::FamilyProject& project, const QString& name);
    QString shownName(const QString& fileName) const;

    std::unique_ptr<Family::FamilyParentProject> m_game;
    Family::FamilyProject* m_project = nullptr;
    Family::FamilyDocument* m_document = nullptr;
    Family::SpriteCollection* m_sprites = nullptr;
    const Family::AnimationNode* m_animation = nullptr;
    QString m_path;
    QString m_error;
    QStringList m_notes;
    QStringList m_identifiers;  // that were seen on the way
};

}  // namespace Operations
