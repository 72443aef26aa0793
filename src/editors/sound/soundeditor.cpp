#include "editors/sound/soundeditor.h"

#include "cache/sound.h"
#include "core/dialogs/dialogs.h"
#include "core/fileid.h"
#include "core/interface.h"
#include "core/project.h"
#include "editors/framework/findflag.h"
#include "editors/sound/audiosamplewidget.h"
#include "editors/sound/soundeditor_p.h"
#include "text/zorvtranslator.h"

#include <QAction>
#include <QRegularExpression>

namespace Zorv {

namespace {

constexpr unsigned EditorText = 145;
constexpr unsigned NotFoundTitle = 8;

Sounds* soundsOf(const Project* project)
{
    return project ? dynamic_cast<Sounds*>(project->file(FileID::Sounds)) : nullptr;
}

}  // namespace

SoundEditorPrivate::SoundEditorPrivate(SoundEditor* owner, SoundWorkspace* shown)
    : editor(owner), host(Interface::instance()), workspace(shown)
{
    connect(this, &SoundEditorPrivate::enabled, owner, &SoundEditor::enabled);
    if (AudioSampleWidget* widget = waveform()) {
        connect(widget, &AudioSampleWidget::selectionChanged, this,
                &SoundEditorPrivate::updatePart);
    }
}

SoundEditorPrivate::~SoundEditorPrivate()
{
    if (sounds) {
        sounds->disconnect(this);
    }
}

SoundEditor::SoundEditor(SoundWorkspace* workspace, QObject* parent)
    : FileEditor(parent), d(std::make_unique<SoundEditorPrivate>(this, workspace))
{
    d->editorAction = host()->createEditorAction(QStringLiteral("editor_snd"),
                                                 ZorvTranslator::instance(), EditorText);
    if (!d->editorAction) {
        d->editorAction = new QAction(this);
    }
    d->editorAction->setVisible(false);
    d->publish();
    d->showFacts(nullptr);
    emit d->enabled(false);
    d->updatePart();
}

SoundEditor::~SoundEditor() = default;

QAction* SoundEditor::action() const
{
    return d->editorAction;
}

QString SoundEditor::name() const
{
    return QStringLiteral("snd");
}

int SoundEditor::canEditFileType() const
{
    return file() && file()->fileName().isEmpty() ? 1 : 0;
}

QStringList SoundEditor::areas() const
{
    return {QStringLiteral("sounds")};
}

Workspace* SoundEditor::workspace() const
{
    return d->workspace;
}

void SoundEditor::activate()
{
    FileEditor::activate();
    if (d->sounds) {
        connect(d->sounds, &Sounds::changed, this, &Editor::contentsChanged, Qt::UniqueConnection);
    }
    d->lendList(true);
    host()->showWorkspace(d->workspace);
    connect(d->workspace, &SoundWorkspace::stateChanged, d.get(), &SoundEditorPrivate::stateChanged,
            Qt::UniqueConnection);
    soundCountChanged();
}

void SoundEditor::deactivate()
{
    FileEditor::deactivate();
    if (d->sounds) {
        disconnect(d->sounds, &Sounds::changed, this, &Editor::contentsChanged);
    }
    if (d->workspace) {
        d->workspace->stop();
        disconnect(d->workspace, nullptr, d.get(), nullptr);
        d->stateChanged(SoundSample::StoppedState);
    }
    d->lendList(false);
}

void SoundEditor::retranslate()
{
    d->showFacts(d->sound);
}

void SoundEditor::setProject(Project* project)
{
    d->take(soundsOf(project));
}

void SoundEditor::projectAboutToClose(Project* project)
{
    if (d->sounds && d->sounds->project() == project) {
        d->take(nullptr);
    }
}

void SoundEditor::navigateTo(const QString&, unsigned a, unsigned, unsigned)
{
    if (a < unsigned(d->count())) {
        d->show(int(a));
    }
}

void SoundEditor::undo()
{
    if (d->sounds && !d->isBusy) {
        d->sounds->undo();
        soundCountChanged();
    }
}

void SoundEditor::redo()
{
    if (d->sounds && !d->isBusy) {
        d->sounds->redo();
        soundCountChanged();
    }
}

void SoundEditor::find(const QString& text, unsigned flags)
{
    QRegularExpression pattern;
    const int found = d->firstMatch(d->matches(text, flags, &pattern), flags);
    if (found >= 0) {
        d->show(found);
    } else {
        Dialogs::instance()->information(host()->text(NotFoundTitle), tr("No sound found!"));
    }
}

void SoundEditor::replace(const QString& text, const QString& with, unsigned flags, bool all)
{
    QRegularExpression pattern;
    QVector<int> found = d->matches(text, flags, &pattern);
    if (!all || found.isEmpty()) {
        const int first = d->firstMatch(found, flags);
        if (first < 0) {
            Dialogs::instance()->information(host()->text(NotFoundTitle), tr("No sound found!"));
            return;
        }
        found = {first};
    }
    if (!d->begin()) {
        return;
    }
    d->rename(found, [&](const QString& identifier) {
        return flags & FindRegularExpression ? QString(identifier).replace(pattern, with) : with;
    });
    d->show(found.first());
}

void SoundEditor::selectAll()
{
    if (AudioSampleWidget* widget = d->waveform()) {
        widget->setSelection(wholeSound(widget->sample()));
    }
}

ProjectFile* SoundEditor::file() const
{
    return d->sounds;
}

void SoundEditor::cut() {}

void SoundEditor::copy() {}

void SoundEditor::paste() {}

Sounds* SoundEditor::sounds() const
{
    return d->sounds;
}

Sound* SoundEditor::sound() const
{
    return d->sounds ? d->sound : nullptr;
}

void SoundEditor::soundChanged(Sound* sound)
{
    if (d->workspace && sound) {
        d->workspace->setSound(sound->sampleInfo(), sound->sampleReader());
    } else if (d->workspace) {
        d->workspace->setSound({});
    }
}

void SoundEditor::soundCountChanged()
{
    d->updateRange();
}

bool SoundEditor::mayDeleteSound()
{
    return true;
}

bool SoundEditor::mayReadSounds(const QStringList&)
{
    return true;
}

void SoundEditor::refreshSound()
{
    const int row = d->current();
    {
        const QScopedValueRollback<int> guard(d->inhibit, d->inhibit + 1);
        emit d->setSelPos(row);
        d->selPosChanged(row);
    }
    d->selPosChanged(row);
}

}  // namespace Zorv
