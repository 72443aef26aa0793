#pragma once

#include "family/check/assetfacts.h"
#include "family/check/diskstate.h"
#include "family/check/filefacts.h"

#include <QDir>
#include <QHash>

#include <memory>

namespace Family {

/// What the files of a game say, each read once and kept until it is forgotten.
///
/// A text, or sprites and sounds, that somebody else has take the place of their file. Used by one
/// thread at a time.
class FactStore
{
public:
    using Code = std::shared_ptr<const FileFacts>;
    using Assets = std::shared_ptr<const AssetFacts>;

    /// Names in problems are relative to the folder.
    explicit FactStore(const QString& gameFolder);

    /// What the problems have for a file.
    QString shownName(const QString& path) const { return m_game.relativeFilePath(path); }
    QString gameFolder() const { return m_game.absolutePath(); }

    /// What a code file says, read as one of a kind. `FileFacts::error` tells if it cannot be read.
    Code code(const QString& path, FileKind kind);
    Assets assets(Zorv::FileID::Type type, const QString& path);

    /// What stands in the place of a file from now on; null for the file itself.
    void setText(const QString& path, const std::shared_ptr<const SourceText>& text);
    void setAssets(const QString& path, const Assets& assets);

    /// The text in the place of a file; null if there is none.
    std::shared_ptr<const SourceText> text(const QString& path) const;

    /// True if something stands in the place of the file, so that it need not be there.
    bool isReplaced(const QString& path) const;

    /// The main files of which a text stands in the place.
    QStringList mainTexts() const;

    /// The path is looked at from now on, whether there is a file or not.
    void watch(const QString& path);

    /// The paths that are looked at and lie otherwise on the disk than when they were last.
    QStringList changedOnDisk() const;

    /// What is kept of a file is read again when it is asked for.
    void forget(const QString& path);

    /// Nobody asks for the path any more.
    void drop(const QString& path);

    /// How many files have been read, and texts looked through.
    int readCount() const { return m_readCount; }

private:
    struct Entry
    {
        QHash<int, Code> code;  // by kind
        QHash<int, Assets> assets;
        DiskState state;  // taken before anything is read
        bool isWatched = false;
        std::shared_ptr<const SourceText> text;
        Assets ownAssets;
    };

    Entry& entryOf(const QString& path);
    FileFacts read(const QString& path, FileKind kind, const SourceText* text) const;

    QDir m_game;
    QHash<QString, Entry> m_entries;
    int m_readCount = 0;
};

}  // namespace Family
