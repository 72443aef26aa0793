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
/// Loads code files, animations and commands as documents, and the sprites and sounds of its main
/// file as collections. Other resources are only named.
class FamilyProject final : public Zorv::Project
{
    Q_OBJECT

public:
    /// `mainDocument` either has its file already or has none yet. The project takes ownership.
    FamilyProject(FamilyParentProject* parent, FamilyDocument* mainDocument);

    /// Opens a main file with all files that it names and registers it with the parent. Null, with
    /// `error`, if the main file cannot be read. Other files that cannot be read are listed in
    /// `loadErrors()`.
    static FamilyProject* open(FamilyParentProject* parent, const QString& mainFile,
                               QString* error);

    /// A new unsaved project with a short text, registered in the same way.
    static FamilyProject* create(FamilyParentProject* parent, FileKind kind);

    FamilyDocument* mainDocument() const;

    /// The code documents of all kinds, main document first.
    QList<FamilyDocument*> documents() const;

    /// The sprites and sounds of the project; null if it has none or they could not be loaded.
    SpriteCollection* sprites() const;
    SoundFile* sounds() const;

    /// What `loadFiles()` could not load, one line each for the user. Includes broken records of
    /// sprites and sounds whose other records were loaded.
    QStringList loadErrors() const { return m_loadErrors; }

    /// The name in `[info]`, or else the name of the main file.
    QString title() const override;

    /// `resolution` in `[info]`, and its `scale` in `[constants]`, by default 1.
    QSize gameSize() const override;
    QPointF scale() const override;

    /// Loads the named code files that are not registered yet, and the first sprites and sounds.
    /// Refuses files outside of the game folder, and the main file itself.
    void loadFiles() override;
    Zorv::FileID fileTypes() const override;

    /// A registered empty document or collection without a name; null for any other kind.
    Zorv::ProjectFile* newFile(Zorv::FileID::Type type) override;
    QString resolvePath(const QString& path) const override;

    /// The path of the file relative to the project, or "new file" in words.
    QString fileTitle(Zorv::FileID::Type type, int index) const override;
    void fileInfos(QList<FileInfo>& list) override;

    /// The files that the documents name in the game but outside of the project's folder, relative
    /// to the game. Empty for a project without a file.
    QStringList sharedFiles() const;

    /// A copy includes the shared files at their places in the game. Otherwise the references to
    /// them would break.
    void saveAll(const QString& path, bool asCopy, QStringList* files) override;

signals:
    /// Files were added to the project.
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
