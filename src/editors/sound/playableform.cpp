#include "editors/sound/playableform_p.h"

#include <QVector>

namespace Zorv {

namespace {

constexpr quint16 FloatBits = 32;

QVector<PlayableForm> samplesNear(const SampleInfo& wanted)
{
    PlayableForm form{wanted};
    QVector<PlayableForm> forms{form};
    const quint16 all[] = {8, 16, 24, 32};
    for (const quint16 bits : all) {
        form.info.bits = bits;
        if (bits > wanted.bits) {
            forms.append(form);
        }
    }
    form.info.bits = FloatBits;
    forms.append({form.info, true});
    for (auto bits = std::rbegin(all); bits != std::rend(all); ++bits) {
        form.info.bits = *bits;
        if (*bits < wanted.bits) {
            forms.append(form);
        }
    }
    return forms;
}

}  // namespace

PlayableForm playableFormOf(const SampleInfo& wanted, const SampleInfo& offered,
                            const std::function<bool(const PlayableForm&)>& takes)
{
    const std::pair<qint32, quint16> shapes[] = {{wanted.sampleRate, wanted.channels},
                                                 {wanted.sampleRate, offered.channels},
                                                 {offered.sampleRate, wanted.channels},
                                                 {offered.sampleRate, offered.channels},
                                                 {48000, 2},
                                                 {44100, 2}};
    const QVector<PlayableForm> samples = samplesNear(wanted);
    for (const auto& [rate, channels] : shapes) {
        for (PlayableForm form : samples) {
            form.info.sampleRate = rate;
            form.info.channels = channels;
            if (rate > 0 && channels > 0 && takes(form)) {
                return form;
            }
        }
    }
    return {};
}

}  // namespace Zorv
