#include "family/assets/foldercontent.h"

#include <zorv/cache/crc64.h>
#include <zorv/core/archive.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <algorithm>

namespace Family {

namespace {

QByteArray readAll(Zorv::Archive& archive, const QString& fileName, QString* error)
{
    QIODevice* device = archive.openFile(fileName, QIODevice::ReadOnly, error);
    const QByteArray bytes = device ? device->readAll() : QByteArray();
    archive.closeFile(device);
    return bytes;
}

// File names such as "20_3", "20-3" and "20,3" give the identifier.
bool idOfName(const QString& file, AssetId* id)
{
    static const QRegularExpression form(QStringLiteral("^(\\d+)[_,-](\\d+)$"));
    const QRegularExpressionMatch match = form.match(QFileInfo(file).completeBaseName());
    return match.hasMatch() &&
           AssetId::read(match.captured(1) + QLatin1Char(',') + match.captured(2), id);
}

/// Reads the images one by one.
class FolderReader
{
public:
    FolderReader(Zorv::Archive& archive, const QString& folder, FolderContent* content)
        : m_archive(archive), m_dir(folder), m_content(content)
    {
    }

    void read()
    {
        const QStringList names = imageNames();
        QString error;
        if (m_archive.entries(m_dir.path(), QDir::Files, QDir::Name)
                .contains(FolderList::fileName())) {
            const QByteArray text =
                readAll(m_archive, m_dir.filePath(FolderList::fileName()), &error);
            m_content->list = FolderList::read(QString::fromUtf8(text), &m_content->problems);
        }
        QSet<QString> waiting(names.begin(), names.end());
        for (const FolderList::Image& line : m_content->list.images) {
            m_ids.insert(line.id.key());
            if (line.file == FolderList::noFile()) {
                m_content->images.append({{}, line.id, line.axis, {}, 0, false, {}});
            } else if (!waiting.remove(line.file) || !readImage(line.file, line.id, line.axis)) {
                m_content->lost.append(line);
            }
        }
        for (const QString& name : names) {
            AssetId id;
            if (waiting.contains(name) && !idOfName(name, &id)) {
                while (m_ids.contains(id.key())) {
                    ++id.number;
                }
            }
            if (waiting.contains(name) && readImage(name, id, {})) {
                m_ids.insert(id.key());
            }
        }
    }

private:
    QStringList imageNames() const
    {
        QStringList names = m_archive.entries(m_dir.path(), QDir::Files, QDir::Name);
        const auto isOther = [](const QString& name) {
            return codecOfFile(name) == PixelCodec::None;
        };
        names.erase(std::remove_if(names.begin(), names.end(), isOther), names.end());
        return names;
    }

    bool readImage(const QString& name, AssetId id, QPoint axis)
    {
        QString error;
        const PixelCodec codec = codecOfFile(name);
        const QImage image = readImageFile(codec, readAll(m_archive, m_dir.filePath(name), &error));
        if (image.isNull()) {
            m_content->problems.append(
                error.isEmpty() ? QCoreApplication::translate("Family::FolderContent",
                                                              "%1 is no image that can be read.")
                                      .arg(name)
                                : error);
            return false;
        }
        const QByteArray rows = rowsOfImage(image);
        m_content->images.append(
            {name,
             id,
             axis,
             {image.size(), image.depth(), codec},
             Zorv::crc64(reinterpret_cast<const uchar*>(rows.constData()), unsigned(rows.size())),
             image.depth() == 8,
             colorsOfTable(image.colorTable())});
        return true;
    }

    Zorv::Archive& m_archive;
    QDir m_dir;
    FolderContent* m_content;
    QSet<quint32> m_ids;
};

}  // namespace

FolderContent FolderContent::read(Zorv::Archive& archive, const QString& folder)
{
    FolderContent content;
    FolderReader(archive, folder, &content).read();
    return content;
}

PixelCodec codecOfFile(const QString& file)
{
    const PixelCodec codec = codecByName(QFileInfo(file).suffix());
    const bool isFile =
        codec == PixelCodec::Png || codec == PixelCodec::Pcx || codec == PixelCodec::Gif;
    return isFile ? codec : PixelCodec::None;
}

}  // namespace Family
