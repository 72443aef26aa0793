#pragma once

#include "picture/filestamps.h"
#include "picture/loadedmatch.h"
#include "picture/overlay.h"
#include "training/session.h"
#include "window/gamepads.h"
#include "window/hud.h"
#include "window/keymap.h"
#include "window/steadyclock.h"
#include "window/traininghud.h"

#include <QRasterWindow>

#include <memory>

namespace Player {

class EditorLink;
class MatchSounds;
class Scene;

/// The window in which two people play a match at one keyboard.
///
/// It can be paused, rewound and inspected; see docs/engine.md for the keys. Every tick is painted
/// immediately. While the window is not visible, the match runs without painting. Messages about
/// the files are shown at the lower edge for a while.
class PlayWindow : public QRasterWindow
{
    Q_OBJECT

public:
    /// `request` is how the match was loaded. With it, the match is reloaded when its files, or the
    /// original of a copy, change. Both fighters then continue from their places.
    explicit PlayWindow(std::unique_ptr<LoadedMatch> match, const MatchRequest& request = {});
    ~PlayWindow() override;

    const Rules::State& state() const { return m_session->state(); }
    const Session& session() const { return *m_session; }

    /// The number of ticks painted since the window was created.
    int paintedTicks() const { return m_paintedTicks; }

    Gamepads* gamepads() { return &m_pads; }

    /// Connects to the editor at a local socket and plays what it sends. The files are then not
    /// watched, because the editor also knows unsaved changes.
    void setEditor(const QString& socketName);

    /// Shows the window and starts the clock.
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
    void open();
    void watchFiles();
    void lookAtFiles();
    void reload(const MatchRequest& request);
    void play(const QString& copy, const QString& original, bool isStage);
    void showFrame(int fighter);
    void tell(const QString& note);
    void readKeys();
    void see();
    void step(int by);
    Rules::Inputs inputs() const;
    void press(quint8 bits);
    void holdPad(int player, quint32 buttons);
    bool takeWindowKey(int key);
    bool takeTrainingKey(int key);
    QRectF target() const;
    void paintPages(QPainter* painter);

    std::unique_ptr<LoadedMatch> m_match;
    MatchRequest m_request;
    FileStamps m_stamps;
    std::unique_ptr<EditorLink> m_editor;
    std::unique_ptr<Scene> m_scene;
    std::unique_ptr<MatchSounds> m_sounds;
    std::unique_ptr<Session> m_session;
    Rules::Inputs m_inputs;  // from the keyboard
    Rules::Inputs m_padInputs;
    Gamepads m_pads;
    Keymap m_keys;
    Hud m_hud;
    TrainingHud m_training;
    Overlays m_overlays;
    bool m_isMeterShown = false;
    SteadyClock m_clock;
    bool m_isHelpShown = false;
    int m_clockTicks = 0;
    int m_notesLeft;
    int m_paintedTicks = 0;
    bool m_isPainted = true;
};

}  // namespace Player
