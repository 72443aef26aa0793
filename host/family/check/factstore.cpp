#include "family/check/factstore.h"

#include <zorv/code/codecs/filetext.h>
#include <zorv/core/filesystemarchive.h>

namespace Family {

FactStore::FactStore(const QString& gameFolder) : m_game(gameFolder) {}

FactStore::Entry& FactStore::entryOf(const QString& path)
{
    Entry& entry = m_entries[path];
    if (!entry.isWatched) {
        entry.isWatched = true;
        entry.state = DiskState::of(path);
    }
    return entry;
}

FactStore::Code FactStore::code(const QString& path, FileKind kind)
{
    Entry& entry = entryOf(path);
    Code& known = entry.code[int(kind)];
    if (!known) {
        ++m_readCount;
        known = std::make_shared<const FileFacts>(read(path, kind, entry.text.get()));
    }
    return known;
}

FactStore::Assets FactStore::assets(Zorv::FileID::Type type, const QString& path)
{
    Entry& entry = entryOf(path);
    if (entry.ownAssets) {
        return entry.ownAssets;
    }
    Assets& known = entry.assets[int(type)];
    if (!known) {
        ++m_readCount;
        known = std::make_shared<const AssetFacts>(assetFacts(type, path));
    }
    return known;
}

void FactStore::setText(const QString& path, const std::shared_ptr<const SourceText>& text)
{
    Entry& entry = m_entries[path];
    entry.text = text;
    entry.code.clear();
}

void FactStore::setAssets(const QString& path, const Assets& assets)
{
    Entry& entry = m_entries[path];
    entry.ownAssets = assets;
    entry.assets.clear();
}

std::shared_ptr<const SourceText> FactStore::text(const QString& path) const
{
    return m_entries.value(path).text;
}

bool FactStore::isReplaced(const QString& path) const
{
    const auto found = m_entries.constFind(path);
    return found != m_entries.cend() && (found->text || found->ownAssets);
}

QStringList FactStore::mainTexts() const
{
    QStringList paths;
    for (auto it = m_entries.cbegin(); it != m_entries.cend(); ++it) {
        if (it->text && isMainFile(it->text->kind)) {
            paths.append(it.key());
        }
    }
    return paths;
}

void FactStore::watch(const QString& path)
{
    entryOf(path);
}

QStringList FactStore::changedOnDisk() const
{
    QStringList paths;
    for (auto it = m_entries.cbegin(); it != m_entries.cend(); ++it) {
        if (it->isWatched && !(it->state == DiskState::of(it.key()))) {
            paths.append(it.key());
        }
    }
    return paths;
}

void FactStore::forget(const QString& path)
{
    const auto found = m_entries.find(path);
    if (found != m_entries.end()) {
        found->code.clear();
        found->assets.clear();
        found->state = DiskState::of(path);
    }
}

void FactStore::drop(const QString& path)
{
    const auto found = m_entries.find(path);
    if (found != m_entries.end() && !isReplaced(path)) {
        m_entries.erase(found);
    }
}

FileFacts FactStore::read(const QString& path, FileKind kind, const SourceText* text) const
{
    FileFacts facts;
    SourceText source;
    Zorv::FileText file;
    if (text) {
        source = *text;
        source.kind = kind;
    } else if (file.read(*Zorv::FileSystemArchive::instance(), path, -1, &facts.error)) {
        source = {file, kind};
    } else {
        return facts;
    }
    facts = factsOf(source, shownName(path));
    facts.path = path;
    return facts;
}

}  // namespace Family
