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

/// Animations on disk that are to be taken over, with the sprites that they show. Open for as long
/// as this lives.
class AnimationSource
{
public:
    /// `path` is a main file, with the code files that it names; a folder with one main file below
    /// it; or a single code file, whose sprites are those of the one sprite file beside it.
    explicit AnimationSource(const QString& path);
    ~AnimationSource();

    /// Why nothing could be opened; empty if it was.
    QString errorString() const { return m_error; }

    /// Where comments above animations belong to these.
    void setCommentsTravel(bool travel);

    /// The animations that words name: each is an identifier or, of a single list, a place as
    /// "#3", and may be followed by "=" and another identifier. All of them for no words. Empty,
    /// with `error`, for a word that names none, or several.
    QVector<Zorv::ImportEntry> entries(const QStringList& words, QString* error) const;

    /// The sprites, opened when they are asked for first. Null, with `error`, without any.
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
    Family::SpriteCollection* m_sprites = nullptr;  // of m_document
    QList<Family::FamilyAnimations*> m_lists;
};

/// The sprite file of a code file: the one that a main file names, or the only one beside any other
/// file. Empty, with `error`, without one.
QString spritesOf(const Family::FamilyDocument& document, QString* error);

}  // namespace Operations
