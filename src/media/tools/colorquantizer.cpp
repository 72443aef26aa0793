// Reduces the colours of images to a palette. Few enough colours are kept as they are; otherwise
// there are four steps.
//
// 1. ColorBins counts the colours. If there are too many, they are merged by their upper bits.
// 2. An octree splits the bins. The node with the largest error is split next, until there are
//    slightly more nodes than colours wanted.
// 3. The cheapest pairs of nodes are merged until the wanted number is left. Octree borders lie at
//    fixed places and can cut a group of colours in two; merging repairs that.
// 4. One refinement moves each bin to the nearest cluster around it, and each cluster to its mean.

#include "media/tools/colorquantizer.h"

#include "media/tools/colorbins_p.h"
#include "media/tools/colorclusters_p.h"
#include "media/tools/nearestcolors_p.h"
#include "media/tools/octreenode_p.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace Zorv {

namespace {

const int MaxColors = 256;
const int Refinements = 1;
// The tree is split into this many nodes per colour, so that the cheapest can be merged again.
const double NodesForColor = 1.125;

QRgb toRgb(RGBA color)
{
    return qRgba(color.r, color.g, color.b, color.a);
}

RGBA fromRgb(QRgb color)
{
    return {quint8(qRed(color)), quint8(qGreen(color)), quint8(qBlue(color)),
            quint8(qAlpha(color))};
}

// An index beyond the colour table is a transparent pixel.
std::array<QRgb, 256> fullColorTable(const QImage& image)
{
    std::array<QRgb, 256> table{};
    const QVector<QRgb> colors = image.colorTable();
    std::copy(colors.begin(), colors.begin() + qMin(256, colors.size()), table.begin());
    return table;
}

// The colour table of an indexed image; empty for others.
QVector<RGBA> colorsOf(const QImage& image)
{
    QVector<RGBA> colors;
    if (image.format() == QImage::Format_Indexed8) {
        for (const QRgb color : image.colorTable()) {
            colors.append(fromRgb(color));
        }
    }
    return colors;
}

// Converts to one of the three formats that the loops below read.
QImage readable(const QImage& image)
{
    switch (image.format()) {
    case QImage::Format_Indexed8:
    case QImage::Format_RGB32:
    case QImage::Format_ARGB32:
        return image;
    default:
        return image.convertToFormat(QImage::Format_ARGB32);
    }
}

// The bits to set in each pixel: the fourth byte is meaningless in an image without alpha.
QRgb opaqueBits(const QImage& image)
{
    return image.format() == QImage::Format_RGB32 ? 0xFF000000 : 0;
}

const QRgb* pixels(const QImage& image, int y)
{
    return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

std::vector<ColorPoint> points(const ColorBins& bins)
{
    std::vector<ColorPoint> all;
    all.reserve(bins.bins().size());
    for (const ColorBin& bin : bins.bins()) {
        ColorPoint point{{}, float(bin.weight), bin.key, 0};
        for (int i = 0; i < 4; ++i) {
            point.channel[i] = float(bins.mean(bin, i));
        }
        all.push_back(point);
    }
    return all;
}

std::vector<OctreeNode> octreeNodes(std::vector<ColorPoint>& points, size_t count)
{
    const auto isLess = [](const OctreeNode& x, const OctreeNode& y) {
        return x.error() < y.error();
    };
    std::vector<OctreeNode> nodes{{points.data(), points.data() + points.size()}};
    while (nodes.size() < count && nodes.front().canSplit()) {
        std::pop_heap(nodes.begin(), nodes.end(), isLess);
        const OctreeNode node = nodes.back();
        nodes.pop_back();
        for (const OctreeNode& child : node.split()) {
            nodes.push_back(child);
            std::push_heap(nodes.begin(), nodes.end(), isLess);
        }
    }
    return nodes;
}

void adaptIndexed(const QImage& source, NearestColors& nearest, QImage& result)
{
    const std::array<QRgb, 256> table = fullColorTable(source);
    const QVector<QRgb> palette = result.colorTable();
    std::array<quint8, 256> indices;
    for (int i = 0; i < 256; ++i) {
        // With equal colours a pixel keeps its own index.
        const QRgb color = table[size_t(i)];
        const bool isThere = i < palette.size() && palette[i] == color;
        indices[size_t(i)] = isThere ? quint8(i) : nearest.find(color);
    }
    for (int y = 0; y < source.height(); ++y) {
        const uchar* from = source.constScanLine(y);
        std::transform(from, from + source.width(), result.scanLine(y),
                       [&indices](uchar index) { return indices[index]; });
    }
}

void adaptTrueColor(const QImage& source, NearestColors& nearest, QImage& result)
{
    const QRgb opaque = opaqueBits(source);
    QRgb last = 0;
    quint8 index = nearest.find(last);
    for (int y = 0; y < source.height(); ++y) {
        const QRgb* from = pixels(source, y);
        std::transform(from, from + source.width(), result.scanLine(y), [&](QRgb pixel) {
            const QRgb color = pixel | opaque;
            if (color != last) {
                last = color;
                index = nearest.find(color);
            }
            return index;
        });
    }
}

QVector<RGBA> exactColors(const ColorBins& bins)
{
    QVector<RGBA> colors;
    for (const ColorBin& bin : bins.bins()) {
        colors.append(fromRgb(bin.key));
    }
    return colors;
}

QVector<RGBA> clusteredColors(const ColorBins& bins, int count)
{
    std::vector<ColorPoint> all = points(bins);
    std::vector<ColorCluster> clusters =
        joinedClusters(octreeNodes(all, size_t(NodesForColor * count)), count);
    for (int i = 0; i < Refinements; ++i) {
        refineClusters(clusters, all);
    }
    QVector<RGBA> colors;
    for (const ColorCluster& cluster : clusters) {
        const auto channel = [&cluster](size_t i) { return quint8(qRound(cluster.mean[i])); };
        const RGBA color{channel(0), channel(1), channel(2), channel(3)};
        if (!colors.contains(color)) {
            colors.append(color);
        }
    }
    return colors;
}

// Dark colours first. Equally dark ones have an arbitrary but fixed order.
bool isDarker(RGBA x, RGBA y)
{
    const QRgb a = toRgb(x);
    const QRgb b = toRgb(y);
    return std::make_pair(qGray(a), a) < std::make_pair(qGray(b), b);
}

QVector<RGBA> visibleColors(const ColorBins& bins, int count)
{
    if (bins.bins().empty()) {
        return {};
    }
    QVector<RGBA> colors = bins.areExact() && int(bins.bins().size()) <= count
                               ? exactColors(bins)
                               : clusteredColors(bins, count);
    std::sort(colors.begin(), colors.end(), isDarker);
    return colors;
}

}  // namespace

class ColorQuantizerPrivate
{
public:
    void addPixel(QRgb color, double count)
    {
        if (qAlpha(color) == 0) {
            transparent += count;
        } else {
            bins.add(color, count);
        }
    }

    void addIndexed(const QImage& image)
    {
        std::array<quint64, 256> counts{};
        for (int y = 0; y < image.height(); ++y) {
            const uchar* line = image.constScanLine(y);
            for (int x = 0; x < image.width(); ++x) {
                ++counts[line[x]];
            }
        }
        const std::array<QRgb, 256> table = fullColorTable(image);
        for (size_t i = 0; i < counts.size(); ++i) {
            if (counts[i] > 0) {
                addPixel(table[i], double(counts[i]));
            }
        }
    }

    void addTrueColor(const QImage& image)
    {
        const QRgb opaque = opaqueBits(image);
        for (int y = 0; y < image.height(); ++y) {
            const QRgb* line = pixels(image, y);
            const QRgb* end = line + image.width();
            while (line != end) {
                const QRgb* run = line;
                const QRgb color = *line;
                while (++line != end && *line == color) {
                }
                addPixel(color | opaque, double(line - run));
            }
        }
    }

    ColorBins bins;
    double transparent = 0;
};

ColorQuantizer::ColorQuantizer() : d(std::make_unique<ColorQuantizerPrivate>()) {}

ColorQuantizer::~ColorQuantizer() = default;

void ColorQuantizer::addImage(const QImage& image)
{
    const QImage source = readable(image);
    if (source.format() == QImage::Format_Indexed8) {
        d->addIndexed(source);
    } else {
        d->addTrueColor(source);
    }
}

void ColorQuantizer::addColor(RGBA color, quint64 count)
{
    if (count > 0) {
        d->addPixel(toRgb(color), double(count));
    }
}

QVector<RGBA> ColorQuantizer::palette(int count) const
{
    count = qBound(1, count, MaxColors);
    QVector<RGBA> colors;
    if (d->transparent > 0) {
        if (count == 1 && !d->bins.bins().empty()) {
            ColorBins all = d->bins;
            all.add(0, d->transparent);
            return visibleColors(all, 1);
        }
        colors.append({0, 0, 0, 0});
        --count;
    }
    return colors + visibleColors(d->bins, count);
}

QImage ColorQuantizer::quantize(const QImage& image, int count)
{
    if (image.isNull()) {
        return {};
    }
    const QVector<RGBA> own = colorsOf(image);
    if (!own.isEmpty() && own.size() <= qBound(1, count, MaxColors)) {
        return adapt(image, own);
    }
    ColorQuantizer quantizer;
    quantizer.addImage(image);
    return adapt(image, quantizer.palette(count));
}

QImage ColorQuantizer::adapt(const QImage& image, const QVector<RGBA>& palette)
{
    const QImage source = readable(image);
    QImage result(source.size(), QImage::Format_Indexed8);
    if (result.isNull() || palette.isEmpty()) {
        return {};
    }
    QVector<QRgb> table;
    for (const RGBA& color : palette.mid(0, MaxColors)) {
        table.append(toRgb(color));
    }
    result.setColorTable(table);
    NearestColors nearest(palette);
    if (source.format() == QImage::Format_Indexed8) {
        adaptIndexed(source, nearest, result);
    } else {
        adaptTrueColor(source, nearest, result);
    }
    return result;
}

}  // namespace Zorv
