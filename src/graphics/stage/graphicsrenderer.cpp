#include "graphics/stage/graphicsrenderer.h"

#include "cache/spriteprovider.h"
#include "code/codedoc/contactboxescode.h"
#include "graphics/stage/graphicsrenderer_p.h"

#include <algorithm>
#include <cmath>

namespace Zorv {

namespace {

// The keys of a sprite's values in a provider.
enum SpriteKey : unsigned {
    PositionKey = 0,
    ModeKey = 1,
    ParentKey = 2,
    SizeKey = 3,
    ScaleKey = 4,
    FlipKey = 5,
    RotationKey = 6,
    LayerKey = 7
};

/// Returns whether `field` has changed.
template <typename T>
bool replace(T& field, const T& value)
{
    const bool isNew = !(field == value);
    field = value;
    return isNew;
}

/// Clamped to 0 to 1; not-a-number becomes 1.
float boundedOpacity(float opacity)
{
    return opacity >= 0 ? std::min(opacity, 1.0F) : opacity < 0 ? 0.0F : 1.0F;
}

}  // namespace

QPoint GraphicsRendererPrivate::m_origin;
bool GraphicsRendererPrivate::m_sprOverGuides = false;
bool GraphicsRendererPrivate::m_contactOverCross = false;

GraphicsRenderer::GraphicsRenderer(QObject* parent)
    : QObject(parent), d(std::make_unique<GraphicsRendererPrivate>(this))
{
}

GraphicsRenderer::~GraphicsRenderer() = default;

void GraphicsRenderer::setVisibility(bool cross0, bool cross1, bool cross2, bool boxes1,
                                     bool boxes2, bool rulers, bool guides)
{
    bool isNew = replace(d->crosses[0].visible, cross0);
    isNew |= replace(d->crosses[1].visible, cross1);
    isNew |= replace(d->crosses[2].visible, cross2);
    isNew |= replace(d->contactBoxes[0].visible, boxes1);
    isNew |= replace(d->contactBoxes[1].visible, boxes2);
    isNew |= replace(d->rulersVisible, rulers);
    isNew |= replace(d->guidesVisible, guides);
    if (isNew) {
        update();
    }
}

void GraphicsRenderer::setPriority(bool spriteOverGuides, bool contactOverCross)
{
    GraphicsRendererPrivate::m_sprOverGuides = spriteOverGuides;
    GraphicsRendererPrivate::m_contactOverCross = contactOverCross;
    update();
}

bool GraphicsRenderer::spriteOverGuides() const
{
    return GraphicsRendererPrivate::m_sprOverGuides;
}

bool GraphicsRenderer::contactOverCross() const
{
    return GraphicsRendererPrivate::m_contactOverCross;
}

QPoint GraphicsRenderer::origin() const
{
    return GraphicsRendererPrivate::m_origin;
}

void GraphicsRenderer::setOrigin(QPoint origin)
{
    const bool isOther = replace(GraphicsRendererPrivate::m_origin, origin);
    update();
    if (isOther) {
        d->clicked = {};
        emit viewChanged();
    }
}

void GraphicsRenderer::centralize()
{
    setOrigin(d->widgetCentre);
}

QPoint GraphicsRenderer::guideLines() const
{
    return d->guideLines;
}

void GraphicsRenderer::setGuideLines(QPoint guides)
{
    if (replace(d->guideLines, guides)) {
        update();
    }
}

void GraphicsRenderer::setSprites(SpriteProvider* provider)
{
    if (SpriteProvider* old = d->spriteProvider) {
        disconnect(old, nullptr, this, nullptr);
    }
    d->spriteProvider = provider;
    if (provider) {
        connect(provider, &SpriteProvider::changed, this, &GraphicsRenderer::spritesChanged);
        connect(provider, &SpriteProvider::changedAt, this, &GraphicsRenderer::spriteChangedAt);
        // The slots above only read the sprites. The repaint is separate.
        connect(provider, &SpriteProvider::changed, this, [this] { update(); });
        connect(provider, &SpriteProvider::changedAt, this, [this] { update(); });
        // Its sprites may be destroyed with it.
        connect(provider, &QObject::destroyed, this, [this] {
            d->spriteItems.clear();
            update();
        });
    }
    spritesChanged();
    update();
}

SpriteProvider* GraphicsRenderer::spriteProvider() const
{
    return d->spriteProvider;
}

void GraphicsRenderer::spritesChanged()
{
    const unsigned count = d->spriteProvider ? d->spriteProvider->count() : 0;
    d->spriteItems.resize(static_cast<int>(count));
    for (unsigned index = 0; index < count; ++index) {
        spriteChangedAt(index);
    }
}

void GraphicsRenderer::spriteChangedAt(unsigned int index)
{
    const SpriteProvider* provider = d->spriteProvider;
    if (!provider || index >= static_cast<unsigned>(d->spriteItems.size())) {
        return;
    }
    SpriteItem item;
    const auto take = [provider, index](unsigned key, auto& field) {
        using Field = std::decay_t<decltype(field)>;
        const QVariant value = provider->property(index, key);
        if (value.isValid()) {
            field = value.value<Field>();
        }
    };
    take(PositionKey, item.position);
    take(ModeKey, item.mode);
    take(ParentKey, item.parent);
    take(SizeKey, item.size);
    take(ScaleKey, item.scale);
    take(FlipKey, item.flip);
    take(RotationKey, item.rotation);
    take(LayerKey, item.layer);
    item.rotation = std::isfinite(item.rotation) ? item.rotation : 0.0F;
    item.sprite = provider->at(index);
    // Checked again: a provider may change its list during the calls above.
    if (index < static_cast<unsigned>(d->spriteItems.size())) {
        SpriteItem& before = d->spriteItems[static_cast<int>(index)];
        if (before.sprite != item.sprite) {
            d->clicked = {};
        }
        before = item;
    }
}

void GraphicsRenderer::setupContactBoxes(QColor first, QColor second, float opacity)
{
    ContactBoxes::color[0] = first;
    ContactBoxes::color[1] = second;
    ContactBoxes::opacity = boundedOpacity(opacity);
    update();
}

void GraphicsRenderer::setContactBoxes(ContactBoxCode::BoxType type, ContactBoxesCode* code)
{
    if (!isBoxType(type)) {
        return;
    }
    // Type 1 is always set first, so it resets the selection.
    if (type == ContactBoxCode::Attack) {
        d->hasSelection = false;
        d->resetSelectionRect();
    }
    ContactBoxes& boxes = d->contactBoxes[static_cast<size_t>(type - 1)];
    boxes.code = code;
    const int count = code ? code->count() : 0;
    bool isOther = boxes.items.size() != count;
    boxes.items.resize(count);
    int index = 0;
    for (ContactItem& item : boxes.items) {
        item.box = code->at(index++);
        const QRect rect = item.box ? item.box->rect() : QRect();
        item.source = rect;
        isOther |= item.rect() != rect;
        if (item.selected && item.box && item.rect() == rect) {
            d->hasSelection = true;
            d->updateBoxSelection(rect);
        } else {
            item.selected = false;
            item.setRect(rect);
        }
    }
    if (isOther) {
        d->clicked = {};
    }
    d->tellSelection();
    update();
}

ContactBoxesCode* GraphicsRenderer::boxes(ContactBoxCode::BoxType type) const
{
    return isBoxType(type) ? d->contactBoxes[static_cast<size_t>(type - 1)].code.get() : nullptr;
}

void GraphicsRenderer::setOnionSkin(bool enabled, OnionEffect effect, float opacity)
{
    const float bounded = boundedOpacity(opacity);
    const bool isOther = effect != d->onionEffect || bounded != d->onionOpacity;
    if (enabled == d->onionEnabled && !(enabled && isOther)) {
        return;
    }
    d->onionEnabled = enabled;
    d->onionEffect = effect;
    d->onionOpacity = bounded;
    update();
}

void GraphicsRenderer::setOnionSkinSprite(const Sprite* sprite, QPoint offset)
{
    // Ignores the offset on purpose: callers that step through equal sprites rely on it.
    if (sprite != d->onionSprite) {
        replaceOnionSkinSprite(sprite, offset);
    }
}

void GraphicsRenderer::replaceOnionSkinSprite(const Sprite* sprite, QPoint offset)
{
    d->onionSprite = sprite;
    d->onionOffset = offset;
    update();
}

void GraphicsRenderer::setOnionSkins(const QVector<OnionSkin>& skins)
{
    if (replace(d->onionSkins, skins)) {
        update();
    }
}

const QVector<OnionSkin>& GraphicsRenderer::onionSkins() const
{
    return d->onionSkins;
}

int GraphicsRenderer::indexOfItem(ItemType type, void* item) const
{
    if (type >= MainCross && type <= ExtraCross) {
        return type;
    }
    if (type != SpriteType) {
        return -1;
    }
    const QVector<SpriteItem>& items = d->spriteItems;
    const auto found = std::find_if(items.begin(), items.end(), [item](const SpriteItem& sprite) {
        return sprite.sprite == item;
    });
    return found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

QPoint GraphicsRenderer::itemPosition(ItemType type, unsigned int index) const
{
    const QPoint* position = d->positionOf(type, index);
    return position ? *position : QPoint();
}

void GraphicsRenderer::setItemPosition(ItemType type, QPoint position, unsigned int index)
{
    QPoint* field = d->positionOf(type, index);
    if (field && replace(*field, position)) {
        update();
    }
}

void GraphicsRenderer::setItemPositionMode(ItemType type, unsigned char mode, unsigned int parent,
                                           unsigned int index)
{
    const auto set = [&](unsigned char& modeField, unsigned short& parentField) {
        modeField = mode;
        parentField = static_cast<unsigned short>(std::min(parent, 0xffffU));
        update();
    };
    if (type == ContactBoxesType) {
        set(d->contactMode, d->contactParent);
    } else if (type == SpriteType && index < static_cast<unsigned>(d->spriteItems.size())) {
        SpriteItem& item = d->spriteItems[static_cast<int>(index)];
        set(item.mode, item.parent);
    } else if (type >= MainCross && type <= ExtraCross) {
        Cross& cross = d->crosses[static_cast<size_t>(type)];
        set(cross.mode, cross.parent);
    }
}

QPoint* GraphicsRendererPrivate::positionOf(ItemType type, unsigned index)
{
    if (type == GraphicsRenderer::SpriteType && index < unsigned(spriteItems.size())) {
        return &spriteItems[int(index)].position;
    }
    if (type >= GraphicsRenderer::MainCross && type <= GraphicsRenderer::ExtraCross) {
        return &crosses[size_t(type)].position;
    }
    return nullptr;
}

}  // namespace Zorv
