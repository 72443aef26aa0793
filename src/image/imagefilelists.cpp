#include "image/imagefilelists_p.h"

#include "core/extension.h"
#include "core/extensionmanager.h"
#include "core/files.h"
#include "core/interface.h"
#include "core/project.h"
#include "media/fileextensiontype.h"

#include <QMimeData>
#include <QUrl>

#include <algorithm>

namespace Zorv {

namespace {

constexpr unsigned AllFilesText = 7;

QString folderKey()
{
    return QStringLiteral("spr_path");
}

bool isImageFile(const QString& name)
{
    const QByteArray format = fileExtension(name);
    if (format == "PNG" || format == "PCX" || format == "GIF" || format == "BMP") {
        return true;
    }
    const QList<Extension*>& loaders = ExtensionManager::list(Extension::ImageLoader);
    return std::any_of(loaders.begin(), loaders.end(),
                       [&format](const Extension* loader) { return loader->name() == format; });
}

}  // namespace

QString imageFolder(const Project* project)
{
    const auto option = [project](const QString& key) {
        return project ? project->option(key).toString() : QString();
    };
    const QString folder = option(folderKey());
    return folder.isEmpty() ? option(QStringLiteral("project_path")) : folder;
}

void keepImageFolder(Project* project, const QString& folder)
{
    if (project && !folder.isEmpty()) {
        project->setOption(folderKey(), folder, false);
    }
}

QString imageFilter()
{
    return Interface::instance()->text(AllFilesText) +
           QLatin1String(fileExtension(FileExtensionType::AllImages)) +
           QLatin1String(fileExtension(FileExtensionType::ImagesPcxFirst));
}

QStringList draggedImages(const QMimeData* data)
{
    QStringList files;
    const QList<QUrl> urls = data->urls();
    for (const QUrl& url : urls) {
        const QString file = url.toLocalFile();
        if (!file.isEmpty() && isImageFile(file)) {
            files.append(file);
        }
    }
    if (Interface::instance()->option(QStringLiteral("sort_file_names")).toBool()) {
        files.sort(Qt::CaseSensitive);
    }
    return files;
}

}  // namespace Zorv
