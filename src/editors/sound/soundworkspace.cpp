#include "editors/sound/soundworkspace.h"

#include "editors/sound/audiosamplewidget.h"

#include <QPointer>

namespace Zorv {

class SoundWorkspacePrivate
{
public:
    ~SoundWorkspacePrivate()
    {
        if (widget && !widget->parentWidget()) {
            delete widget;
        }
    }

    QPointer<AudioSampleWidget> widget = new AudioSampleWidget;
};

SoundWorkspace::SoundWorkspace(QObject* parent)
    : Workspace(parent), d(std::make_unique<SoundWorkspacePrivate>())
{
    connect(d->widget, &AudioSampleWidget::stateChanged, this, &SoundWorkspace::stateChanged);
    retranslate();
}

SoundWorkspace::~SoundWorkspace() = default;

QString SoundWorkspace::name() const
{
    return QStringLiteral("sound");
}

QWidget* SoundWorkspace::widget() const
{
    return d->widget;
}

AudioSampleWidget* SoundWorkspace::sampleWidget() const
{
    return d->widget;
}

void SoundWorkspace::setSound(const SoundSample& sample)
{
    if (d->widget) {
        d->widget->setSample(sample);
    }
}

void SoundWorkspace::setSound(const SampleInfo& info, const std::function<QByteArray()>& reader)
{
    if (d->widget) {
        d->widget->setSample(info, reader);
    }
}

void SoundWorkspace::play(bool loop)
{
    if (d->widget) {
        d->widget->play(loop);
    }
}

void SoundWorkspace::stop()
{
    if (d->widget) {
        d->widget->stop();
    }
}

void SoundWorkspace::setLooping(bool isLooping)
{
    if (d->widget) {
        d->widget->setLooping(isLooping);
    }
}

SoundSample::State SoundWorkspace::currentState() const
{
    return d->widget ? d->widget->currentState() : SoundSample::StoppedState;
}

void SoundWorkspace::retranslate()
{
    if (d->widget) {
        d->widget->setAccessibleName(tr("Waveform"));
    }
}

void SoundWorkspace::zoomActual()
{
    if (d->widget) {
        d->widget->zoomActual();
    }
}

void SoundWorkspace::zoomIn()
{
    if (d->widget) {
        d->widget->zoomIn();
    }
}

void SoundWorkspace::zoomOut()
{
    if (d->widget) {
        d->widget->zoomOut();
    }
}

}  // namespace Zorv
