#include "operations/references/referenceindex.h"

#include "family/assets/newsprites.h"
#include "family/assets/spritecollection.h"
#include "family/check/assetfacts.h"
#include "family/project/familyparentproject.h"
#include "operations/check/uses.h"

#include <zorv/code/codecs/filetext.h>
#include <zorv/core/filesystemarchive.h>
#include <zorv/core/jobs.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <tuple>

// Names are stored per file, and files per project. The meaning of a name is resolved from one
// project: it is the same in every project that shares a file in which the name occurs, and so on
// from those projects.

namespace Operations {

using Family::DiskState;
using Family::NameKind;
using Family::SourceText;
using Zorv::FileID;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::ReferenceIndex)
};

using NamesPtr = std::shared_ptr<const FileNames>;

struct Entry
{
    NamesPtr names;
    DiskState state;
    std::shared_ptr<const SourceText> text;
};

auto sortKey(const NameUse& use)
{
    return std::tie(use.path, use.line, use.column);
}

QVector<Family::AssetUse> FileNames::*assetsOf(NameKind kind)
{
    return kind == NameKind::Sprite ? &FileNames::sprites : &FileNames::sounds;
}

bool isAsset(NameKind kind)
{
    return kind == NameKind::Sprite || kind == NameKind::Sound;
}

/// The file of a project that contains things of a kind; empty if that is no file or not named.
QString assetFileOf(const IndexedProject& project, NameKind kind)
{
    const bool isOfSprites = kind == NameKind::Sprite || kind == NameKind::Palette;
    return isOfSprites ? project.sprites : kind == NameKind::Sound ? project.sounds : QString();
}

/// Collects the palette of that identifier, and the sprites and remaps that use it.
void collectPalette(const QString& path, const QString& name, QVector<NameUse>* uses)
{
    QString error;
    Family::AssetId id;
    Family::SpriteCollection* sprites =
        Family::AssetId::read(name, &id) ? Family::openSprites(path, &error) : nullptr;
    if (!sprites) {
        return;
    }
    for (const auto& palette : sprites->palettes()->items()) {
        if (palette->id() != id) {
            continue;
        }
        uses->append({path, 0, int(uses->size()), 0, true, Text::tr("palette %1").arg(name)});
        const QStringList users = usesOfPalette(sprites, palette.get());
        for (const QString& user : users) {
            uses->append({path, 0, int(uses->size()), 0, false, user});
        }
    }
    sprites->release();
}

/// Collects what a sprite or sound file contains of the subject.
void collectAssets(const QString& path, const Subject& subject, QVector<NameUse>* uses)
{
    if (subject.kind == NameKind::Palette) {
        collectPalette(path, subject.name, uses);
        return;
    }
    const bool isSprite = subject.kind == NameKind::Sprite;
    const Family::AssetFacts facts =
        Family::assetFacts(isSprite ? FileID::Sprites : FileID::Sounds, path);
    if (facts.ids.contains(subject.id)) {
        const QString text = isSprite ? Text::tr("sprite %1") : Text::tr("sound %1");
        uses->append({path, 0, 0, 0, true, text.arg(subject.shown())});
    }
}

QString textOfFile(const QString& path)
{
    Zorv::FileText file;
    QString error;
    file.read(*Zorv::FileSystemArchive::instance(), path, -1, &error);
    return file.text;
}

}  // namespace

struct ReferenceIndex::Private
{
    bool refresh(const QStringList& paths);
    QStringList mainFiles() const;
    IndexedProject projectOf(const QString& mainFile) const;
    void findProjects(const QStringList& mainFiles);
    void findUsers();
    bool says(const QString& path, const Subject& subject) const;
    bool says(const IndexedProject& project, const Subject& subject) const;
    bool namesFile(const IndexedProject& project, const QString& path) const;
    QVector<int> scopeOf(const Subject& subject) const;
    void collect(const QString& path, const Subject& subject, QVector<NameUse>* uses) const;
    void collectFiles(const IndexedProject& project, const QString& file,
                      QVector<NameUse>* uses) const;

    QString game;
    QHash<QString, Entry> entries;
    QVector<IndexedProject> projects;
    QHash<QString, QPair<NamesPtr, IndexedProject>> found;  // for main files already evaluated
    QHash<QString, QVector<int>> users;                     // the projects that use a path
    int readCount = 0;
};

ReferenceIndex::ReferenceIndex(const QString& gameFolder) : d(std::make_unique<Private>())
{
    d->game = QDir::cleanPath(QFileInfo(gameFolder).absoluteFilePath());
}

ReferenceIndex::~ReferenceIndex() = default;

QString ReferenceIndex::gameFolder() const
{
    return d->game;
}

void ReferenceIndex::setText(const QString& path, std::shared_ptr<const SourceText> text)
{
    Entry& entry = d->entries[path];
    if (entry.text != text) {
        entry = Entry();
        entry.text = std::move(text);
    }
}

/// Reads the changed files. The state is recorded before reading, so that a change during reading
/// is noticed the next time.
bool ReferenceIndex::Private::refresh(const QStringList& paths)
{
    QStringList stale;
    QVector<DiskState> states;
    for (const QString& path : paths) {
        const Entry entry = entries.value(path);
        const DiskState state = entry.text ? DiskState() : DiskState::of(path);
        if (!entry.names || !(entry.text || state == entry.state)) {
            stale.append(path);
            states.append(state);
        }
    }
    return Zorv::runJobs<FileNames>(
        Text::tr("Looking for names"), stale.size(),
        [&](int i) {
            return [path = stale.at(i), text = entries.value(stale.at(i)).text] {
                return text ? namesOf(*text) : namesOfFile(path);
            };
        },
        [&](int i, const FileNames& names) {
            Entry& entry = entries[stale.at(i)];
            entry.names = std::make_shared<const FileNames>(names);
            entry.state = states.at(i);
            ++readCount;
        });
}

QStringList ReferenceIndex::Private::mainFiles() const
{
    QStringList paths = Family::FamilyParentProject::mainFiles(game);
    for (auto it = entries.cbegin(); it != entries.cend(); ++it) {
        if (it->text && Family::isMainFile(it->text->kind) && !paths.contains(it.key())) {
            paths.append(it.key());
        }
    }
    return paths;
}

IndexedProject ReferenceIndex::Private::projectOf(const QString& mainFile) const
{
    IndexedProject project{mainFile, {mainFile}, {}, {}};
    for (const Family::FileReference& file : entries.value(mainFile).names->files) {
        const QString path = fileNamed(mainFile, file.path);
        const bool isCode = Family::isCodeFile(file.type);
        if (!(isCode || Family::isAssetFile(file.type)) || project.code.contains(path) ||
            Family::pathFault(game, mainFile, file.path) != Family::PathFault::Fine) {
            continue;
        }
        if (isCode) {
            project.code.append(path);
            continue;
        }
        QString& asset = file.type == FileID::Sprites ? project.sprites : project.sounds;
        asset = asset.isEmpty() ? path : asset;
    }
    return project;
}

/// The files that a main file names are only resolved again if its content has changed.
void ReferenceIndex::Private::findProjects(const QStringList& mainFiles)
{
    projects.clear();
    QHash<QString, QPair<NamesPtr, IndexedProject>> now;
    for (const QString& mainFile : mainFiles) {
        const NamesPtr names = entries.value(mainFile).names;
        const auto known = found.constFind(mainFile);
        const bool isKnown = known != found.cend() && known->first == names;
        now.insert(mainFile, {names, isKnown ? known->second : projectOf(mainFile)});
        projects.append(now.value(mainFile).second);
    }
    found = now;
}

void ReferenceIndex::Private::findUsers()
{
    users.clear();
    for (int i = 0; i < projects.size(); ++i) {
        const IndexedProject& project = projects.at(i);
        for (const QString& path : project.code + QStringList{project.sprites, project.sounds}) {
            if (!path.isEmpty()) {
                users[path].append(i);
            }
        }
    }
    for (auto it = entries.begin(); it != entries.end();) {
        it = it->text || users.contains(it.key()) ? std::next(it) : entries.erase(it);
    }
}

bool ReferenceIndex::update()
{
    const QStringList mainFiles = d->mainFiles();
    if (!d->refresh(mainFiles)) {
        return false;
    }
    d->findProjects(mainFiles);
    QStringList code;
    for (const IndexedProject& project : qAsConst(d->projects)) {
        code += project.code.mid(1);
    }
    code.removeDuplicates();
    if (!d->refresh(code)) {
        return false;
    }
    d->findUsers();
    return true;
}

bool ReferenceIndex::Private::says(const QString& path, const Subject& subject) const
{
    const NamesPtr names = entries.value(path).names;
    if (!names) {
        return false;
    }
    if (isAsset(subject.kind)) {
        const QVector<Family::AssetUse>& uses = names.get()->*assetsOf(subject.kind);
        return std::any_of(uses.begin(), uses.end(),
                           [&](const auto& use) { return use.id == subject.id; });
    }
    return std::any_of(names->names.begin(), names->names.end(),
                       [&](const auto& placed) { return subject.isNamedBy(placed.name); });
}

bool ReferenceIndex::Private::namesFile(const IndexedProject& project, const QString& path) const
{
    for (const QString& code : project.code) {
        const NamesPtr names = entries.value(code).names;
        for (int i = 0; names && i < names->files.size(); ++i) {
            if (fileNamed(project.mainFile, names->files.at(i).path) == path) {
                return true;
            }
        }
    }
    return project.mainFile == path;
}

/// The projects of the subject, according to what they share. A file is the same for every project.
QVector<int> ReferenceIndex::Private::scopeOf(const Subject& subject) const
{
    QVector<int> scope;
    for (int i = 0; i < projects.size(); ++i) {
        const bool isIn = subject.kind == NameKind::File
                              ? namesFile(projects.at(i), subject.name)
                              : projects.at(i).mainFile == subject.mainFile;
        if (isIn) {
            scope.append(i);
        }
    }
    if (subject.kind == NameKind::File) {
        return scope;
    }
    for (int at = 0; at < scope.size(); ++at) {
        const IndexedProject& project = projects.at(scope.at(at));
        QStringList shared;
        for (const QString& path : project.code) {
            if (says(path, subject)) {
                shared.append(path);
            }
        }
        shared.append(assetFileOf(project, subject.kind));
        for (const QString& path : qAsConst(shared)) {
            const QVector<int> others = users.value(path);
            for (const int other : others) {
                if (!scope.contains(other)) {
                    scope.append(other);
                }
            }
        }
    }
    return scope;
}

void ReferenceIndex::Private::collect(const QString& path, const Subject& subject,
                                      QVector<NameUse>* uses) const
{
    const NamesPtr names = entries.value(path).names;
    if (!names) {
        return;
    }
    if (isAsset(subject.kind)) {
        for (const Family::AssetUse& use : names.get()->*assetsOf(subject.kind)) {
            if (use.id == subject.id) {
                uses->append({path, use.line, use.column, use.length, false, {}});
            }
        }
        return;
    }
    for (const PlacedName& placed : names->names) {
        const Family::LineName& name = placed.name;
        if (subject.isNamedBy(name)) {
            uses->append(
                {path, placed.line, name.start + 1, name.end - name.start, name.isDefinition, {}});
        }
    }
}

void ReferenceIndex::Private::collectFiles(const IndexedProject& project, const QString& file,
                                           QVector<NameUse>* uses) const
{
    for (const QString& path : project.code) {
        const NamesPtr names = entries.value(path).names;
        for (int i = 0; names && i < names->files.size(); ++i) {
            const Family::FileReference& named = names->files.at(i);
            if (fileNamed(project.mainFile, named.path) == file) {
                uses->append({path, named.line + 1, named.column + 1, named.length, false, {}});
            }
        }
    }
}

QVector<NameUse> ReferenceIndex::usesOf(const Subject& subject) const
{
    QVector<NameUse> uses;
    QSet<QString> paths;
    const QVector<IndexedProject> scope = projectsOf(subject);
    for (const IndexedProject& project : scope) {
        if (subject.kind == NameKind::File) {
            d->collectFiles(project, subject.name, &uses);
            continue;
        }
        for (const QString& path : project.code) {
            if (!paths.contains(path)) {
                paths.insert(path);
                d->collect(path, subject, &uses);
            }
        }
        const QString asset = assetFileOf(project, subject.kind);
        if (!asset.isEmpty() && !paths.contains(asset)) {
            paths.insert(asset);
            collectAssets(asset, subject, &uses);
        }
    }
    std::sort(uses.begin(), uses.end(),
              [](const auto& a, const auto& b) { return sortKey(a) < sortKey(b); });
    uses.erase(std::unique(uses.begin(), uses.end(),
                           [](const auto& a, const auto& b) { return sortKey(a) == sortKey(b); }),
               uses.end());
    return uses;
}

void ReferenceIndex::addTexts(QVector<NameUse>* uses) const
{
    QString path;
    QStringList lines;
    for (NameUse& use : *uses) {
        if (use.line == 0) {
            continue;
        }
        if (use.path != path) {
            path = use.path;
            const auto text = d->entries.value(path).text;
            lines = (text ? text->text : textOfFile(path)).split(QLatin1Char('\n'));
        }
        use.text = lines.value(use.line - 1).trimmed();
    }
}

QVector<IndexedProject> ReferenceIndex::projectsOf(const Subject& subject) const
{
    QVector<IndexedProject> found;
    const QVector<int> scope = d->scopeOf(subject);
    for (const int i : scope) {
        found.append(d->projects.at(i));
    }
    return found;
}

const QVector<IndexedProject>& ReferenceIndex::projects() const
{
    return d->projects;
}

std::shared_ptr<const FileNames> ReferenceIndex::names(const QString& path) const
{
    return d->entries.value(path).names;
}

int ReferenceIndex::readCount() const
{
    return d->readCount;
}

}  // namespace Operations
