#pragma once

#include "picture/loadedmatch.h"
#include "rules/state.h"
#include "window/hud.h"
#include "window/keymap.h"
#include "window/steadyclock.h"

#include <QRasterWindow>

#include <memory>

namespace Player {

class MatchSounds;
class Scene;

/// The window in which two people play a match at one keyboard.
///
/// Every tick is painted, right when it has been; while nothing of the window is seen, time goes on
/// without. What the person has to know of the files stands at the lower edge for a while.
class PlayWindow : public QRasterWindow
{
    Q_OBJECT

public:
    explicit PlayWindow(std::unique_ptr<LoadedMatch> match);
    ~PlayWindow() override;

    const Rules::State& state() const { return m_state; }

    /// How many ticks were painted since the window was made.
    int paintedTicks() const { return m_paintedTicks; }

    /// Shows the window and lets time go.
    void begin();

signals:
    void ticked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void goOn();
    void paintNow();
    void readKeys();
    void beginMatch();
    bool takeWindowKey(int key);
    QRectF target() const;
    void paintPages(QPainter* painter);

    std::unique_ptr<LoadedMatch> m_match;
    std::unique_ptr<Scene> m_scene;
    std::unique_ptr<MatchSounds> m_sounds;
    Rules::State m_state;
    Rules::Inputs m_inputs;
    Keymap m_keys;
    Hud m_hud;
    SteadyClock m_clock;
    bool m_isHelpShown = false;
    int m_notesLeft;
    int m_paintedTicks = 0;
    bool m_isPainted = true;
};

}  // namespace Player
