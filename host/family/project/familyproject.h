#pragma once

#include "family/grammar/filekind.h"

#include <zorv/core/project.h>

namespace Family {

class FamilyDocument;
class FamilyParentProject;
class SoundFile;
class SpriteCollection;

/// A character or a stage with the code files that it names.
///
/// Code files, animations and commands are loaded as documents, the sprites and sounds of its main
/// file as collections; other resources are only named.
class FamilyProject final : public Zorv::Project
{
    Q_OBJECT

public:
    /// On a main document that has its file already, or none yet. The project
    /// takes the document over.
    FamilyProject(FamilyParentProject* parent, FamilyDocument* mainDocument);

    /// Opens a main file with all that it names and registers it with the
    /// parent. Null, with `error`, if the main file cannot be read; a file that
    /// it names and that cannot be read is told in `loadErrors()`.
    static FamilyProject* open(FamilyParentProject* parent, const QString& mainFile,
                               QString* error);

    /// A new project with a short text, not saved yet, registered likewise.
    static FamilyProject* create(FamilyParentProject* parent, FileKind kind);

    FamilyDocument* mainDocument() const;

    /// The code documents of all kinds, the main one first.
    QList<FamilyDocument*> documents() const;

    /// The sprites and sounds of the project; null if it has none, or they could not be loaded.
    SpriteCollection* sprites() const;
    SoundFile* sounds() const;

    /// What `loadFiles()` could not load, a line each for the person; also the broken records of
    /// sprites and sounds, of which the rest was loaded.
    QStringList loadErrors() const { return m_loadErrors; }

    /// The name in `[info]`, else the name of the main file.
    QString title() const override;

    /// `resolution` of `[info]`, and with it `scale` of `[constants]`, which is 1 if nothing is
    /// said.
    QSize gameSize() const override;
    QPointF scale() const override;

    /// Loads the code files that are named and not registered, and the first sprites and sounds.
    /// Files outside of the game folder, and the main file itself, are refused.
    void loadFiles() override;
    Zorv::FileID fileTypes() const override;

    /// An empty document or collection, registered, without a name; null for
    /// any other kind.
    Zorv::ProjectFile* newFile(Zorv::FileID::Type type) override;
    QString resolvePath(const QString& path) const override;

    /// The path of the file relative to the project, or "new file" in words.
    QString fileTitle(Zorv::FileID::Type type, int index) const override;
    void fileInfos(QList<FileInfo>& list) override;

    /// The files of the game that the documents name and that lie outside of the
    /// project's folder, relative to the game. Empty for a project without a file.
    QStringList sharedFiles() const;

    /// A copy takes the shared files along, at their places in the game, or what names
    /// them would find nothing there.
    void saveAll(const QString& path, bool asCopy, QStringList* files) override;

signals:
    /// Files have come into the project.
    void filesChanged();

private:
    QVariant mainValue(const char* groupName, const char* key) const;
    void loadDocument(Zorv::FileID::Type type, const QString& path);
    void loadAsset(Zorv::FileID::Type type, const QString& path);
    void selectAsset(Zorv::FileID::Type type, const QString& path);
    QStringList filesOf(Zorv::FileID::Type type, const QString& path) const;
    QList<FileInfo> namedFiles() const;
    bool copyShared(const QString& file, const QString& target);

    QStringList m_loadErrors;
    QList<FileInfo> m_files;
    QString m_pathsOf;
    quint64 m_pathRevision = 0;
};

}  // namespace Family
