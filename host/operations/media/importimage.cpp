#include "operations/media/importimage.h"

#include "family/assets/familysprite.h"
#include "family/assets/pixeldata.h"
#include "family/import/jsonview.h"
#include "family/import/sheetcutter.h"
#include "family/import/sheetreader.h"
#include "operations/media/assetnames.h"

#include <zorv/media/imagetransfer.h>
#include <zorv/media/tools/cropimage.h>

#include <QCollator>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <algorithm>

namespace Operations {

using Family::Sheet;
using Family::SheetFrame;

namespace {

constexpr int MaxPages = 1000;
constexpr qint64 MaxSheetBytes = Q_INT64_C(2) << 30;  // of all pictures together, decoded

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::ImportImage)
};

/// The axis stored in a PNG file.
bool readAxis(const QImage& image, QPoint* axis)
{
    const QStringList parts = image.text(QLatin1String(AxisText)).split(QLatin1Char(','));
    bool isX = false;
    bool isY = false;
    *axis = {parts.value(0).toShort(&isX), parts.value(1).toShort(&isY)};
    return isX && isY;
}

void crop(ImportPixels* pixels)
{
    QPoint corner;
    Zorv::cropImage(pixels->image, &corner);
    pixels->corner += corner;
}

/// The file beside `file` with the last part of a name. The name may be a path of another computer.
QString besideFile(const QString& file, QString name)
{
    name.replace(QLatin1Char('\\'), QLatin1Char('/'));
    name = name.mid(name.lastIndexOf(QLatin1Char('/')) + 1);
    const bool isName =
        !name.isEmpty() && name != QLatin1String("..") && name != QLatin1String(".");
    const QString path = QDir::cleanPath(QFileInfo(file).dir().filePath(name));
    return isName && QFileInfo(path).isFile() ? path : QString();
}

/// Reads the files of one sheet.
class SheetFiles
{
public:
    explicit SheetFiles(const QString& jsonFile) : m_jsonFile(jsonFile) {}

    SheetImages run();

private:
    bool readJson(const QString& file, Sheet* sheet);
    bool readSet(const Sheet& first);
    bool addSheet(const QString& file, Sheet* sheet);
    QImage readPage(const QString& file, const Sheet& sheet, int page, QString* name);

    QString m_jsonFile;
    SheetImages m_result;
    int m_pages = 0;
    QHash<QString, QImage> m_pictures;  // by file, because many pages can use the same picture
    qint64 m_bytes = 0;
};

bool SheetFiles::readJson(const QString& file, Sheet* sheet)
{
    QFile device(file);
    if (!device.open(QIODevice::ReadOnly)) {
        m_result.error = Text::tr("Cannot read '%1': %2.").arg(file, device.errorString());
        return false;
    }
    QString error;
    const QByteArray bytes = device.read(Family::JsonView::MaxBytes + 1);
    if (!Family::readSheet(bytes, sheet, &error)) {
        m_result.error = Text::tr("'%1' is no sheet. %2").arg(file, error);
        return false;
    }
    return true;
}

/// The picture that the sheet names; else the one with the name of the sheet.
QImage SheetFiles::readPage(const QString& file, const Sheet& sheet, int page, QString* name)
{
    const QString told = sheet.pages.at(page);
    *name = besideFile(file, told);
    if (name->isEmpty() && sheet.pages.size() == 1) {
        *name = besideFile(file, QFileInfo(file).completeBaseName() + QStringLiteral(".png"));
    }
    if (name->isEmpty()) {
        m_result.error =
            Text::tr("The picture of '%1' is not beside it. Expected '%2' in the same folder.")
                .arg(file, told.isEmpty()
                               ? QFileInfo(file).completeBaseName() + QStringLiteral(".png")
                               : told);
        return {};
    }
    const auto known = m_pictures.constFind(*name);
    if (known != m_pictures.cend()) {
        return *known;
    }
    QString error;
    const QImage image = Zorv::readImageFile(*name, &error);
    m_result.error = image.isNull() ? error : QString();
    m_bytes += image.sizeInBytes();
    if (m_bytes > MaxSheetBytes) {
        m_result.error = Text::tr("The pictures of '%1' are too large together. Cut the sheet into "
                                  "several.")
                             .arg(m_jsonFile);
        return {};
    }
    m_pictures.insert(*name, image);
    return image;
}

bool SheetFiles::addSheet(const QString& file, Sheet* sheet)
{
    m_pages += sheet->pages.size();
    if (m_pages > MaxPages) {
        m_result.error = Text::tr("'%1' is spread over more than %2 pictures.")
                             .arg(m_jsonFile, QString::number(MaxPages));
        return false;
    }
    QVector<QImage> pages;
    QStringList names;
    QVector<QSize> sizes;
    for (int page = 0; page < sheet->pages.size(); ++page) {
        QString name;
        pages.append(readPage(file, *sheet, page, &name));
        if (pages.last().isNull()) {
            return false;
        }
        names.append(name);
        sizes.append(pages.last().size());
    }
    Family::loseOutsiders(sheet, sizes);
    for (const SheetFrame& frame : qAsConst(sheet->frames)) {
        if (!frame.isLost) {
            m_result.images.append({frame.name, names.at(frame.page), pages.at(frame.page), frame});
        }
    }
    m_result.warnings += sheet->warnings;
    return true;
}

/// Reads the other files of the set, each once. Files that they name belong to the same set.
bool SheetFiles::readSet(const Sheet& first)
{
    QStringList read{QFileInfo(m_jsonFile).fileName()};
    for (const QString& name : first.others) {
        const QString file = besideFile(m_jsonFile, name);
        if (file.isEmpty()) {
            m_result.error =
                Text::tr("'%1' names '%2', which is not beside it.").arg(m_jsonFile, name);
            return false;
        }
        if (read.contains(QFileInfo(file).fileName())) {
            continue;
        }
        read.append(QFileInfo(file).fileName());
        Sheet sheet;
        if (!readJson(file, &sheet) || !addSheet(file, &sheet)) {
            return false;
        }
    }
    return true;
}

SheetImages SheetFiles::run()
{
    Sheet first;
    if (!readJson(m_jsonFile, &first) || !addSheet(m_jsonFile, &first) || !readSet(first)) {
        m_result.images.clear();
        return m_result;
    }
    m_result.tags = first.tags;
    if (m_result.images.isEmpty()) {
        m_result.error =
            Text::tr("None of the frames of '%1' lies on its picture.").arg(m_jsonFile);
    }
    return m_result;
}

}  // namespace

ImportPixels readPixels(const ImportImage& image, bool crops)
{
    ImportPixels pixels;
    if (image.isOfSheet()) {
        pixels.image = Family::pictureOf(image.sheet, image.frame);
        pixels.corner = image.frame.offset;
        pixels.original = image.frame.original;
        pixels.axis = image.frame.axis;
        pixels.hasAxis = image.frame.hasAxis;
    } else {
        pixels.image = Zorv::readImageFile(image.file, &pixels.error);
        pixels.original = pixels.image.size();
        pixels.hasAxis = readAxis(pixels.image, &pixels.axis);
    }
    if (crops && !pixels.image.isNull()) {
        crop(&pixels);
    }
    if (qMax(pixels.image.width(), pixels.image.height()) > Family::LargestSprite) {
        pixels.error = Text::tr("'%1' is larger than a sprite can be, %2 by %2.")
                           .arg(image.name, QString::number(Family::LargestSprite));
    }
    return pixels;
}

bool isSameImage(const ImportImage& a, const ImportImage& b)
{
    return a.isOfSheet() && a.file == b.file && a.sheet.cacheKey() == b.sheet.cacheKey() &&
           Family::isSamePicture(a.frame, b.frame);
}

QVector<ImportImage> imagesOfFiles(const QStringList& files)
{
    QVector<ImportImage> images;
    images.reserve(files.size());
    for (const QString& file : files) {
        images.append({QFileInfo(file).completeBaseName(), file, {}, {}});
    }
    return images;
}

bool isImageFile(const QString& file)
{
    static const QStringList suffixes{QStringLiteral("png"), QStringLiteral("bmp"),
                                      QStringLiteral("pcx"), QStringLiteral("gif")};
    return suffixes.contains(QFileInfo(file).suffix().toLower());
}

QStringList imageFilesIn(const QString& folder)
{
    QStringList files;
    const QDir dir(folder);
    const QStringList names = dir.entryList(QDir::Files);
    for (const QString& name : names) {
        if (isImageFile(name)) {
            files.append(dir.filePath(name));
        }
    }
    QCollator order;
    order.setNumericMode(true);
    std::sort(files.begin(), files.end(), order);
    return files;
}

SheetImages readSheetFile(const QString& jsonFile)
{
    return SheetFiles(jsonFile).run();
}

SheetImages cutPicture(const QString& file, const QImage& picture, const Family::SheetCut& cut)
{
    SheetImages result;
    Sheet sheet;
    if (!Family::cutSheet(picture, cut, &sheet, &result.error)) {
        return result;
    }
    const QString base = QFileInfo(file).completeBaseName();
    for (int i = 0; i < sheet.frames.size(); ++i) {
        const QString name = QStringLiteral("%1-%2").arg(base, QString::number(i));
        result.images.append({name, file, picture, sheet.frames.at(i)});
    }
    result.warnings = sheet.warnings;
    return result;
}

QString sheetFileBeside(const QString& imageFile)
{
    const QFileInfo info(imageFile);
    const QString json =
        QDir::cleanPath(info.dir().filePath(info.completeBaseName() + QStringLiteral(".json")));
    return QFileInfo(json).isFile() ? json : QString();
}

}  // namespace Operations
