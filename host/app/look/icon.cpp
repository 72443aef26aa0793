#include "app/look/icon.h"

#include <QFile>

namespace App {

QIcon icon(const QString& file)
{
    QIcon result;
    // An icon takes the smallest that is large enough. The one for 1.5x has no mark of a pixel
    // ratio that Qt knows, and is one of 24 pixels.
    for (const char* scale : {"", "@1.5x", "@2x"}) {
        QString name = file;
        name.insert(name.lastIndexOf(QLatin1Char('.')), QLatin1String(scale));
        if (QFile::exists(name)) {
            result.addFile(name);
        }
    }
    return result;
}

}  // namespace App
