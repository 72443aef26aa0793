#include "core/run/launch_p.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace Zorv {

namespace {

QString wineApplication()
{
    for (const char* name : {"Stable", "Devel", "Staging"}) {
        const QString path =
            QStringLiteral("/Applications/Wine %1.app/Contents/Resources/wine/bin/wine")
                .arg(QLatin1String(name));
        if (QFileInfo::exists(path)) {
            return path;
        }
    }
    return {};
}

}  // namespace

bool isNativeExecutable(const QString& path)
{
    static const QByteArray heads[] = {
        "\x7f"
        "ELF",
        "#!",
        // Mach-O in both sizes and byte orders, and for several processors.
        "\xfe\xed\xfa\xce", "\xfe\xed\xfa\xcf", "\xce\xfa\xed\xfe", "\xcf\xfa\xed\xfe",
        "\xca\xfe\xba\xbe"};
    QFile file(path);
    const QByteArray start = file.open(QIODevice::ReadOnly) ? file.read(4) : QByteArray();
    return std::any_of(std::begin(heads), std::end(heads),
                       [&start](const QByteArray& head) { return start.startsWith(head); });
}

Launch launchOf(const QString& executable, const QStringList& arguments)
{
    Launch launch{wineApplication(), QStringList(executable) + arguments,
                  QFileInfo(executable).absolutePath()};
    if (launch.program.isEmpty() && isNativeExecutable(executable)) {
        launch.program = executable;
        launch.arguments = arguments;
    } else if (launch.program.isEmpty()) {
        launch.program = QStandardPaths::findExecutable(QStringLiteral("wine"));
    }
    return launch;
}

}  // namespace Zorv
