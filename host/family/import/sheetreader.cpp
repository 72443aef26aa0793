#include "family/import/sheetreader.h"

#include "family/import/jsonview.h"
#include "family/import/sheet.h"

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <cmath>

namespace Family {

namespace {

constexpr int MaxWarnings = 20;
constexpr int MaxAnimationFrames = 1 << 20;

/// Translation context of this file.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Family::SheetReader)
};

/// A name without folder and picture suffix.
QString plainName(const QString& name)
{
    static const QRegularExpression suffix(QStringLiteral("\\.(png|aseprite|ase)$"),
                                           QRegularExpression::CaseInsensitiveOption);
    QString plain = name.mid(name.lastIndexOf(QLatin1Char('/')) + 1);
    return plain.remove(suffix);
}

/// Reads a whole number within a range; 1.0 is accepted too.
bool readWhole(const JsonView& value, int least, int most, int* number)
{
    double read = 0;
    if (!value.readNumber(&read) || read != std::floor(read) || read < least || read > most) {
        return false;
    }
    *number = int(read);
    return true;
}

bool readSize(const JsonView& value, QSize* size)
{
    return readWhole(value.member("w"), 0, Sheet::MaxSide, &size->rwidth()) &&
           readWhole(value.member("h"), 0, Sheet::MaxSide, &size->rheight());
}

bool readPoint(const JsonView& value, int least, QPoint* point)
{
    return readWhole(value.member("x"), least, Sheet::MaxSide, &point->rx()) &&
           readWhole(value.member("y"), least, Sheet::MaxSide, &point->ry());
}

/// The pixel at a fraction of a side: 0.5 is the middle, 1 the last pixel.
int pixelAt(double part, int length)
{
    const double at = qBound(-32768.0, std::floor(part * length), 32767.0);
    return part >= 0 && part <= 1 ? qMin(int(at), qMax(length - 1, 0)) : int(at);
}

class SheetReader
{
public:
    SheetReader(Sheet* sheet, QString* error) : m_sheet(sheet), m_error(error) {}

    bool read(const JsonView& root);

private:
    bool fail(const QString& error);
    void warn(const QString& warning);
    bool refuseOthers(const JsonView& root);
    bool readPages(const JsonView& textures);
    bool readFrames(const JsonView& frames, int page);
    bool readFrame(const QString& key, const JsonView& value, int page);
    bool readShape(const JsonView& value, SheetFrame* frame);
    bool readPlace(const JsonView& value, SheetFrame* frame, QSize picture);
    void readAxis(const JsonView& value, QSize picture, bool isOfPicture, SheetFrame* frame);
    void readTags(const JsonView& tags);
    void readTag(const JsonView& tag);
    void readAnimations(const JsonView& animations);
    void readOthers(const JsonView& names);

    Sheet* m_sheet;
    QString* m_error;
    int m_leftOut = 0;
};

bool SheetReader::fail(const QString& error)
{
    *m_error = error;
    return false;
}

void SheetReader::warn(const QString& warning)
{
    if (m_sheet->warnings.size() < MaxWarnings) {
        m_sheet->warnings.append(warning);
    } else {
        ++m_leftOut;
    }
}

bool SheetReader::read(const JsonView& root)
{
    if (!refuseOthers(root)) {
        return false;
    }
    const JsonView textures = root.member("textures");
    const JsonView frames = root.kind() == JsonView::Array ? root : root.member("frames");
    const JsonView meta = root.member("meta");
    if (textures.kind() == JsonView::Array) {
        if (!readPages(textures)) {
            return false;
        }
    } else if (frames.kind() == JsonView::Object || frames.kind() == JsonView::Array) {
        m_sheet->pages.append(meta.member("image").text());
        if (!readFrames(frames, 0)) {
            return false;
        }
    } else {
        return fail(Text::tr("It tells no frames. Expected 'frames', as drawing programs write "
                             "them beside a sheet."));
    }
    if (m_sheet->frames.isEmpty()) {
        return fail(Text::tr("It has no frames."));
    }
    readTags(meta.member("frameTags"));
    readAnimations(root.member("animations"));
    readOthers(meta.member("related_multi_packs"));
    if (m_leftOut > 0) {
        m_sheet->warnings.append(Text::tr("%n more of these.", nullptr, m_leftOut));
    }
    return true;
}

/// Recognises other JSON formats of game tools, to give a helpful error.
bool SheetReader::refuseOthers(const JsonView& root)
{
    const QString type = root.member("type").text();
    if (root.member("tiledversion") || root.member("tilewidth") || type == QLatin1String("map") ||
        type == QLatin1String("tileset")) {
        return fail(Text::tr("It is a map of tiles, no sheet of sprites."));
    }
    if ((root.member("skeleton") && root.member("bones")) || root.member("armature")) {
        return fail(Text::tr("It is an animation of bones. Export its frames as pictures."));
    }
    return true;
}

bool SheetReader::readPages(const JsonView& textures)
{
    bool isFine = true;
    textures.forEach([&](const QString&, const JsonView& texture) {
        m_sheet->pages.append(texture.member("image").text());
        isFine = readFrames(texture.member("frames"), m_sheet->pages.size() - 1);
        return isFine;
    });
    return isFine;
}

bool SheetReader::readFrames(const JsonView& frames, int page)
{
    bool isFine = true;
    frames.forEach([&](const QString& key, const JsonView& value) {
        isFine = readFrame(key, value, page);
        return isFine;
    });
    return isFine;
}

bool SheetReader::readFrame(const QString& key, const JsonView& value, int page)
{
    if (m_sheet->frames.size() == Sheet::MaxFrames) {
        return fail(Text::tr("It has more than %1 frames.").arg(QString::number(Sheet::MaxFrames)));
    }
    SheetFrame frame;
    frame.name = plainName(key.isEmpty() ? value.member("filename").text() : key);
    frame.page = page;
    QSize picture;
    if (!readShape(value, &frame)) {
        return false;
    }
    if (!readSize(value.member("frame"), &picture) || !readPlace(value, &frame, picture)) {
        return fail(Text::tr("Frame %1, '%2', has no place on the sheet. Expected a 'frame' with "
                             "whole numbers x, y, w and h up to %3.")
                        .arg(QString::number(m_sheet->frames.size()), frame.name,
                             QString::number(Sheet::MaxSide)));
    }
    double time = 0;
    if (value.member("duration").readNumber(&time)) {
        frame.milliseconds = int(qBound(0.0, std::floor(time + 0.5), 10000000.0));
    }
    m_sheet->frames.append(frame);
    return true;
}

/// Reads the rotation. Refuses polygon cuts: their rectangles show parts of their neighbours.
bool SheetReader::readShape(const JsonView& value, SheetFrame* frame)
{
    bool hasCorners = false;
    value.member("vertices").forEach([&](const QString&, const JsonView&) {
        hasCorners = true;
        return false;
    });
    if (hasCorners) {
        return fail(Text::tr("Frame %1, '%2', is cut to a polygon. Pack the sheet with rectangles.")
                        .arg(QString::number(m_sheet->frames.size()), frame->name));
    }
    const JsonView turned = value.member("rotated");
    if (turned && turned.kind() != JsonView::Bool) {
        return fail(Text::tr("Frame %1, '%2', is turned by another angle than 90 degrees. Expected "
                             "true or false as 'rotated'.")
                        .arg(QString::number(m_sheet->frames.size()), frame->name));
    }
    frame->isTurned = turned.isTrue();
    return true;
}

bool SheetReader::readPlace(const JsonView& value, SheetFrame* frame, QSize picture)
{
    QPoint corner;
    if (!readPoint(value.member("frame"), 0, &corner)) {
        return false;
    }
    const JsonView source = value.member("spriteSourceSize");
    QSize inOriginal = picture;
    const bool hasSource =
        readPoint(source, -Sheet::MaxSide, &frame->offset) && readSize(source, &inOriginal);
    const QSize over = picture - inOriginal;
    if (hasSource && over.width() >= 0 && over.height() >= 0 && !over.isNull() &&
        over.width() % 2 == 0 && over.height() % 2 == 0 && !inOriginal.isEmpty()) {
        // The rectangle includes an edge that was added around the picture.
        const QPoint inset(over.width() / 2, over.height() / 2);
        corner += frame->isTurned ? QPoint(inset.y(), inset.x()) : inset;
        picture = inOriginal;
    } else if (hasSource && value.member("trimmed").isTrue() &&
               (over.width() < 0 || over.height() < 0)) {
        QSize whole;
        if (!readSize(value.member("sourceSize"), &whole) || whole != inOriginal) {
            warn(Text::tr("Frame %1, '%2', was cut to another size than it says; it may stand a "
                          "little beside its place.")
                     .arg(QString::number(m_sheet->frames.size()), frame->name));
        }
    }
    frame->rect = QRect(corner, frame->isTurned ? picture.transposed() : picture);
    frame->original = picture;
    readSize(value.member("sourceSize"), &frame->original);
    // Cropped by hand at its old place: then the pivot refers to the cropped picture.
    const bool isCropped =
        !frame->offset.isNull() && frame->original == picture && !value.member("trimmed").isTrue();
    frame->original = frame->original.expandedTo(
        {frame->offset.x() + picture.width(), frame->offset.y() + picture.height()});
    readAxis(value, picture, isCropped, frame);
    return true;
}

void SheetReader::readAxis(const JsonView& value, QSize picture, bool isOfPicture,
                           SheetFrame* frame)
{
    const JsonView pivot = value.member("pivot") ? value.member("pivot") : value.member("anchor");
    double x = 0;
    double y = 0;
    if (!pivot.member("x").readNumber(&x) || !pivot.member("y").readNumber(&y)) {
        return;
    }
    const QSize size = isOfPicture ? picture : frame->original;
    frame->axis = {pixelAt(x, size.width()), pixelAt(y, size.height())};
    frame->axis += isOfPicture ? frame->offset : QPoint();
    frame->hasAxis = true;
}

void SheetReader::readTags(const JsonView& tags)
{
    tags.forEach([&](const QString&, const JsonView& tag) {
        readTag(tag);
        return m_sheet->tags.size() < Sheet::MaxFrames;
    });
    for (int i = 1; i < m_sheet->tags.size(); ++i) {
        if (m_sheet->tags.at(i).first < m_sheet->tags.at(i - 1).first) {
            warn(Text::tr("The tag '%1' begins in front of the tag before it. If the sheet was "
                          "made of several files, its numbers may be wrong.")
                     .arg(m_sheet->tags.at(i).name));
            return;
        }
    }
}

void SheetReader::readTag(const JsonView& tag)
{
    static const char* const directions[] = {"forward", "reverse", "pingpong", "pingpong_reverse"};
    SheetTag read;
    read.name = tag.member("name").text();
    const int last = m_sheet->frames.size() - 1;
    if (!readWhole(tag.member("from"), 0, last, &read.first) ||
        !readWhole(tag.member("to"), read.first, last, &read.last)) {
        warn(Text::tr("The tag '%1' means frames that are not on the sheet. It is left out.")
                 .arg(read.name));
        return;
    }
    const QString direction = tag.member("direction").text();
    for (int i = 0; i < 4; ++i) {
        read.direction =
            direction == QLatin1String(directions[i]) ? SheetTag::Direction(i) : read.direction;
    }
    read.repeat = qBound(0, tag.member("repeat").text().toInt(), 65535);
    m_sheet->tags.append(read);
}

/// Reads lists of frame names, one list per animation.
void SheetReader::readAnimations(const JsonView& animations)
{
    QHash<QString, int> places;
    for (int i = m_sheet->frames.size() - 1; i >= 0; --i) {
        places.insert(m_sheet->frames.at(i).name, i);
    }
    int count = 0;
    animations.forEach([&](const QString& name, const JsonView& names) {
        SheetAnimation animation;
        animation.name = name;
        names.forEach([&](const QString&, const JsonView& frame) {
            const int place = places.value(plainName(frame.text()), -1);
            if (place >= 0) {
                animation.frames.append(place);
            } else {
                warn(Text::tr("The animation '%1' shows '%2', which is not on the sheet.")
                         .arg(name, frame.text()));
            }
            return ++count < MaxAnimationFrames;
        });
        m_sheet->animations.append(animation);
        return ++count < MaxAnimationFrames;
    });
}

void SheetReader::readOthers(const JsonView& names)
{
    names.forEach([&](const QString&, const JsonView& name) {
        m_sheet->others.append(name.text());
        return m_sheet->others.size() < Sheet::MaxFrames;
    });
}

}  // namespace

bool readSheet(const QByteArray& bytes, Sheet* sheet, QString* error)
{
    const JsonView root = JsonView::read(bytes, error);
    return root && SheetReader(sheet, error).read(root);
}

}  // namespace Family
