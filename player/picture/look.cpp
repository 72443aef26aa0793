#include "picture/look.h"

#include "rules/codevalues.h"

#include <algorithm>

namespace Player {

using Rules::choiceOf;
using Rules::CodeGroup;
using Rules::CodeText;
using Rules::numbersOf;
using Rules::Values;

namespace {

constexpr QRgb Opaque = 0xff000000;

/// The last file that is named counts, as in the editor.
QString fileOf(const CodeText& text, const char* key)
{
    QString path;
    for (const auto& entry : text.joined("files").values) {
        const QString found =
            entry.first == QLatin1String(key) ? text.pathOf(entry.second.toString()) : QString();
        path = found.isEmpty() ? path : found;
    }
    return path;
}

/// A list of numbers, or nothing unless all of them are there.
QVector<double> reals(const CodeGroup& group, const char* key, int count)
{
    QVector<double> result;
    const QVariantList list = numbersOf(group.value(key));
    for (const QVariant& number : list) {
        result.append(number.toDouble());
    }
    return result.size() == count ? result : QVector<double>();
}

void pair(const CodeGroup& group, const char* key, double* first, double* second)
{
    const QVector<double> numbers = reals(group, key, 2);
    if (!numbers.isEmpty()) {
        *first = numbers.at(0);
        *second = numbers.at(1);
    }
}

Tint tintOf(const CodeGroup& group)
{
    const QVector<double> numbers = reals(group, "tint", 3);
    return numbers.isEmpty() ? NoTint : Tint{numbers.at(0), numbers.at(1), numbers.at(2)};
}

QVector<QRgb> colours(const QVariant& value)
{
    QVector<QRgb> result;
    const QVariantList list = value.toList();
    for (const QVariant& colour : list) {
        result.append(colour.toUInt() | Opaque);
    }
    return result;
}

QRgb colour(const CodeGroup& group, const char* key, QRgb other)
{
    const QVariant value = group.value(key);
    return value.isValid() ? value.toUInt() | Opaque : other;
}

Costume costumeOf(const CodeText& text, const CodeGroup& group)
{
    Costume costume;
    costume.name = group.argument;
    costume.file = text.pathOf(group.value("file").toString());
    costume.shades = colours(group.value("shades"));
    Values(group).whole("brightness", &costume.brightness);
    return costume;
}

int animationCalled(const QVector<Rules::Animation>& animations, const QString& name)
{
    const auto found =
        std::find_if(animations.cbegin(), animations.cend(),
                     [&name](const Rules::Animation& each) { return each.identifier == name; });
    return found == animations.cend() ? -1 : int(found - animations.cbegin());
}

LayerLook layerOf(const CodeGroup& group, const QVector<Rules::Animation>& animations)
{
    const Values values(group);
    LayerLook layer;
    values.wholes("sprite", &layer.group, &layer.number);
    const QString animation = values.word("animation");
    layer.animation = animation.isEmpty() ? -1 : animationCalled(animations, animation);
    values.wholes("offset", &layer.offset.rx(), &layer.offset.ry());
    pair(group, "follow", &layer.followX, &layer.followY);
    pair(group, "velocity", &layer.velocityX, &layer.velocityY);
    layer.tint = tintOf(group);
    values.whole("opacity", &layer.opacity);
    layer.blend = choiceOf<Blend>(values.word("blend"), {"none", "add", "subtract", "multiply"});
    values.whole("order", &layer.order);
    const int along = choiceOf<int>(values.word("repeat.along"), {"none", "x", "y", "both"});
    layer.alongX = (along & 1) != 0;
    layer.alongY = (along & 2) != 0;
    values.wholes("repeat.count", &layer.countX, &layer.countY);
    values.wholes("repeat.gap", &layer.gap.rx(), &layer.gap.ry());
    return layer;
}

void readCamera(const CodeGroup& arena, StageLook* look)
{
    const QVector<double> camera = reals(arena, "camera", 4);
    if (!camera.isEmpty()) {
        const auto at = [&camera](int index) { return int(camera.at(index)); };
        look->camera = QRect(QPoint(qMin(at(0), at(2)), qMin(at(1), at(3))),
                             QPoint(qMax(at(0), at(2)), qMax(at(1), at(3))));
        look->hasCamera = true;
    }
    pair(arena, "zoom", &look->smallestZoom, &look->largestZoom);
    if (look->largestZoom < look->smallestZoom) {
        std::swap(look->smallestZoom, look->largestZoom);
    }
}

MusicLook musicOf(const CodeText& text)
{
    const CodeGroup group = text.joined("music");
    const Values values(group);
    MusicLook music;
    music.file = text.pathOf(values.word("file"));
    values.whole("volume", &music.volume);
    values.wholes("loop", &music.loopFirst, &music.loopLast);
    values.real("fade", &music.fade);
    return music;
}

}  // namespace

FighterLook fighterLook(const CodeText& text)
{
    FighterLook look;
    look.sprites = fileOf(text, "sprites");
    look.sounds = fileOf(text, "sounds");
    const CodeGroup constants = text.joined("constants");
    pair(constants, "scale", &look.scaleX, &look.scaleY);
    look.tint = tintOf(constants);
    look.shadow = colour(constants, "shadow", 0);
    look.sparks = colours(constants.value("sparks"));
    for (const CodeGroup& group : text.groups()) {
        if (group.name == QLatin1String("palette")) {
            look.costumes.append(costumeOf(text, group));
        }
    }
    return look;
}

StageLook stageLook(const CodeText& text)
{
    StageLook look;
    look.sprites = fileOf(text, "sprites");
    look.animations = text.animations();
    const CodeGroup info = text.joined("info");
    Values(info).wholes("resolution", &look.screen.rwidth(), &look.screen.rheight());
    const CodeGroup arena = text.joined("arena");
    readCamera(arena, &look);
    look.shadow = colour(arena, "shadow", look.shadow);
    for (const CodeGroup& group : text.groups()) {
        if (group.name == QLatin1String("layer")) {
            look.layers.append(layerOf(group, look.animations));
        }
    }
    std::stable_sort(look.layers.begin(), look.layers.end(),
                     [](const LayerLook& a, const LayerLook& b) { return a.order < b.order; });
    look.music = musicOf(text);
    return look;
}

}  // namespace Player
