#pragma once

#include "editors/framework/workspace.h"
#include "media/soundsample.h"
#include "zorv_export.h"

#include <functional>
#include <memory>

namespace Zorv {

class AudioSampleWidget;
class SoundWorkspacePrivate;

/// The workspace in which a sound is seen and heard: an `AudioSampleWidget`.
class ZORV_EXPORT SoundWorkspace : public Workspace
{
    Q_OBJECT

public:
    explicit SoundWorkspace(QObject* parent = nullptr);
    ~SoundWorkspace() override;

    /// "sound".
    QString name() const override;

    /// A host that does not put it into a window leaves it to the workspace.
    QWidget* widget() const override;

    /// The same; null once a window that had it is gone.
    AudioSampleWidget* sampleWidget() const;

    /// @name Of the widget, see there
    /// @{
    void setSound(const SoundSample& sample);
    void setSound(const SampleInfo& info, const std::function<QByteArray()>& reader);
    void play(bool loop);
    void stop();
    void setLooping(bool isLooping);
    SoundSample::State currentState() const;
    /// @}

    void retranslate() override;

    /// All of the sound is seen, or less of it, or more.
    void zoomActual() override;
    void zoomIn() override;
    void zoomOut() override;

signals:
    void stateChanged(Zorv::SoundSample::State state);

private:
    std::unique_ptr<SoundWorkspacePrivate> d;
};

}  // namespace Zorv
