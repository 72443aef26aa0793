#include "cache/sound.h"
#include "core/dialogs/dialogs.h"
#include "core/interface.h"
#include "editors/framework/findflag.h"
#include "editors/organizer/organizereditor.h"
#include "editors/sound/audiosamplewidget.h"
#include "editors/sound/soundeditor_p.h"

#include <QAction>
#include <QApplication>
#include <QMouseEvent>
#include <QRegExp>
#include <QRegularExpression>
#include <QSlider>

#include <cmath>

namespace Zorv {

namespace {

constexpr unsigned OrganizerPanel = 0;
constexpr int TicksPerSecond = 60;

/// Without frames or a rate the duration is unknown.
QString infoText(const SampleInfo& info)
{
    const QString dashes = QStringLiteral("---");
    const bool hasTime = info.frames > 0 && info.sampleRate > 0;
    const double seconds = hasTime ? double(info.frames) / info.sampleRate : 0.0;
    return SoundEditor::tr("Channels: %1 (%2)\nSample rate: %3 Hz\nBits per sample: %4 bits\n"
                           "Duration: %5 seconds\nTick count: %6 at 60Hz")
        .arg(QString::number(info.channels),
             info.channels < 2 ? SoundEditor::tr("Mono") : SoundEditor::tr("Stereo"),
             QString::number(info.sampleRate), QString::number(info.bits),
             hasTime ? QString::number(seconds) : dashes,
             hasTime ? QString::number(qint64(std::floor(seconds * TicksPerSecond))) : dashes);
}

}  // namespace

void SoundEditorPrivate::take(Sounds* now)
{
    if (now && now == sounds) {
        return;
    }
    const bool isActive = editor->isActive();
    if (sounds) {
        sounds->disconnect(this);
        sounds->disconnect(editor);
    }
    if (isActive) {
        lendList(false);
    }
    sounds = now;
    sound = nullptr;
    if (now) {
        connect(now, &Sounds::changed, this, &SoundEditorPrivate::listChanged);
        connect(now, &OrganizableObject::modified, editor, &Editor::contentsChanged);
        connect(now, &QObject::destroyed, this, [this] {
            sounds = nullptr;
            take(nullptr);
        });
        if (isActive) {
            connect(now, &Sounds::changed, editor, &Editor::contentsChanged, Qt::UniqueConnection);
        }
    }
    host->setMenuEnabled("snd", "sounds", now);
    if (editorAction) {
        editorAction->setVisible(now);
    }
    if (isActive) {
        lendList(true);
        editor->soundCountChanged();
    } else {
        showNothing();
    }
}

/// Used while the editor is inactive: showing a sound keeps a device open.
void SoundEditorPrivate::showNothing()
{
    sound = nullptr;
    showFacts(nullptr);
    emit enabled(false);
    editor->soundChanged(nullptr);
}

int SoundEditorPrivate::current() const
{
    return sounds ? sounds->currentIndex : -1;
}

/// Sets slider and row. The row is set explicitly, because a slider with that value
/// emits nothing.
void SoundEditorPrivate::show(int row)
{
    {
        const QScopedValueRollback<int> guard(inhibit, inhibit + 1);
        emit setSelPos(row);
    }
    selPosChanged(row);
}

void SoundEditorPrivate::updateRange()
{
    {
        const QScopedValueRollback<int> guard(inhibit, inhibit + 1);
        if (auto* bar = qobject_cast<QSlider*>(slider)) {
            bar->setRange(0, qMax(count() - 1, 0));
        }
        if (sounds && (current() >= count() || current() < 0)) {
            sounds->setCurrent(current() < 0 ? 0 : qMax(count() - 1, 0));
        }
        emit setSelPos(qMax(current(), 0));
    }
    emit enabled(current() >= 0 && current() < count());
    selPosChanged(current());
}

/// Ends a drag with a release far outside the slider, where it chooses no value.
void SoundEditorPrivate::endSliderDrag()
{
    if (slider) {
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(-10000, -10000), Qt::LeftButton,
                            Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(slider, &release);
    }
}

void SoundEditorPrivate::selPosChanged(int row)
{
    if (workspace) {
        workspace->stop();
    }
    if (inhibit > 0) {
        endSliderDrag();
        return;
    }
    const QScopedValueRollback<int> guard(inhibit, inhibit + 1);
    if (sounds) {
        sounds->setCurrent(row);
    }
    sound = row >= 0 && row < count() ? sounds->sound(row) : nullptr;
    info = sound ? sound->sampleInfo() : SampleInfo();
    showFacts(sound);
    editor->soundChanged(sound);
    // Queued: the list may be in the middle of the move that has called this.
    QMetaObject::invokeMethod(this, &SoundEditorPrivate::selectInList, Qt::QueuedConnection);
    updatePart();
}

void SoundEditorPrivate::showFacts(Sound* now)
{
    if (now) {
        emit setPosText(QStringLiteral("%1 / %2").arg(QString::number(current() + 1),
                                                      QString::number(count())));
        emit setInfoText(infoText(info));
    } else {
        emit setPosText(QStringLiteral("0 / 0"));
        emit setInfoText(SoundEditor::tr("Channels: ---\nSample rate: ---\nBits per sample: ---\n"
                                         "Duration: ---\nTick count: ---"));
    }
}

/// The list was changed elsewhere: the current sound may have moved or be gone.
void SoundEditorPrivate::listChanged()
{
    if (inhibit > 0 || isBusy || !sounds) {
        return;
    }
    if (!editor->isActive()) {
        sound = nullptr;
        return;
    }
    for (int row = 0; sound && row < count(); ++row) {
        if (sounds->sound(row) == sound) {
            sounds->setCurrent(row);
            break;
        }
    }
    editor->soundCountChanged();
}

void SoundEditorPrivate::next()
{
    if (current() + 1 < count()) {
        show(current() + 1);
    }
}

void SoundEditorPrivate::previous()
{
    if (current() > 0) {
        show(current() - 1);
    }
}

OrganizerEditor* SoundEditorPrivate::organizer() const
{
    return qobject_cast<OrganizerEditor*>(host->extraEditor(OrganizerPanel));
}

/// Keeps a multiple selection that has the current sound as its current row.
void SoundEditorPrivate::selectInList()
{
    OrganizerEditor* list = editor->isActive() ? organizer() : nullptr;
    if (list && list->object() == sounds && list->currentRow() != current()) {
        list->setCurrentRow(current());
    }
}

/// Shows the sounds in the organizer while the editor is active.
void SoundEditorPrivate::lendList(bool isLent)
{
    OrganizerEditor* list = organizer();
    if (!list) {
        return;
    }
    list->disconnect(this);
    if (isLent) {
        const QScopedValueRollback<int> guard(inhibit, inhibit + 1);
        list->setObject(sounds);
        if (host->option(QStringLiteral("show_organizer")).toBool()) {
            host->showExtraEditor(list);
        }
        connect(list, &OrganizerEditor::currentRowChanged, this, [this, list](int row) {
            const bool isOurs = sounds && list->object() == sounds;
            if (isOurs && inhibit == 0 && row >= 0 && row != current()) {
                show(row);
            }
        });
    } else if (list->object() && list->object() == sounds) {
        list->setObject(nullptr);
    }
}

/// The rows whose identifier matches a text, ascending.
QVector<int> SoundEditorPrivate::matches(const QString& text, unsigned flags,
                                         QRegularExpression* pattern) const
{
    pattern->setPattern(text);
    const QRegExp wildcard(text, Qt::CaseSensitive, QRegExp::Wildcard);
    QVector<int> found;
    for (int row = 0; row < count(); ++row) {
        const QString id = sounds->sound(row)->property(QStringLiteral("Identifier")).toString();
        if (flags & FindRegularExpression ? pattern->isValid() && pattern->match(id).hasMatch()
                                          : wildcard.exactMatch(id)) {
            found.append(row);
        }
    }
    return found;
}

/// The match nearest to the current row in search direction; with `FindWrap` wraps
/// around. Negative for none.
int SoundEditorPrivate::firstMatch(const QVector<int>& found, unsigned flags) const
{
    if (found.isEmpty()) {
        return -1;
    }
    const bool wraps = flags & FindWrap;
    if (flags & FindBackward) {
        const auto next = std::lower_bound(found.begin(), found.end(), current());
        return next != found.begin() ? *(next - 1) : wraps ? found.last() : -1;
    }
    const auto next = std::upper_bound(found.begin(), found.end(), current());
    return next != found.end() ? *next : wraps ? found.first() : -1;
}

/// One undo step. Changes nothing if one of the sounds cannot have its new identifier.
void SoundEditorPrivate::rename(const QVector<int>& rows,
                                const std::function<QString(const QString&)>& newName)
{
    const QString key = QStringLiteral("Identifier");
    const QString title = SoundEditor::tr("Replace identifiers");
    QStringList names;
    for (const int row : rows) {
        const QString old = sounds->sound(row)->property(key).toString();
        names.append(newName(old));
        if (!sounds->canName(names.last())) {
            Dialogs::instance()->warning(
                title, SoundEditor::tr("Sound %1 would be called '%2', which is no identifier that "
                                       "a sound can have. Nothing is replaced. Write one like "
                                       "those in the list.")
                           .arg(old, names.last()));
            return;
        }
    }
    sounds->beginChange(title);
    for (int i = 0; i < rows.size(); ++i) {
        sounds->sound(rows[i])->setProperty(key, names[i]);
    }
    sounds->endChange();
}

void SoundEditorPrivate::play(bool)
{
    if (inhibit > 0 || !workspace) {
        return;
    }
    if (!editor->isActive()) {
        host->activateEditor(editor);
    }
    workspace->play(false);
    const QScopedValueRollback<int> guard(inhibit, inhibit + 1);
    if (playAction) {
        playAction->setChecked(workspace->currentState() == SoundSample::PlayingState);
    }
}

/// Playback continues; only what happens at its end changes.
void SoundEditorPrivate::playLoop(bool isOn)
{
    if (inhibit > 0 || !workspace) {
        return;
    }
    if (!editor->isActive()) {
        host->activateEditor(editor);
    }
    const SoundSample::State state = workspace->currentState();
    if (state == SoundSample::PlayingState || state == SoundSample::LoopingState) {
        workspace->setLooping(isOn);
    } else {
        workspace->play(true);
    }
    const QScopedValueRollback<int> guard(inhibit, inhibit + 1);
    if (playLoopAction) {
        playLoopAction->setChecked(workspace->currentState() == SoundSample::LoopingState);
    }
}

void SoundEditorPrivate::stop(bool)
{
    if (inhibit > 0 || !workspace) {
        return;
    }
    workspace->stop();
    const QScopedValueRollback<int> guard(inhibit, inhibit + 1);
    if (stopAction) {
        stopAction->setChecked(workspace->currentState() == SoundSample::StoppedState);
    }
}

void SoundEditorPrivate::stateChanged(SoundSample::State state)
{
    const QScopedValueRollback<int> guard(inhibit, inhibit + 1);
    const std::pair<QAction*, SoundSample::State> checks[] = {
        {playAction, SoundSample::PlayingState},
        {playLoopAction, SoundSample::LoopingState},
        {stopAction, SoundSample::StoppedState}};
    for (const auto& check : checks) {
        if (check.first) {
            check.first->setChecked(state == check.second);
        }
    }
}

void SoundEditorPrivate::updatePart()
{
    const AudioSampleWidget* widget = workspace ? waveform() : nullptr;
    emit partEnabled(sound && widget && !widget->selection().isEmpty());
}

}  // namespace Zorv
