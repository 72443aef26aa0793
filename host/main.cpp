#include "app/main/application.h"
#include "cli/cli.h"
#include "operations/settingsformat.h"

#include <zorv/media/losslessimages.h>

#include <QApplication>
#include <QTextCodec>

#include <clocale>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <langinfo.h>
#include <signal.h>
#include <unistd.h>

namespace {

QtMessageHandler s_otherMessages = nullptr;

// Qt wants a folder that only a session of a desktop has, and does without; and tells of what a
// picture can be shown without, but not in which file.
void passMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (!text.contains(QLatin1String("XDG_RUNTIME_DIR")) &&
        !text.startsWith(QLatin1String("libpng warning: "))) {
        s_otherMessages(type, context, text);
    }
}

// A file that is opened must not take the number of a closed standard stream,
// or what is printed would go into it. Writing to what stands in fails.
void keepStandardStreams()
{
    for (int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) == -1) {
            // The lowest free number is the one that is missing.
            const int file = open("/dev/null", O_RDONLY | O_CLOEXEC);
            if (file != stream) {
                _exit(Cli::NotDone);
            }
        }
    }
}

// Without a locale file names are UTF-8 still.
void setUpTexts()
{
    setlocale(LC_CTYPE, "");
    if (strcmp(nl_langinfo(CODESET), "ANSI_X3.4-1968") == 0) {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    }
    s_otherMessages = qInstallMessageHandler(passMessage);
}

QStringList argumentsOf(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    return arguments;
}

/// Bytes that are no characters would be written to files as something else.
bool areArgumentsText(char** argv, const QStringList& arguments)
{
    for (int i = 0; i < arguments.size(); ++i) {
        if (arguments.at(i).toLocal8Bit() != argv[i + 1]) {
            fprintf(stderr,
                    "zorv: Argument %d has bytes that are no characters in the encoding of the "
                    "terminal. Type it anew.\n",
                    i + 1);
            return false;
        }
    }
    return true;
}

/// A variable of the environment with another value for a while.
class ChangedVariable
{
public:
    ChangedVariable(const char* name, const QByteArray& value) : m_name(name), m_old(qgetenv(name))
    {
        set(value);
    }

    void restore() const { set(m_old); }

private:
    void set(const QByteArray& value) const
    {
        value.isNull() ? qunsetenv(m_name) : qputenv(m_name, value);
    }

    const char* m_name;
    QByteArray m_old;
};

int runOnCommandLine(char** argv, const QStringList& arguments)
{
    if (!areArgumentsText(argv, arguments)) {
        return Cli::WrongUsage;
    }
    // A document measures its text with fonts, so Qt needs a platform; this one
    // has neither display nor fonts, and asks no desktop for anything.
    const ChangedVariable platform("QT_QPA_PLATFORM", "minimal");
    const ChangedVariable theme("QT_QPA_PLATFORMTHEME", QByteArray());
    // The arguments are not Qt's.
    int argc = 1;
    QGuiApplication application(argc, argv);
    // An engine that is started may have a window.
    platform.restore();
    theme.restore();
    return Cli::runCommand(arguments);
}

int runInWindow(int& argc, char** argv, const QStringList& arguments)
{
    const bool hasPlatform = qEnvironmentVariableIsSet("DISPLAY") ||
                             qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
                             qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ||
                             arguments.contains(QLatin1String("-platform"));
    const bool isPicture = arguments.contains(QLatin1String("--screenshot"));
    if (!hasPlatform && isPicture) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    if (hasPlatform || isPicture) {
        QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
        // The stage shows textures that are made in the context of the library.
        QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
        // A screen at one and a half is one at one and a half: the icons are drawn for it.
        QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
            Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
        QApplication application(argc, argv);
        // Qt has taken its own options out of these.
        return App::runWindow(application, QCoreApplication::arguments().mid(1));
    }
    fputs("zorv: There is no display for the window. 'zorv help' tells what can be done without "
          "one.\n",
          stderr);
    return Cli::NotDone;
}

}  // namespace

int main(int argc, char** argv)
{
    // A reader that goes away, or a file that may not grow, is a failed write
    // and not the end.
    signal(SIGPIPE, SIG_IGN);
    signal(SIGXFSZ, SIG_IGN);
    keepStandardStreams();
    setUpTexts();
    Zorv::setLosslessImages(true);
    const QStringList arguments = argumentsOf(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("zorv"));
    QCoreApplication::setOrganizationName(QStringLiteral("zorv"));
    QSettings::setDefaultFormat(Operations::settingsFormat());
    return Cli::isCommand(arguments) ? runOnCommandLine(argv, arguments)
                                     : runInWindow(argc, argv, arguments);
}
