#pragma once

#include "editors/framework/workspace.h"
#include "media/soundsample.h"
#include "zorv_export.h"

#include <functional>
#include <memory>

namespace Zorv {

class AudioSampleWidget;
class SoundWorkspacePrivate;

/// The workspace that shows and plays a sound, with an `AudioSampleWidget`.
class ZORV_EXPORT SoundWorkspace : public Workspace
{
    Q_OBJECT

public:
    explicit SoundWorkspace(QObject* parent = nullptr);
    ~SoundWorkspace() override;

    /// "sound".
    QString name() const override;

    /// The workspace owns the widget unless the host puts it into a window.
    QWidget* widget() const override;

    /// The same; null once it was deleted with its window.
    AudioSampleWidget* sampleWidget() const;

    /// @name Forwarded to the widget; see `AudioSampleWidget`
    /// @{
    void setSound(const SoundSample& sample);
    void setSound(const SampleInfo& info, const std::function<QByteArray()>& reader);
    void play(bool loop);
    void stop();
    void setLooping(bool isLooping);
    SoundSample::State currentState() const;
    /// @}

    void retranslate() override;

    /// Shows the whole sound, less of it, or more.
    void zoomActual() override;
    void zoomIn() override;
    void zoomOut() override;

signals:
    void stateChanged(Zorv::SoundSample::State state);

private:
    std::unique_ptr<SoundWorkspacePrivate> d;
};

}  // namespace Zorv
