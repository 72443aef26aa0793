#include "window/playwindow.h"

#include "family/grammar/motion.h"
#include "picture/fighterscene.h"
#include "picture/scene.h"
#include "sound/matchsounds.h"
#include "window/editorlink.h"

#include <zorv/code/codecs/filetext.h>
#include <zorv/core/filesystemarchive.h>

#include <QFile>
#include <QKeyEvent>
#include <QPainter>

// The clock ticks 60 times a second. Each tick advances the session, plays its sounds and paints at
// once. When files change, the whole match is loaded again and everything that refers to the old
// game is replaced. The new session takes over places, life and power, so that an author sees a
// change at once.

namespace Player {

namespace {

constexpr int NotesTicks = 10 * SteadyClock::TicksASecond;
constexpr int LookTicks = 20;
constexpr QSize UsualSize(1280, 720);

const char* const keyLines[] = {
    "",
    QT_TRANSLATE_NOOP("Player::PlayWindow", "Space\tpause"),
    QT_TRANSLATE_NOOP("Player::PlayWindow", "Page up, Page down\ta tick back, a tick on"),
    QT_TRANSLATE_NOOP("Player::PlayWindow", "F3, F4\tboxes; frames and inputs"),
    QT_TRANSLATE_NOOP("Player::PlayWindow", "F5\tboth to their places"),
    QT_TRANSLATE_NOOP("Player::PlayWindow", "F6\twhat the second one does"),
    QT_TRANSLATE_NOOP("Player::PlayWindow", "F7, F10\tspeed; a match without end"),
    QT_TRANSLATE_NOOP("Player::PlayWindow", "F8, F9\tanother costume"),
    QT_TRANSLATE_NOOP("Player::PlayWindow", "F2\twhat is wrong with the files"),
    QT_TRANSLATE_NOOP("Player::PlayWindow", "F12, Shift+F12\tthe shown frame in the editor"),
    QT_TRANSLATE_NOOP("Player::PlayWindow", "F11, Esc\tthe whole screen; the end"),
};

/// Marks the image as opaque, so that Qt copies it without testing the alpha of each pixel.
QImage asOpaque(const QImage& image)
{
    return QImage(image.constBits(), image.width(), image.height(), image.bytesPerLine(),
                  QImage::Format_RGB32);
}

}  // namespace

PlayWindow::PlayWindow(std::unique_ptr<LoadedMatch> match, const MatchRequest& request)
    : m_match(std::move(match)), m_request(request), m_notesLeft(NotesTicks)
{
    readKeys();
    open();
    watchFiles();
    resize(UsualSize);
    setMinimumSize({320, 180});
    connect(&m_clock, &SteadyClock::ticked, this, &PlayWindow::goOn);
    connect(&m_pads, &Gamepads::heldChanged, this, &PlayWindow::holdPad);
}

PlayWindow::~PlayWindow() = default;

/// Creates everything that depends on the match. Nothing of the previous match may remain, because
/// it refers to the old game.
void PlayWindow::open()
{
    m_scene = std::make_unique<Scene>(m_match->game, m_match->looks, m_match->stage);
    m_sounds = std::make_unique<MatchSounds>(*m_match);
    m_match->notes += m_sounds->notes();
    m_session = std::make_unique<Session>(m_match->game);
    m_match->notes += m_keys.notes();
    for (Rules::FighterData& fighter : m_match->game.fighters) {
        fighter.name = m_hud.readableName(fighter);
    }
    setTitle(
        tr("%1 against %2").arg(m_match->game.fighters[0].name, m_match->game.fighters[1].name));
}

/// For a copy, watches the originals, because those are the files that are saved.
void PlayWindow::watchFiles()
{
    LoadedMatch originals;
    QString error;
    const bool isCopy = !m_request.original.isEmpty();
    m_stamps.watch(isCopy && originals.load(withOriginal(m_request), &error) ? originals.files
                                                                             : m_match->files);
}

/// With an editor connected, notifies the editor instead of reloading, because it also knows
/// unsaved changes.
void PlayWindow::lookAtFiles()
{
    if (!m_stamps.hasChanged()) {
        return;
    }
    if (m_editor && m_editor->isConnected()) {
        m_editor->tellChanged();
    } else {
        reload(withOriginal(m_request));
    }
}

void PlayWindow::setEditor(const QString& socketName)
{
    m_editor = std::make_unique<EditorLink>(socketName);
    connect(m_editor.get(), &EditorLink::playAsked, this, &PlayWindow::play);
}

/// A new stage keeps both characters. A new character gets a different opponent.
void PlayWindow::play(const QString& copy, const QString& original, bool isStage)
{
    MatchRequest request = withOriginal(m_request);
    if (!copy.isEmpty() && isStage) {
        request.characters.clear();
        for (const Rules::FighterData& fighter : m_match->game.fighters) {
            request.characters.append(originalOf(m_request, fighter.mainFile));
        }
        request.stage = copy;
        request.original = original;
    } else if (!copy.isEmpty()) {
        request.characters = QStringList(copy);
        request.original = original;
    }
    reload(request);
}

void PlayWindow::tell(const QString& note)
{
    m_match->notes.removeAll(note);
    m_match->notes.prepend(note);
    m_notesLeft = NotesTicks;
}

void PlayWindow::showFrame(int fighter)
{
    const Rules::FighterData& data = m_match->game.fighters[fighter];
    const Rules::FighterState& now = state().fighters[fighter];
    const Rules::Frame* frame = shownFrame(data, now);
    if (!m_editor || !m_editor->isConnected()) {
        tell(tr("No editor is there. Start the player from the editor, with F5."));
    } else if (frame) {
        const QString& file = data.animations.at(now.animation).place.file;
        m_editor->show({originalOf(m_request, file), frame->line});
    }
}

void PlayWindow::reload(const MatchRequest& request)
{
    auto match = std::make_unique<LoadedMatch>();
    QString error;
    if (!match->load(request, &error)) {
        tell(error);
        return;
    }
    m_notesLeft = NotesTicks;
    const MatchRequest oldRequest = m_request;
    const int costumes[] = {m_scene->fighter(0).costume(), m_scene->fighter(1).costume()};
    m_request = request;
    const std::unique_ptr<LoadedMatch> oldMatch = std::move(m_match);
    const std::unique_ptr<Session> oldSession = std::move(m_session);
    m_sounds.reset();
    m_scene.reset();
    m_match = std::move(match);
    open();
    m_session->takeOver(*oldSession);
    m_sounds->setPaused(m_session->isPaused());
    for (int i = 0; i < 2; ++i) {
        if (originalOf(oldRequest, oldMatch->game.fighters[i].mainFile) ==
            originalOf(request, m_match->game.fighters[i].mainFile)) {
            m_scene->fighter(i).wear(costumes[i]);
        }
    }
    watchFiles();
}

void PlayWindow::begin()
{
    show();
    m_clock.start();
}

void PlayWindow::readKeys()
{
    Zorv::FileText text;
    QString error;
    if (QFile::exists(Keymap::fileName()) &&
        text.read(*Zorv::FileSystemArchive::instance(), Keymap::fileName(), -1, &error)) {
        m_keys.read(text.text);
    }
    if (!error.isEmpty()) {
        m_match->notes.append(error);
    }
}

void PlayWindow::see()
{
    m_scene->see(m_session->state());
    m_sounds->see(m_session->state());
}

void PlayWindow::goOn()
{
    if (m_session->clockTick(inputs())) {
        see();
    }
    m_notesLeft -= m_notesLeft > 0;
    const bool isTimeToLook = !m_request.game.isEmpty() && ++m_clockTicks % LookTicks == 0;
    if (isTimeToLook) {
        lookAtFiles();
    }
    paintNow();
    emit ticked();
}

/// Steps a tick forward or back, and pauses the match.
void PlayWindow::step(int by)
{
    m_session->setPaused(true);
    if (by > 0) {
        m_session->step(inputs());
        see();
    } else if (m_session->stepBack()) {
        m_scene->see(m_session->state());
    }
    m_sounds->setPaused(true);
}

/// Paints at once, because a paint request may be handled after the next tick or be merged with it.
void PlayWindow::paintNow()
{
    if (!isExposed()) {
        return;
    }
    m_isPainted = false;
    update();
    QEvent request(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(this, &request);
}

/// The largest area in the window with the shape of the stage's screen.
QRectF PlayWindow::target() const
{
    const QSizeF shape = m_match->stage.screen;
    const QSizeF size = shape.scaled(QSizeF(width(), height()), Qt::KeepAspectRatio);
    return {QPointF((width() - size.width()) / 2, (height() - size.height()) / 2), size};
}

void PlayWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRectF area = target();
    const QRect inner = area.toAlignedRect();
    painter.fillRect(QRect(0, 0, width(), inner.top()), Qt::black);
    painter.fillRect(QRect(0, inner.bottom() + 1, width(), height()), Qt::black);
    painter.fillRect(QRect(0, 0, inner.left(), height()), Qt::black);
    painter.fillRect(QRect(inner.right() + 1, 0, width(), height()), Qt::black);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(inner, asOpaque(m_scene->draw(state(), m_overlays)));
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);

    painter.setRenderHint(QPainter::Antialiasing);
    const qreal scale = qMin(area.width() / Hud::Width, area.height() / Hud::Height);
    painter.translate(area.center() - QPointF(Hud::Width, Hud::Height) * scale / 2);
    painter.scale(scale, scale);
    m_hud.paint(&painter, m_match->game, state());
    paintPages(&painter);
    m_paintedTicks += !m_isPainted;
    m_isPainted = true;
}

void PlayWindow::paintPages(QPainter* painter)
{
    m_training.paintStatus(painter, *m_session);
    if (m_isMeterShown) {
        m_training.paintMeter(painter, m_session->meter());
        m_training.paintInputs(painter, *m_session);
    }
    if (m_notesLeft > 0) {
        m_hud.paintNotes(painter, m_match->notes + m_scene->notes());
    }
    if (!m_isHelpShown) {
        return;
    }
    QStringList lines;
    for (int i = 0; i < Keymap::SignCount; ++i) {
        lines.append(QStringLiteral("%1\t%2\t%3")
                         .arg(QLatin1String(Keymap::signs()[i].name), m_keys.keyName(0, i),
                              m_keys.keyName(1, i)));
    }
    for (const char* line : keyLines) {
        lines.append(tr(line));
    }
    lines.append(tr("The keys can be others: %1").arg(Keymap::fileName()));
    m_hud.paintPage(painter, tr("Keys"), lines);
}

bool PlayWindow::takeWindowKey(int key)
{
    switch (key) {
    case Qt::Key_F1:
        m_isHelpShown = !m_isHelpShown;
        return true;
    case Qt::Key_F2:
        m_notesLeft = NotesTicks;
        return true;
    case Qt::Key_F8:
    case Qt::Key_F9:
        m_scene->fighter(key - Qt::Key_F8).wearNext();
        return true;
    case Qt::Key_F11:
        visibility() == FullScreen ? showNormal() : showFullScreen();
        return true;
    case Qt::Key_Escape:
        close();
        return true;
    default:
        return false;
    }
}

/// Key repeat only works for stepping.
bool PlayWindow::takeTrainingKey(int key)
{
    switch (key) {
    case Qt::Key_Space:
        m_session->setPaused(!m_session->isPaused());
        m_sounds->setPaused(m_session->isPaused());
        return true;
    case Qt::Key_F3:
        m_overlays = !m_overlays ? Overlays(Overlay::Boxes)
                     : m_overlays == Overlays(Overlay::Boxes)
                         ? Overlay::Boxes | Overlay::Axes | Overlay::Push
                         : Overlays();
        return true;
    case Qt::Key_F4:
        m_isMeterShown = !m_isMeterShown;
        return true;
    case Qt::Key_F5:
        m_session->resetPlaces();
        return true;
    case Qt::Key_F6:
        m_session->setDummy(Dummy::Mode((m_session->dummy().mode() + 1) % Dummy::ModeCount));
        return true;
    case Qt::Key_F7:
        m_session->nextSpeed();
        return true;
    case Qt::Key_F10:
        m_session->setEndless(!m_session->isEndless());
        return true;
    default:
        return false;
    }
}

void PlayWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown) {
        step(event->key() == Qt::Key_PageDown ? 1 : -1);
        return;
    }
    if (event->key() == Qt::Key_F12 && !event->isAutoRepeat()) {
        showFrame((event->modifiers() & Qt::ShiftModifier) != 0 ? 1 : 0);
        return;
    }
    if (event->isAutoRepeat() || takeWindowKey(event->key()) || takeTrainingKey(event->key())) {
        return;
    }
    int player = 0;
    quint8 bit = 0;
    if (!m_keys.find(event->key(), &player, &bit)) {
        return;
    }
    m_inputs.signs[player] |= bit;
    press(bit);
}

/// A button starts the next match.
void PlayWindow::press(quint8 bits)
{
    if ((bits & Family::MotionStep::Buttons) != 0 && state().phase == Rules::Phase::MatchOver) {
        m_session->beginMatch();
    }
}

void PlayWindow::holdPad(int player, quint32 buttons)
{
    const quint8 before = m_padInputs.signs[player];
    m_padInputs.signs[player] = m_keys.padSigns(player, buttons);
    press(quint8(m_padInputs.signs[player] & ~before));
}

/// The combined inputs of keyboard and game pads.
Rules::Inputs PlayWindow::inputs() const
{
    Rules::Inputs all = m_inputs;
    for (int i = 0; i < 2; ++i) {
        all.signs[i] |= m_padInputs.signs[i];
    }
    return all;
}

void PlayWindow::keyReleaseEvent(QKeyEvent* event)
{
    int player = 0;
    quint8 bit = 0;
    if (!event->isAutoRepeat() && m_keys.find(event->key(), &player, &bit)) {
        m_inputs.signs[player] &= quint8(~bit);
    }
}

/// The window gets no key release events while another window has the focus.
void PlayWindow::focusOutEvent(QFocusEvent*)
{
    m_inputs = {};
}

}  // namespace Player
