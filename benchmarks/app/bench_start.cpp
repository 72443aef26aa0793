// The start of the window on the sample game, from the start of the process to its first painted
// frame: a first start, and one that goes on where the person left off, with a text and its frame
// on the stage. The peer is a QMainWindow of the same size with an empty QOpenGLWidget, for any
// window with a stage pays for GL. Each start is a process of its own.

#include "support/bench.h"

#include "app/main/application.h"

#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QOpenGLWidget>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <array>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <iterator>

namespace {

constexpr int Rounds = 15;
constexpr int WaitTime = 60000;  // milliseconds

/// Ends the process when the widget that `isLast` tells has painted itself, and prints the time
/// since the object was made.
class FirstFrame final : public QObject
{
public:
    using Condition = std::function<bool(QWidget*)>;

    explicit FirstFrame(Condition isLast) : m_isLast(std::move(isLast))
    {
        m_clock.start();
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* widget = event->type() == QEvent::Paint ? qobject_cast<QWidget*>(watched) : nullptr;
        if (widget && m_isLast(widget)) {
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
    Condition m_isLast;
    QElapsedTimer m_clock;
};

int showPeer(QApplication& application, QWidget* content)
{
    QMainWindow window;
    const FirstFrame frame(
        [&](QWidget* widget) { return widget == (content ? content : &window); });
    if (content) {
        window.setCentralWidget(content);
    }
    window.resize(1280, 800);
    window.show();
    return application.exec();
}

int showEmpty(QApplication& application)
{
    return showPeer(application, nullptr);
}

int showGl(QApplication& application)
{
    return showPeer(application, new QOpenGLWidget);
}

int showGame(QApplication& application)
{
    const QString game = QStringLiteral(SAMPLE_GAME);
    const FirstFrame frame([title = QDir(game).dirName()](QWidget* widget) {
        return qobject_cast<QMainWindow*>(widget) && widget->windowTitle().contains(title);
    });
    return App::runWindow(application, {game});
}

int showText(QApplication& application)
{
    const QString game = QStringLiteral(SAMPLE_GAME);
    const QString project = game + QLatin1String("/characters/maren/maren.character");
    const QString text = game + QLatin1String("/characters/maren/attacks.anim");
    QSettings settings;
    settings.setValue(QStringLiteral("last_game"), game);
    const QVariantMap place{{QStringLiteral("project"), project},
                            {QStringLiteral("file"), text},
                            {QStringLiteral("line"), 16}};
    settings.setValue(QStringLiteral("open_texts"), QVariantList{place});
    const FirstFrame frame([](QWidget* widget) { return qobject_cast<QOpenGLWidget*>(widget); });
    return App::runWindow(application, {});
}

const struct Start
{
    const char* argument;
    const char* what;
    int (*show)(QApplication&);
} starts[] = {
    {"--empty", "empty window", showEmpty},
    {"--gl", "window with an empty GL widget", showGl},
    {"--game", "window on the sample game", showGame},
    {"--text", "the same, with a frame on the stage", showText},
};
constexpr size_t Count = std::size(starts);
enum { Empty, Gl, Game, Text };

struct Times
{
    std::vector<double> whole;   // of the process
    std::vector<double> window;  // from the application object on
};

bool start(const char* argument, Times* times)
{
    // Each with settings of its own: those of one would open what the other does without.
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"),
                       qEnvironmentVariable("XDG_CONFIG_HOME") + QLatin1String(argument));
    process.setProcessEnvironment(environment);
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
    // No settings of a person: another game would be opened, or panels hidden. The first start of
    // all, which fills the folder, does not count.
    const QTemporaryDir folder;
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"}) {
        qputenv(name, QFile::encodeName(folder.path()));
    }
    std::array<Times, Count> times;
    for (int round = 0; round <= Rounds; ++round) {
        for (size_t i = 0; i < Count; ++i) {
            if (!start(starts[i].argument, &times[i])) {
                std::printf("%s did not paint itself: the benchmark is wrong\n", starts[i].what);
                return 1;
            }
        }
        if (round == 0) {
            times = {};
        }
    }
    for (size_t i = 0; i < Count; ++i) {
        std::printf("%-40s from the process on %8.2f ms, from the application on %8.2f ms\n",
                    starts[i].what, middle(times[i].whole), middle(times[i].window));
    }
    // By turns: what else the machine does meets all of a round.
    const auto compareWith = [&](const char* name, int start, int peer, double limit) {
        std::vector<double> ratios;
        for (int round = 0; round < Rounds; ++round) {
            ratios.push_back(times[size_t(start)].whole[size_t(round)] /
                             times[size_t(peer)].whole[size_t(round)]);
        }
        Bench::ratio(name, middle(ratios), 1, limit);
    };
    compareWith("start: window on the sample game / window with empty GL widget", Game, Gl, 1.5);
    compareWith("start: with a frame on the stage / window with empty GL widget", Text, Gl, 0);
    compareWith("start: window with empty GL widget / empty window", Gl, Empty, 0);
    return 0;
}

}  // namespace

int main(int argc, char** argv)
{
    const char* argument = argc > 1 ? argv[1] : "";
    for (const Start& row : starts) {
        if (std::strcmp(argument, row.argument) == 0) {
            QCoreApplication::setApplicationName(QStringLiteral("zorv"));
            QCoreApplication::setOrganizationName(QStringLiteral("zorv"));
            if (row.show == showGame || row.show == showText) {
                QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
                QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
            }
            QApplication application(argc, argv);
            return row.show(application);
        }
    }
    QCoreApplication application(argc, argv);
    return compare();
}
