#include "image/dialogs/sprimport.h"

#include "cache/sprite.h"
#include "cache/sprites.h"
#include "core/interface.h"
#include "core/project.h"

#include <QImage>

using Zorv::Sprite;
using Zorv::Sprites;

namespace {

const Sprite* spriteOf(const QModelIndex& index)
{
    const auto* list = qobject_cast<const Sprites*>(index.model());
    return list ? list->sprite(index.row()) : nullptr;
}

QString identifierOf(const Sprite* sprite)
{
    return sprite ? sprite->property(QStringLiteral("Identifier")).toString() : QString();
}

}  // namespace

SprImport::SprImport(Zorv::Interface* host, Sprites* destination)
    : ImportDlg(host, destination->project()), m_destination(destination)
{
    start(host->pixels(PictureSide));
    connect(destination, &Sprites::changed, this, [this] { readPresent(); });
    connect(destination, &Sprites::closing, this, &QDialog::reject);
}

SprImport::~SprImport() = default;

QVector<QAbstractItemModel*> SprImport::lists(const Zorv::Project* project) const
{
    QVector<QAbstractItemModel*> result;
    const QList<Zorv::ProjectFile*> files = project->filesByType(Zorv::FileID::Sprites);
    for (Zorv::ProjectFile* file : files) {
        auto* sprites = dynamic_cast<Sprites*>(file);
        if (sprites && sprites != m_destination && !result.contains(sprites)) {
            result.append(sprites);
        }
    }
    return result;
}

QString SprImport::identifier(const QModelIndex& index) const
{
    return identifierOf(spriteOf(index));
}

QImage SprImport::picture(const QModelIndex& index) const
{
    const Sprite* sprite = spriteOf(index);
    return sprite ? sprite->image() : QImage();
}

QSet<QString> SprImport::present() const
{
    QSet<QString> result;
    for (int row = 0; m_destination && row < int(m_destination->count()); ++row) {
        result.insert(identifierOf(m_destination->sprite(row)));
    }
    return result;
}

bool SprImport::isUsable(const QString& identifier) const
{
    return m_destination && m_destination->canName(identifier);
}
