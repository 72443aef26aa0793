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

// Drops two warnings. Qt complains about XDG_RUNTIME_DIR, which exists only in a desktop session
// and is not needed. libpng reports harmless defects of a picture, without the name of its file.
void passMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (!text.contains(QLatin1String("XDG_RUNTIME_DIR")) &&
        !text.startsWith(QLatin1String("libpng warning: "))) {
        s_otherMessages(type, context, text);
    }
}

// If a standard stream is closed, the next file opened gets its number, and output would be written
// into that file. The placeholder is read-only, so that writing to it fails.
void keepStandardStreams()
{
    for (int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) == -1) {
            // open() uses the lowest free number, which is the missing one.
            const int file = open("/dev/null", O_RDONLY | O_CLOEXEC);
            if (file != stream) {
                _exit(Cli::NotDone);
            }
        }
    }
}

// Without a locale, file names are still UTF-8.
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

/// Rejects arguments that are not valid text: they would be written to files as other bytes.
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

/// Sets an environment variable temporarily.
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
    // Documents measure text with fonts, so Qt needs a platform. This one has no display and no
    // fonts, and does not query the desktop.
    const ChangedVariable platform("QT_QPA_PLATFORM", "minimal");
    const ChangedVariable theme("QT_QPA_PLATFORMTHEME", QByteArray());
    // Qt must not interpret the arguments.
    int argc = 1;
    QGuiApplication application(argc, argv);
    // A started engine may open a window.
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
        // The stage shows textures created in the library's OpenGL context.
        QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
        // Keep a scale factor of 1.5 as it is: there are icons for it.
        QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
            Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
        QApplication application(argc, argv);
        // Qt has already removed its own options.
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
    // A closed pipe or a file size limit must be a failed write, not kill the program.
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
