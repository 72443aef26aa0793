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

/// An animation on disk with its sprites, open while this object lives.
class OpenAnimation
{
public:
    /// Whether an animation from a single file may be opened without sprites.
    enum SpriteNeed { NeedsSprites, OptionalSprites };

    /// Finds the animation `name`: an identifier or, for a single file, an index such as "#3".
    ///
    /// `path` is a game folder, the main file of a project, or a single code file. A single file
    /// uses the sprites of `spriteFile`, or of the only sprite file beside it. If none or several
    /// match, `errorString()` lists what exists; if sprites are optional and no file was given,
    /// `notes()` does.
    OpenAnimation(const QString& path, const QString& name, const QString& spriteFile = {},
                  SpriteNeed need = NeedsSprites);
    ~OpenAnimation();

    /// True if the animation was found.
    explicit operator bool() const { return m_animation; }
    const Family::AnimationNode& animation() const { return *m_animation; }
    QString errorString() const { return m_error; }

    /// Null if the project has none, if they could not be read, or if they are optional and
    /// missing.
    const Family::SpriteCollection* sprites() const { return m_sprites; }

    /// One line for the user for each part of the project that could not be read.
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
    QStringList m_identifiers;  // of the animations seen during the search
};

}  // namespace Operations
