// The start of the window on the sample game, from the start of the process to its first painted
// frame. The peer is an empty QMainWindow of the same size. Each start is a process of its own.

#include "support/bench.h"

#include "app/main/application.h"

#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdlib>
#include <cstring>

namespace {

const char* const EmptyArgument = "--empty";
const char* const GameArgument = "--game";
constexpr int Rounds = 15;
constexpr int WaitTime = 60000;  // milliseconds

/// Ends the process when a window with a part of its title has painted itself, and prints the time
/// since the object was made.
class FirstFrame final : public QObject
{
public:
    explicit FirstFrame(const QString& title) : m_title(title)
    {
        m_clock.start();
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* window = qobject_cast<QMainWindow*>(watched);
        if (window && event->type() == QEvent::Paint && window->windowTitle().contains(m_title)) {
            // All that belongs to the frame is painted before the next turn of the loop.
            QTimer::singleShot(0, this, [this] {
                std::printf("%.3f\n", double(m_clock.nsecsElapsed()) / 1e6);
                std::fflush(stdout);
                std::_Exit(0);
            });
        }
        return false;
    }

private:
    QString m_title;
    QElapsedTimer m_clock;
};

int showEmpty(QApplication& application)
{
    const FirstFrame frame{QString()};
    QMainWindow window;
    window.resize(1280, 800);
    window.show();
    return application.exec();
}

int showGame(QApplication& application)
{
    const FirstFrame frame{QDir(QStringLiteral(SAMPLE_GAME)).dirName()};
    return App::runWindow(application, {QStringLiteral(SAMPLE_GAME)});
}

struct Times
{
    std::vector<double> whole;   // of the process
    std::vector<double> window;  // from the application object on
};

bool start(const char* argument, Times* times)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const double whole = Bench::once([&] {
        process.start(QCoreApplication::applicationFilePath(), {QLatin1String(argument)});
        process.waitForFinished(WaitTime);
    });
    bool isNumber = false;
    const double window = process.readAllStandardOutput().trimmed().toDouble(&isNumber);
    times->whole.push_back(whole);
    times->window.push_back(window);
    return isNumber;
}

double middle(std::vector<double> figures)
{
    std::sort(figures.begin(), figures.end());
    return figures[figures.size() / 2];
}

int compare()
{
    // No settings of a person: another game would be opened, or panels hidden.
    const QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path()));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path()));
    Times empty;
    Times game;
    for (int round = 0; round <= Rounds; ++round) {
        if (!start(EmptyArgument, &empty) || !start(GameArgument, &game)) {
            std::puts("a window did not paint itself: the benchmark is wrong");
            return 1;
        }
        if (round == 0) {
            empty = Times();
            game = Times();
        }
    }
    Bench::figure("empty window, process to first frame", middle(empty.whole), "ms");
    Bench::figure("window on the sample game, process to first frame", middle(game.whole), "ms");
    Bench::ratio("start: window on the sample game / empty window", middle(game.whole),
                 middle(empty.whole), 3.0);
    Bench::figure("empty window, application to first frame", middle(empty.window), "ms");
    Bench::figure("window on the sample game, application to first frame", middle(game.window),
                  "ms");
    return 0;
}

}  // namespace

int main(int argc, char** argv)
{
    const char* argument = argc > 1 ? argv[1] : "";
    if (std::strcmp(argument, EmptyArgument) == 0 || std::strcmp(argument, GameArgument) == 0) {
        QCoreApplication::setApplicationName(QStringLiteral("zorv"));
        QCoreApplication::setOrganizationName(QStringLiteral("zorv"));
        QApplication application(argc, argv);
        return std::strcmp(argument, GameArgument) == 0 ? showGame(application)
                                                        : showEmpty(application);
    }
    QCoreApplication application(argc, argv);
    return compare();
}
