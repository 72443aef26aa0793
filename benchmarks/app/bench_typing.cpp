// One key in a text of the sample game: the longest turn of the event loop from the key until all
// is checked again, against the same with the check of the game switched off.

#include "app/code/documenttabs.h"
#include "app/main/mainwindow.h"
#include "app/main/windowinterface.h"
#include "app/messages/problemwatch.h"
#include "operations/check/backgroundcheck.h"
#include "operations/hostinterface.h"
#include "support/bench.h"

#include <zorv/editors/code/codeeditor.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace {

constexpr int Rounds = 15;
constexpr int Wait = 600;  // milliseconds, in which the check is over
constexpr double MostMore = 16;

/// The longest turn of the event loop while it lives: a timer without an interval comes once a
/// turn.
class LongestTurn
{
public:
    LongestTurn()
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            m_longest = std::max(m_longest, double(m_clock.nsecsElapsed()) / 1e6);
            m_clock.start();
        });
        m_clock.start();
        m_timer.start(0);
    }
    double milliseconds() const { return m_longest; }

private:
    QTimer m_timer;
    QElapsedTimer m_clock;
    double m_longest = 0;
};

double afterOneKey(QWidget* edit)
{
    return Bench::medianOf(Rounds, [edit] {
        const LongestTurn turn;
        QMetaObject::invokeMethod(
            edit, [edit] { QTest::keyClick(edit, Qt::Key_X); }, Qt::QueuedConnection);
        QElapsedTimer clock;
        clock.start();
        while (!clock.hasExpired(Wait)) {
            QCoreApplication::processEvents();  // qWait() sleeps between its turns
        }
        return turn.milliseconds();
    });
}

}  // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    App::WindowInterface host(&settings);
    Operations::startHost(&host);
    App::MainWindow window;
    host.setWindow(&window);
    window.resize(1280, 900);
    window.show();
    const QString game = QStringLiteral(SAMPLE_GAME);
    if (!window.openPath(game) ||
        !window.openFile(game + QStringLiteral("/characters/maren/maren.character")) ||
        !window.openFile(game + QStringLiteral("/characters/maren/attacks.anim"))) {
        return 1;
    }
    QTest::qWait(3000);
    const double with = afterOneKey(window.currentEdit());
    window.problems()->check()->setGame({});
    const double without = afterOneKey(window.currentEdit());
    Bench::ratio("longest turn after one key: checking / not", with, without);
    Bench::ratio("and what checking adds / 16 ms", std::max(with - without, 0.0), MostMore, 1);
    return 0;
}
