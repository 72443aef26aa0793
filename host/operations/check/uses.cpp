#include "operations/check/uses.h"

#include "family/assets/remapmodel.h"
#include "family/assets/spritecollection.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/nodes/animationnode.h"
#include "family/project/familyparentproject.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <tuple>

namespace Operations {

using Family::AssetUse;
using Family::FactStore;
using Family::FileFacts;
using Family::NamedPlace;
using Family::ProjectFindings;

namespace {

constexpr int MostLines = 10;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::Uses)
};

auto sortKey(const NamedPlace& place)
{
    return std::tie(place.file, place.line, place.column, place.name);
}

void collectAssets(const ProjectFindings& project, QVector<AssetUse> FileFacts::*uses,
                   const QSet<QString>& missed, QVector<NamedPlace>* places)
{
    for (const FactStore::Code& code : project.code) {
        for (const AssetUse& use : code.get()->*uses) {
            const QString name = use.id.text();
            if (missed.contains(name)) {
                places->append({name, code->file, use.line, use.column, use.length});
            }
        }
    }
}

/// Collects references to removed animations, except those that another file of the project still
/// defines.
void collectReferences(const ProjectFindings& project, const QString& path, QSet<QString> missed,
                       QVector<NamedPlace>* places)
{
    bool isInProject = false;
    for (const FactStore::Code& code : project.code) {
        isInProject |= code->path == path;
        for (const NamedPlace& animation : code->animations) {
            if (code->path != path) {
                missed.remove(animation.name);
            }
        }
    }
    for (const FactStore::Code& code : project.code) {
        for (const NamedPlace& reference : code->references) {
            if (isInProject && missed.contains(reference.name)) {
                places->append(reference);
            }
        }
    }
}

}  // namespace

Removal removalOf(const Family::FamilyDocument& document, const QVector<int>& rows)
{
    Removal removal{Removal::Animations, document.fileName(), {}, {}};
    const Family::FamilyAnimations* list = document.animations();
    for (int row = 0; row < list->count(); ++row) {
        (rows.contains(row) ? removal.names : removal.staying)
            .append(list->animation(row)->identifier());
    }
    return removal;
}

QVector<NamedPlace> usesOf(const Removal& removal, const ProjectsFound& projects)
{
    QVector<NamedPlace> places;
    const QSet<QString> missed = QSet<QString>(removal.names.begin(), removal.names.end()) -
                                 QSet<QString>(removal.staying.begin(), removal.staying.end());
    for (const ProjectFindings& project : projects) {
        if (removal.kind == Removal::Animations) {
            collectReferences(project, removal.path, missed, &places);
        } else if (removal.kind == Removal::Sprites && project.sprites == removal.path) {
            collectAssets(project, &FileFacts::sprites, missed, &places);
        } else if (removal.kind == Removal::Sounds && project.sounds == removal.path) {
            collectAssets(project, &FileFacts::sounds, missed, &places);
        }
    }
    std::sort(places.begin(), places.end(),
              [](const auto& a, const auto& b) { return sortKey(a) < sortKey(b); });
    const auto end = std::unique(places.begin(), places.end(), [](const auto& a, const auto& b) {
        return sortKey(a) == sortKey(b);
    });
    places.erase(end, places.end());
    return places;
}

ProjectsFound projectsNaming(const QString& path)
{
    ProjectsFound projects;
    const QString file = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    FactStore facts(Family::FamilyParentProject::folderOf(file));
    const QStringList mainFiles = Family::FamilyParentProject::mainFiles(facts.gameFolder());
    for (const QString& mainFile : mainFiles) {
        const Family::FileKind kind = Family::fileKindOf(mainFile);
        const FactStore::Code main = facts.code(mainFile, kind);
        const QDir folder = QFileInfo(mainFile).dir();
        const bool namesIt =
            mainFile == file ||
            std::any_of(main->files.begin(), main->files.end(), [&](const auto& reference) {
                return QDir::cleanPath(folder.absoluteFilePath(reference.path)) == file;
            });
        if (namesIt) {
            projects.insert(mainFile, Family::ProjectCheck(mainFile, kind, &facts).run());
        }
    }
    return projects;
}

QStringList usesOfPalette(const Family::SpriteCollection* sprites,
                          const Family::FamilyPalette* palette)
{
    QStringList users;
    for (const auto& sprite : sprites->items()) {
        if (sprite->state.palette.get() == palette) {
            users.append(Text::tr("sprite %1").arg(sprite->id().text()));
        }
    }
    for (const auto& remap : sprites->palettes()->remaps()->items()) {
        if (remap->state.from == palette->id() || remap->state.to == palette->id()) {
            users.append(Text::tr("remap from %1 to %2")
                             .arg(remap->state.from.text(), remap->state.to.text()));
        }
    }
    return users;
}

QStringList inWords(const QVector<NamedPlace>& places)
{
    QStringList lines;
    for (const NamedPlace& place : places.mid(0, MostLines)) {
        lines.append(
            Text::tr("%1, line %2: %3").arg(place.file, QString::number(place.line), place.name));
    }
    if (places.size() > MostLines) {
        lines.append(Text::tr("and %n more", nullptr, places.size() - MostLines));
    }
    return lines;
}

}  // namespace Operations
