#include "app/assets/spritepanel.h"

#include "app/look/language.h"
#include "family/assets/familysprite.h"
#include "family/assets/spritecollection.h"

#include <zorv/animation/thumbnails/spritelist.h>
#include <zorv/cache/palette.h>
#include <zorv/cache/palettes.h>

#include <QLabel>
#include <QVBoxLayout>

namespace App {

using Family::FamilySprite;
using Family::SpriteCollection;
using Zorv::SpriteList;

SpritePanel::SpritePanel(QWidget* parent)
    : QWidget(parent), m_list(new SpriteList), m_text(new QLabel)
{
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_list, 1);
    layout->addWidget(m_text);
    setFocusProxy(m_list);

    connect(m_list, &SpriteList::currentRowChanged, this, &SpritePanel::updateCurrent);
    connect(m_list, &QListView::activated, this,
            [this](const QModelIndex& index) { emit spriteActivated(index.row()); });
    followLanguage(this, [this] {
        m_list->setAccessibleName(tr("Sprites of the project"));
        m_text->setText(currentText());
    });
}

void SpritePanel::setSprites(SpriteCollection* sprites)
{
    if (sprites == m_sprites) {
        return;
    }
    if (m_sprites) {
        m_sprites->disconnect(this);
        m_sprites->palettes()->disconnect(this);
    }
    m_sprites = sprites;
    m_list->setSprites(sprites);
    if (sprites) {
        connect(sprites, &SpriteCollection::changed, this, &SpritePanel::updateCurrent);
        connect(sprites, &QObject::destroyed, this, &SpritePanel::updateCurrent);
        connect(sprites->palettes(), &Zorv::Palettes::palChanged, this,
                &SpritePanel::updateCurrent);
        setCurrentRow(0);
    }
    updateCurrent();
}

SpriteCollection* SpritePanel::sprites() const
{
    return m_sprites;
}

int SpritePanel::currentRow() const
{
    return m_sprites ? m_list->currentIndex().row() : -1;
}

void SpritePanel::setCurrentRow(int row)
{
    if (m_sprites) {
        m_list->setCurrentIndex(m_sprites->index(row));
    }
}

FamilySprite* SpritePanel::currentSprite() const
{
    return m_sprites ? m_sprites->sprite(currentRow()) : nullptr;
}

QVector<int> SpritePanel::selectedRows() const
{
    return m_list->selectedRows();
}

QVector<Family::AssetId> SpritePanel::selectedIds() const
{
    QVector<Family::AssetId> ids;
    const QVector<int> rows = selectedRows();
    for (int row : rows) {
        ids.append(m_sprites->sprite(row)->id());
    }
    return ids;
}

bool SpritePanel::showSprite(int group, int number)
{
    const Family::AssetId id{quint16(group), quint16(number)};
    const int row = m_sprites ? m_sprites->find(0, id.text()) : -1;
    if (row >= 0) {
        setCurrentRow(row);
    }
    return row >= 0;
}

void SpritePanel::updateCurrent()
{
    m_text->setText(currentText());
    emit changed();
}

QString SpritePanel::currentText() const
{
    const FamilySprite* sprite = currentSprite();
    if (!sprite) {
        return !m_sprites ? tr("No sprite file")
                          : tr("%n sprite(s)", nullptr, int(m_sprites->count()));
    }
    const QSize size = sprite->size();
    const QPoint axis = sprite->axis();
    QString text = tr("Sprite %1: %2 × %3, axis %4,%5")
                       .arg(sprite->property(QStringLiteral("Identifier")).toString(),
                            QString::number(size.width()), QString::number(size.height()),
                            QString::number(axis.x()), QString::number(axis.y()));
    if (const Zorv::Palette* palette = sprite->palette()) {
        text += tr(", palette %1").arg(palette->property(QStringLiteral("Identifier")).toString());
    }
    for (const QString& more :
         {sprite->property(QStringLiteral("Codec")).toString(), sprite->fault()}) {
        text += more.isEmpty() ? more : QLatin1String(", ") + more;
    }
    return text;
}

}  // namespace App
