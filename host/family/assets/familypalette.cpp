#include "family/assets/familypalette.h"

#include "family/assets/palettelist.h"
#include "family/assets/spritetextures.h"

#include <zorv/graphics/glcontext.h>
#include <zorv/graphics/texture.h>

#include <algorithm>

namespace Family {

FamilyPalette::FamilyPalette(PaletteList* list) : m_list(list) {}

FamilyPalette::~FamilyPalette() = default;

QVector<QRgb> FamilyPalette::colorTable() const
{
    return tableOfColors(state.colors);
}

unsigned FamilyPalette::index() const
{
    return unsigned(row);
}

void FamilyPalette::reload()
{
    bindTexture(texture(), PaletteUnit);
}

Zorv::Texture* FamilyPalette::texture() const
{
    if (!Zorv::isContextUsable()) {
        return nullptr;
    }
    if (!m_texture || m_revision != m_list->shownRevision()) {
        m_revision = m_list->shownRevision();
        const PaletteColors& colors = m_list->shown(this)->state.colors;
        if (!m_texture || m_uploaded != colors) {
            m_texture = m_texture ? std::move(m_texture) : std::make_unique<Zorv::Texture>();
            m_uploaded = colors;
            m_texture->fromPalette(colors.data());
        }
    }
    return m_texture.get();
}

void FamilyPalette::dropTexture()
{
    m_texture.reset();
}

void FamilyPalette::toPalette(Zorv::RGBA (&colors)[256]) const
{
    std::copy_n(state.colors.begin(), state.count, colors);
}

void FamilyPalette::setColors(const Zorv::RGBA (&colors)[256], int mode)
{
    PaletteColors taken;
    std::copy(std::begin(colors), std::end(colors), taken.begin());
    m_list->setColors(this, taken, mode);
}

Zorv::Palettes* FamilyPalette::owner() const
{
    return m_list;
}

QStringList FamilyPalette::propertyNames() const
{
    return {QStringLiteral("Identifier"), QStringLiteral("Group"), QStringLiteral("Number"),
            QStringLiteral("Colors")};
}

QVariant FamilyPalette::property(const QString& name) const
{
    if (name == QLatin1String("Identifier")) {
        return state.id.text();
    }
    if (name == QLatin1String("Group")) {
        return int(state.id.group);
    }
    if (name == QLatin1String("Number")) {
        return int(state.id.number);
    }
    return name == QLatin1String("Colors") ? QVariant(state.count) : QVariant();
}

void FamilyPalette::setProperty(const QString& name, const QVariant& value)
{
    AssetId id = state.id;
    if (readIdProperty(name, value, &id)) {
        m_list->setId(this, id);
    }
}

PaletteColors colorsOfTable(const QVector<QRgb>& table)
{
    if (table.isEmpty()) {
        return greyColors();
    }
    PaletteColors colors;
    colors.fill({0, 0, 0, 255});
    for (int i = 0; i < std::min(table.size(), int(colors.size())); ++i) {
        const QRgb color = table[i];
        colors[size_t(i)] = {quint8(qRed(color)), quint8(qGreen(color)), quint8(qBlue(color)),
                             quint8(qAlpha(color))};
    }
    return colors;
}

QVector<QRgb> tableOfColors(const PaletteColors& colors)
{
    QVector<QRgb> table;
    table.reserve(int(colors.size()));
    for (const Zorv::RGBA& color : colors) {
        table.append(qRgba(color.r, color.g, color.b, color.a));
    }
    return table;
}

PaletteColors greyColors()
{
    PaletteColors colors;
    for (size_t i = 0; i < colors.size(); ++i) {
        colors[i] = {quint8(i), quint8(i), quint8(i), 255};
    }
    return colors;
}

}  // namespace Family
