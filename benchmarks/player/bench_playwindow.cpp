// The window of the player with the sample game: whether it holds 60 ticks a second with each of
// them painted, what a picture costs beside a tick's time, and how long the first one takes beside
// an empty window and the reading of the same files.

#include "support/bench.h"

#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"
#include "operations/hostinterface.h"
#include "picture/scene.h"
#include "rules/tick.h"
#include "window/playwindow.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QPainter>

using namespace Player;

namespace {

constexpr int Ticks = 600;
constexpr int Rounds = 7;

std::unique_ptr<LoadedMatch> load()
{
    auto match = std::make_unique<LoadedMatch>();
    QString error;
    return match->load({ZORV_SAMPLES "/arena", {}, {}, false}, &error) ? std::move(match) : nullptr;
}

void waitFor(PlayWindow* window, int ticks)
{
    QEventLoop loop;
    int left = ticks;
    QObject::connect(window, &PlayWindow::ticked, &loop, [&] {
        if (--left == 0) {
            loop.quit();
        }
    });
    loop.exec();
}

class EmptyWindow : public QRasterWindow
{
public:
    QEventLoop loop;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter(this).fillRect(QRect(QPoint(), size()), Qt::black);
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    }
};

void openEmpty()
{
    Family::FamilyParentProject game(QStringLiteral(ZORV_SAMPLES "/arena"));
    const QStringList files = Family::FamilyParentProject::mainFiles(game.absolutePath());
    QList<Family::FamilyProject*> projects;
    QString error;
    for (const QString& file : files) {
        projects.append(Family::FamilyProject::open(&game, file, &error));
    }
    EmptyWindow window;
    window.resize(1280, 720);
    window.show();
    window.loop.exec();
    for (Family::FamilyProject* project : qAsConst(projects)) {
        project->release();
    }
}

void openMatch()
{
    PlayWindow window(load());
    window.begin();
    while (window.paintedTicks() == 0) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

}  // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    Operations::HostInterface host;
    Operations::startHost(&host);
    if (!load()) {
        std::puts("The samples cannot be read.");
        return 1;
    }
    {
        PlayWindow window(load());
        window.begin();
        waitFor(&window, 30);
        const int painted = window.paintedTicks();
        const double time = Bench::once([&] { waitFor(&window, Ticks); });
        Bench::ratio("600 ticks, to ten seconds", time, 10000, 1.001);
        Bench::ratio("600 ticks, to those that were painted", Ticks,
                     window.paintedTicks() - painted, 1);
    }
    const std::unique_ptr<LoadedMatch> match = load();
    Scene scene(match->game, match->looks, match->stage);
    Rules::State state = Rules::firstState(match->game);
    const double pictures = Bench::median(Rounds, [&] {
        for (int i = 0; i < 60; ++i) {
            Rules::tick(match->game, {}, &state);
            scene.draw(state);
        }
    });
    Bench::ratio("60 pictures without a window, to a second", pictures, 1000, 1);
    Bench::ratio("start to the first picture, to an empty window and the files",
                 Bench::pairedRatio(Rounds, openMatch, openEmpty), 1, 1.5);
    return 0;
}
