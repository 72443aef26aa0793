#pragma once

#include <zorv/animation/import/animationimport.h>

#include <QStringList>

#include <memory>

namespace Family {
class FamilyAnimations;
class FamilyDocument;
class FamilyParentProject;
class FamilyProject;
class SpriteCollection;
}  // namespace Family

namespace Operations {

/// Animations on disk to import from, with the sprites that they show. The files stay open while
/// this object lives.
class AnimationSource
{
public:
    /// `path` is a main file, which also brings the code files that it names; a folder with one
    /// main file in it; or a single code file, which uses the only sprite file beside it.
    explicit AnimationSource(const QString& path);
    ~AnimationSource();

    /// Why nothing could be opened; empty on success.
    QString errorString() const { return m_error; }

    /// Sets whether the comments above an animation are imported with it.
    void setCommentsTravel(bool travel);

    /// The animations that `words` name. A word is an identifier or, for a single list, an index
    /// such as "#3". It may be followed by "=" and a new identifier. No words mean all animations.
    /// Empty, with `error`, if a word matches no animation or several.
    QVector<Zorv::ImportEntry> entries(const QStringList& words, QString* error) const;

    /// The sprites, opened at the first call. Null, with `error`, if there are none.
    const Family::SpriteCollection* sprites(QString* error);

private:
    Q_DISABLE_COPY(AnimationSource)
    void openProject(const QString& mainFile);
    QString onlyMainFile();
    QModelIndex find(const QString& reference, QString* error) const;

    QString m_path;
    QString m_error;
    std::unique_ptr<Family::FamilyParentProject> m_game;
    Family::FamilyProject* m_project = nullptr;
    Family::FamilyDocument* m_document = nullptr;
    Family::SpriteCollection* m_sprites = nullptr;  // owned by m_document
    QList<Family::FamilyAnimations*> m_lists;
};

/// The sprite file for a code file: the one that a main file names, or the only one beside any
/// other file. Empty, with `error`, if there is none.
QString spritesOf(const Family::FamilyDocument& document, QString* error);

}  // namespace Operations
