#pragma once

#include "family/check/assetfacts.h"
#include "family/check/diskstate.h"
#include "family/check/filefacts.h"

#include <QDir>
#include <QHash>

#include <memory>

namespace Family {

/// A cache of the content of a game's files. Each file is read once and kept until it is forgotten.
///
/// A text, or sprites and sounds, that are being edited replace their file. Not thread-safe: one
/// thread at a time.
class FactStore
{
public:
    using Code = std::shared_ptr<const FileFacts>;
    using Assets = std::shared_ptr<const AssetFacts>;

    /// Names in problems are relative to `gameFolder`.
    explicit FactStore(const QString& gameFolder);

    /// The name of a file as used in problems.
    QString shownName(const QString& path) const { return m_game.relativeFilePath(path); }
    QString gameFolder() const { return m_game.absolutePath(); }

    /// The content of a code file, read as a certain kind. If it cannot be read, `FileFacts::error`
    /// is set.
    Code code(const QString& path, FileKind kind);
    Assets assets(Zorv::FileID::Type type, const QString& path);

    /// Replaces a file from now on; null for the file itself.
    void setText(const QString& path, const std::shared_ptr<const SourceText>& text);
    void setAssets(const QString& path, const Assets& assets);

    /// The text that replaces a file; null if there is none.
    std::shared_ptr<const SourceText> text(const QString& path) const;

    /// True if the file is replaced, so that it need not exist.
    bool isReplaced(const QString& path) const;

    /// The main files that are replaced by a text.
    QStringList mainTexts() const;

    /// Watches the path from now on, whether or not a file exists.
    void watch(const QString& path);

    /// The watched paths whose state on disk has changed since they were last read.
    QStringList changedOnDisk() const;

    /// Drops the cached content, so that the file is read again on demand.
    void forget(const QString& path);

    /// Drops everything about the path, which nobody needs any more.
    void drop(const QString& path);

    /// The number of files read and texts parsed.
    int readCount() const { return m_readCount; }

private:
    struct Entry
    {
        QHash<int, Code> code;  // by kind
        QHash<int, Assets> assets;
        DiskState state;  // taken before reading
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
