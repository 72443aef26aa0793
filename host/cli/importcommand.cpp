#include "cli/cli.h"
#include "cli/command.h"
#include "cli/editing.h"
#include "cli/jsonlist.h"
#include "cli/output.h"
#include "cli/results.h"
#include "cli/spriteopening.h"
#include "family/assets/spritecollection.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "operations/animationsource.h"
#include "operations/filechanges.h"
#include "operations/media/assetimport.h"

#include <zorv/core/filechange.h>

#include <QCoreApplication>
#include <QJsonObject>

#include <memory>

namespace Cli {

namespace {

using Family::FamilyDocument;
using Operations::AnimationSource;
using Zorv::SpriteNumber;

QString tr(const char* text)
{
    return QCoreApplication::translate("Cli", text);
}

QString textOf(SpriteNumber sprite)
{
    return QStringLiteral("%1,%2").arg(QString::number(sprite.group),
                                       QString::number(sprite.number));
}

/// One import of animations into a file, and of sprites into its sprite file.
class Import
{
public:
    explicit Import(const Invocation& invocation) : m_invocation(invocation) {}

    bool edit(FamilyDocument* document, QString* error);
    int saveSprites();
    void takeBackSprites();
    void report(Output& output) const;

private:
    bool checkConflicts(const Zorv::AnimationImport& plan, QString* error) const;
    bool bringSprites(const Zorv::AnimationImport& plan, const FamilyDocument& document,
                      QString* error);

    const Invocation& m_invocation;
    std::unique_ptr<AnimationSource> m_source;
    std::unique_ptr<Zorv::FileChange> m_spriteChange;
    std::unique_ptr<OpenSprites> m_sprites;
    QString m_spriteFile;
    Zorv::AnimationImportResult m_animations;
    Zorv::AssetResult m_assets;
};

/// Conflicts are only allowed with an option that resolves them.
bool Import::checkConflicts(const Zorv::AnimationImport& plan, QString* error) const
{
    const Zorv::AnimationImportResult& planned = plan.planned();
    if (!planned.refused.isEmpty()) {
        *error = tr("'%1' cannot name an animation. Write a number, or a word of letters, digits, "
                    "'_' and '-'.")
                     .arg(planned.refused.first());
    } else if (!planned.skipped.isEmpty() && !m_invocation.skips) {
        *error = tr("There is an animation '%1' already. Choose '--replace' or '--skip', or "
                    "another name, as in '%1=NEWID'.")
                     .arg(planned.skipped.first());
    }
    return error->isEmpty();
}

bool Import::bringSprites(const Zorv::AnimationImport& plan, const FamilyDocument& document,
                          QString* error)
{
    const QVector<SpriteNumber> wanted = plan.sprites();
    if (wanted.isEmpty()) {
        return true;
    }
    m_spriteFile = Operations::spritesOf(document, error);
    const Family::SpriteCollection* source =
        m_spriteFile.isEmpty() ? nullptr : m_source->sprites(error);
    if (!source) {
        return false;
    }
    m_spriteChange = std::make_unique<Zorv::FileChange>(Operations::watchedFile(m_spriteFile));
    m_sprites = std::make_unique<OpenSprites>(m_spriteFile);
    if (!*m_sprites) {
        return false;
    }
    m_assets = Operations::importAssets(source, m_sprites->get(), wanted, QString());
    *error = m_assets.error;
    return error->isEmpty();
}

bool Import::edit(FamilyDocument* document, QString* error)
{
    m_sprites.reset();
    m_source = std::make_unique<AnimationSource>(m_invocation.operands.at(1));
    *error = m_source->errorString();
    if (!error->isEmpty()) {
        return false;
    }
    m_source->setCommentsTravel(!m_invocation.leavesComments);
    const auto entries = m_source->entries(m_invocation.operands.mid(2), error);
    const auto conflicts =
        m_invocation.replaces ? Zorv::ImportConflict::Replace : Zorv::ImportConflict::Skip;
    Zorv::AnimationImport import(document->animations(), entries, conflicts);
    if (entries.isEmpty() || !checkConflicts(import, error) ||
        (m_invocation.bringsSprites && !bringSprites(import, *document, error))) {
        return false;
    }
    m_animations = import.insert(-1, QString(), m_assets.renumbered);
    return true;
}

int Import::saveSprites()
{
    return m_sprites ? m_sprites->save(m_spriteFile) : int(Fine);
}

void Import::takeBackSprites()
{
    if (m_sprites && m_assets.added > 0) {
        m_sprites->get()->undo();
        m_sprites->save(m_spriteFile);
    }
}

/// One line for each fact: what happened, to what, which or how many, and the new number.
class Report
{
public:
    Report(Output& output, bool json) : m_output(output)
    {
        if (json) {
            m_json = std::make_unique<JsonList>(output);
        }
    }

    void animations(const char* what, const QStringList& identifiers)
    {
        for (const QString& identifier : identifiers) {
            add(what, "animation", QStringLiteral("identifier"), identifier);
        }
    }

    void sprites(const char* what, const QVector<SpriteNumber>& sprites)
    {
        for (const SpriteNumber sprite : sprites) {
            add(what, "sprite", QStringLiteral("identifier"), textOf(sprite));
        }
    }

    void count(const char* what, const char* kind, int count)
    {
        if (count > 0) {
            add(what, kind, QStringLiteral("count"), count);
        }
    }

    void add(const char* what, const char* kind, const QString& key, const QVariant& value,
             const QString& becomes = {})
    {
        const QString whatText = QLatin1String(what);
        const QString kindText = QLatin1String(kind);
        if (m_json) {
            QJsonObject object{{QStringLiteral("what"), whatText},
                               {QStringLiteral("kind"), kindText},
                               {key, QJsonValue::fromVariant(value)}};
            if (!becomes.isNull()) {
                object.insert(QStringLiteral("becomes"), becomes);
            }
            m_json->add(object);
        } else {
            m_output.writeLine(QStringList{whatText, kindText, value.toString()} +
                               (becomes.isNull() ? QStringList() : QStringList(becomes)));
        }
    }

private:
    Output& m_output;
    std::unique_ptr<JsonList> m_json;
};

QVector<SpriteNumber> sorted(QVector<SpriteNumber> sprites)
{
    std::sort(sprites.begin(), sprites.end(), [](SpriteNumber a, SpriteNumber b) {
        return a.group != b.group ? a.group < b.group : a.number < b.number;
    });
    return sprites;
}

void Import::report(Output& output) const
{
    Report report(output, m_invocation.json);
    report.animations("added", m_animations.added);
    report.animations("replaced", m_animations.replaced);
    report.animations("skipped", m_animations.skipped);
    report.count("added", "sprites", m_assets.added);
    report.count("shared", "sprites", m_assets.shared);
    report.count("added", "palettes", m_assets.palettes);
    const QVector<SpriteNumber> renumbered = sorted(m_assets.renumbered.keys().toVector());
    for (const SpriteNumber sprite : renumbered) {
        report.add("renumbered", "sprite", QStringLiteral("identifier"), textOf(sprite),
                   textOf(m_assets.renumbered.value(sprite)));
    }
    report.sprites("missing", m_assets.missing);
}

}  // namespace

int importAnimations(const Invocation& invocation, Output& output)
{
    if (invocation.replaces && invocation.skips) {
        return wrongUsage(tr("Choose one of '--replace' and '--skip'."));
    }
    std::unique_ptr<Import> import;
    const auto edit = [&](FamilyDocument* document, QString* error) {
        import = std::make_unique<Import>(invocation);
        return import->edit(document, error);
    };
    const Companion sprites{[&] { return import->saveSprites(); },
                            [&] { import->takeBackSprites(); }};
    const int status = arrangeFile(invocation, output, edit, sprites);
    if (status == Fine) {
        import->report(output);
    }
    return status;
}

}  // namespace Cli
