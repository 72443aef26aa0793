#include "support/testsprites.h"

#include <algorithm>

using Zorv::SpriteNumber;

QImage TestSprite::image() const
{
    ++m_sprites->decodings;
    return Sprite::image();
}

QVariant TestSprite::property(const QString& name) const
{
    if (name == QLatin1String("Group")) {
        return number.group;
    }
    if (name == QLatin1String("Number")) {
        return number.number;
    }
    return name == QLatin1String("Identifier")
               ? QStringLiteral("%1,%2").arg(number.group).arg(number.number)
               : QVariant();
}

Zorv::Sprites* TestPalettes::sprites() const
{
    return m_sprites;
}

void TestSprites::insert(int row, SpriteNumber number, const QImage& image)
{
    beginInsertRows({}, row, row);
    m_items.insert(m_items.begin() + row, std::make_unique<TestSprite>(this, number, image));
    endInsertRows();
    emit changed(true);
}

void TestSprites::setImage(int row, const QImage& image)
{
    sprite(row)->setImage(image);
    emit dataChanged(index(row, 0), index(row, 0));
    emit changed(false);
}

void TestSprites::reload()
{
    beginResetModel();
    for (auto& item : m_items) {
        const QImage image = item->Sprite::image();
        item = std::make_unique<TestSprite>(this, item->number, image);
    }
    endResetModel();
    emit changed(true);
}

void TestSprites::removeSprite(int index)
{
    beginRemoveRows({}, index, index);
    m_items.erase(m_items.begin() + index);
    endRemoveRows();
    emit changed(true);
}

TestSprite* TestSprites::sprite(int index) const
{
    return index >= 0 && index < int(m_items.size()) ? m_items[size_t(index)].get() : nullptr;
}

void TestSprites::move(unsigned from, unsigned to)
{
    if (beginMoveRows({}, int(from), int(from), {}, int(to + (from < to ? 1 : 0)))) {
        std::unique_ptr<TestSprite> item = std::move(m_items[from]);
        m_items.erase(m_items.begin() + from);
        m_items.insert(m_items.begin() + to, std::move(item));
        endMoveRows();
        emit changed(false);
    }
}

void TestSprites::autoOrganize()
{
    emit layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    std::vector<const TestSprite*> shown;
    for (const QModelIndex& index : before) {
        shown.push_back(sprite(index.row()));
    }
    std::stable_sort(m_items.begin(), m_items.end(), [](const auto& a, const auto& b) {
        return std::pair(a->number.group, a->number.number) <
               std::pair(b->number.group, b->number.number);
    });
    QModelIndexList now;
    for (const TestSprite* each : shown) {
        const auto place = std::find_if(m_items.begin(), m_items.end(),
                                        [each](const auto& item) { return item.get() == each; });
        now.append(index(int(place - m_items.begin()), 0));
    }
    changePersistentIndexList(before, now);
    emit layoutChanged();
    emit changed(false);
}

int TestSprites::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_items.size());
}

QVariant TestSprites::data(const QModelIndex& index, int role) const
{
    const TestSprite* shown = index.isValid() ? sprite(index.row()) : nullptr;
    return shown && role == Qt::DisplayRole ? shown->property(QStringLiteral("Identifier"))
                                            : QVariant();
}
