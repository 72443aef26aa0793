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

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int Rounds = 15;
constexpr int Wait = 600;  // milliseconds, in which the check is over
constexpr double MostMore = 16;

/// The longest turn of the event loop while it lives.
class LongestTurn
{
public:
    LongestTurn()
    {
        auto* loop = QAbstractEventDispatcher::instance();
        m_awake =
            QObject::connect(loop, &QAbstractEventDispatcher::awake, [this] { m_clock.start(); });
        m_asleep = QObject::connect(loop, &QAbstractEventDispatcher::aboutToBlock, [this] {
            if (m_clock.isValid()) {
                m_longest = std::max(m_longest, double(m_clock.nsecsElapsed()) / 1e6);
            }
        });
    }
    ~LongestTurn()
    {
        QObject::disconnect(m_awake);
        QObject::disconnect(m_asleep);
    }
    double milliseconds() const { return m_longest; }

private:
    QElapsedTimer m_clock;
    QMetaObject::Connection m_awake;
    QMetaObject::Connection m_asleep;
    double m_longest = 0;
};

double afterOneKey(QWidget* edit)
{
    return Bench::medianOf(Rounds, [edit] {
        const LongestTurn turn;
        QMetaObject::invokeMethod(
            edit, [edit] { QTest::keyClick(edit, Qt::Key_X); }, Qt::QueuedConnection);
        QTest::qWait(Wait);
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
