#include "app/main/application.h"

#include "app/code/codeview.h"
#include "app/dialogs/windowdialogs.h"
#include "app/look/firstframe.h"
#include "app/look/icon.h"
#include "app/look/look.h"
#include "app/main/mainwindow.h"
#include "app/main/windowinterface.h"
#include "app/picture/picturescene.h"
#include "app/picture/screenshot.h"
#include "app/recovery/workrecovery.h"
#include "app/run/runcommands.h"
#include "cli/commanddialogs.h"
#include "family/project/familyenginemodel.h"
#include "operations/engines.h"
#include "operations/familydata.h"
#include "operations/recovery/sessionfolder.h"

#include <zorv/editors/code/codeworkspace.h>

#include <QApplication>
#include <QSettings>
#include <QTextStream>

#include <algorithm>
#include <iterator>

namespace App {

namespace {

constexpr int WrongUsage = 2;
constexpr int NotDone = 3;

struct Usage
{
    QString picture;
    QString scene;
    QString theme;
    QString language;
    QString game;
    QString error;
};

/// A command line option with a value.
struct Option
{
    const char* name;
    QString Usage::*value;
    const char* what;
};

constexpr Option options[] = {
    {"--screenshot", &Usage::picture, "the name of a picture"},
    {"--scene", &Usage::scene, "what the picture shows"},
    {"--theme", &Usage::theme, "'light' or 'dark'"},
    {"--language", &Usage::language, "a language, such as 'de'"},
};

Usage parse(const QStringList& arguments)
{
    Usage usage;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        const auto* option =
            std::find_if(std::begin(options), std::end(options), [&argument](const Option& row) {
                return argument == QLatin1String(row.name);
            });
        if (option != std::end(options)) {
            usage.*option->value = arguments.value(++i);
            if ((usage.*option->value).isEmpty()) {
                usage.error =
                    QStringLiteral("%1 needs %2").arg(argument, QLatin1String(option->what));
            }
        } else if (argument.startsWith(QLatin1Char('-')) || !usage.game.isEmpty()) {
            usage.error = QStringLiteral("what is meant by '%1'? See 'zorv help'").arg(argument);
        } else {
            usage.game = argument;
        }
    }
    if (usage.picture.isEmpty() && !(usage.scene + usage.theme + usage.language).isEmpty()) {
        usage.error = QStringLiteral("--scene, --theme and --language are for a picture; a window "
                                     "has settings for them");
    }
    if (!usage.scene.isEmpty() && !pictureScenes().contains(usage.scene)) {
        usage.error = QStringLiteral("there is no scene '%1', but %2")
                          .arg(usage.scene, pictureScenes().join(QLatin1String(", ")));
    }
    return usage;
}

void setUpIcons()
{
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication::setWindowIcon(icon(QStringLiteral(":/zorvl_icons/icons/anim.png")));
}

int drawPicture(const Usage& usage)
{
    WindowInterface host;
    Operations::startHost(&host);
    host.setOption(QStringLiteral("theme"), usage.theme);
    host.setOption(QStringLiteral("language"), usage.language);
    applyLook();
    // Nobody can answer dialogs here, or be told what the picture lacks.
    const Cli::CommandDialogs dialogs;
    QString dataError;
    Operations::prepareFamilyData(&dataError);
    MainWindow window;
    host.setWindow(&window);
    QString error;
    if (drawWindow(&window, {usage.game, usage.scene, usage.picture}, &error)) {
        return 0;
    }
    QTextStream(stderr) << "zorv: " << error << '\n';
    return NotDone;
}

}  // namespace

int runWindow(QApplication&, const QStringList& arguments)
{
    const Usage usage = parse(arguments);
    if (!usage.error.isEmpty()) {
        QTextStream(stderr) << "zorv: " << usage.error << '\n';
        return WrongUsage;
    }
    setUpIcons();
    if (!usage.picture.isEmpty()) {
        return drawPicture(usage);
    }
    QSettings settings;
    WindowInterface host(&settings);
    Operations::startHost(&host);
    Operations::useEngines(settings);
    Family::FamilyEngineModel::instance()->setPlayerOffered(true);
    applyLook();
    const WindowDialogs dialogs;
    MainWindow window;
    host.setWindow(&window);
    WorkRecovery recovery(window.services(), Operations::SessionFolder::defaultRoot());
    window.show();
    window.restoreWork(usage.game);
    afterFirstFrame(&window, [&] {
        QString dataError;
        if (!Operations::prepareFamilyData(&dataError)) {
            host.showStatus(0, dataError);
        }
        window.code()->workspace()->engineSwitched(true);
        recovery.offerAll();
        RunCommands::offerLeftovers();
    });
    return QApplication::exec();
}

}  // namespace App
