#pragma once

#include "editors/sound/soundoutput.h"
#include "media/soundsample.h"

#include <QIODevice>
#include <QPointer>

/// A sound device that does what a test says.
class PlannedOutput : public Zorv::SoundOutput
{
public:
    PlannedOutput(const Zorv::SampleInfo& of, QObject* parent) : SoundOutput(parent), form(of) {}

    void start(QIODevice* from) override
    {
        stream = from;
        become(fails ? Stopped : Active);
    }
    void stop() override { become(Stopped); }
    void suspend() override { become(Suspended); }
    void resume() override { become(Active); }
    State state() const override { return now; }
    bool hasFailed() const override { return fails; }

    void become(State next)
    {
        if (now != next) {
            now = next;
            emit stateChanged();
        }
    }

    Zorv::SampleInfo form;
    QPointer<QIODevice> stream;
    State now = Stopped;
    bool fails = false;
};

/// Sound devices of which one form or any is played. It installs itself and takes itself away.
class PlannedSound : public Zorv::SoundSystem
{
public:
    PlannedSound() { setInstance(this); }
    ~PlannedSound() override { setInstance(nullptr); }

    Zorv::SampleInfo playableForm(const Zorv::SampleInfo& form, QString* why) override
    {
        *why = problem;
        return isGone || !problem.isEmpty() ? Zorv::SampleInfo() : only.channels > 0 ? only : form;
    }
    Zorv::SoundOutput* open(const Zorv::SampleInfo& form, QObject* parent) override
    {
        ++opened;
        output = new PlannedOutput(form, parent);
        return output;
    }

    Zorv::SampleInfo only;  ///< without channels: any form
    bool isGone = false;
    QString problem;  ///< why no form is played
    int opened = 0;
    QPointer<PlannedOutput> output;  ///< the last one
};
