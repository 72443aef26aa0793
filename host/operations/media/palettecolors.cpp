#include "operations/media/palettecolors.h"

#include "operations/media/paletteedits.h"

#include <QColor>
#include <QMimeData>
#include <QRegularExpression>

#include <algorithm>

namespace Operations {

using Zorv::RGBA;

namespace {

constexpr int MostColors = 256;

/// Longer than all colours need. A longer text is not parsed.
constexpr int LongestText = 16 * 1024;

const QString PlacesFormat = QStringLiteral("application/x-zorv-palette-slots");

QString toText(RGBA color)
{
    const QString name = QColor(color.r, color.g, color.b).name();
    return color.a == 255 ? name : name + QString::asprintf("%02x", unsigned(color.a));
}

}  // namespace

std::unique_ptr<QMimeData> PaletteEntries::toMime() const
{
    QStringList lines;
    for (const RGBA& color : colors) {
        lines.append(toText(color));
    }
    auto data = std::make_unique<QMimeData>();
    data->setText(lines.join(QLatin1Char('\n')));
    if (places.size() == colors.size()) {
        data->setData(PlacesFormat,
                      QByteArray(reinterpret_cast<const char*>(places.data()), places.size()));
    }
    return data;
}

PaletteEntries PaletteEntries::fromMime(const QMimeData* data)
{
    static const QRegularExpression form(QStringLiteral("^#([0-9a-fA-F]{6})([0-9a-fA-F]{2})?$"));
    PaletteEntries entries;
    const QString text = data && data->hasText() ? data->text() : QString();
    if (text.size() > LongestText) {
        return entries;
    }
    const QStringList lines = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const auto match = form.match(line.trimmed());
        if (!match.hasMatch() || entries.colors.size() == MostColors) {
            return {};
        }
        const uint rgb = match.captured(1).toUInt(nullptr, 16);
        const QString alpha = match.captured(2);
        entries.colors.append({quint8(qRed(rgb)), quint8(qGreen(rgb)), quint8(qBlue(rgb)),
                               alpha.isEmpty() ? quint8(255) : quint8(alpha.toUInt(nullptr, 16))});
    }
    const QByteArray places = data ? data->data(PlacesFormat) : QByteArray();
    if (places.size() == entries.colors.size()) {
        std::copy(places.begin(), places.end(), std::back_inserter(entries.places));
    }
    return entries;
}

PaletteEntries PaletteEntries::placedIn(const bool* selection) const
{
    PaletteEntries placed;
    QVector<int> wanted;
    for (int i = 0; i < MostColors; ++i) {
        if (selection[i]) {
            wanted.append(i);
        }
    }
    if (wanted.size() == 1) {
        for (int next = wanted.first() + 1; next < MostColors; ++next) {
            wanted.append(next);
        }
        wanted.resize(std::min(wanted.size(), colors.size()));
    }
    for (int i = 0; i < wanted.size() && (i < colors.size() || colors.size() == 1); ++i) {
        placed.colors.append(colors[colors.size() == 1 ? 0 : i]);
        placed.places.append(quint8(wanted[i]));
    }
    return placed;
}

MediaResult placeColors(Family::SpriteCollection* sprites, int row, const PaletteEntries& entries,
                        const QString& title)
{
    return changePalettes(sprites, {row}, title, [&entries](RGBA* colors) {
        const int count = std::min(entries.colors.size(), entries.places.size());
        for (int i = 0; i < count; ++i) {
            colors[entries.places[i]] = entries.colors[i];
        }
        return count;
    });
}

}  // namespace Operations
