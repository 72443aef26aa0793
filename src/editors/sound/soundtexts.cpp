#include "editors/sound/soundtexts_p.h"

#include "text/zorvtranslator.h"

namespace Zorv {

namespace {

/// In the order of the numbers.
const struct
{
    const char* label;
    const char* toolTip;
} texts[SoundTexts::End - SoundTexts::First] = {
    {QT_TRANSLATE_NOOP("Zorv::SoundTexts", "Sound:"),
     QT_TRANSLATE_NOOP("Zorv::SoundTexts", "The sound that is shown and played")},
    {QT_TRANSLATE_NOOP("Zorv::SoundTexts", "Trim to selection"),
     QT_TRANSLATE_NOOP("Zorv::SoundTexts", "Keep only the selected part of the sound")},
    {QT_TRANSLATE_NOOP("Zorv::SoundTexts", "Fade in"),
     QT_TRANSLATE_NOOP("Zorv::SoundTexts",
                       "Let the selected part, or all of the sound, begin in silence")},
    {QT_TRANSLATE_NOOP("Zorv::SoundTexts", "Fade out"),
     QT_TRANSLATE_NOOP("Zorv::SoundTexts",
                       "Let the selected part, or all of the sound, end in silence")},
    {QT_TRANSLATE_NOOP("Zorv::SoundTexts", "Normalize"),
     QT_TRANSLATE_NOOP("Zorv::SoundTexts",
                       "Make the selected part, or all of the sound, as loud as it can be")},
    {QT_TRANSLATE_NOOP("Zorv::SoundTexts", "Silence"),
     QT_TRANSLATE_NOOP("Zorv::SoundTexts", "Silence the selected part of the sound")},
};

}  // namespace

Translator* SoundTexts::of(unsigned id)
{
    return id < First ? static_cast<Translator*>(ZorvTranslator::instance()) : instance();
}

SoundTexts* SoundTexts::instance()
{
    static SoundTexts texts;
    return &texts;
}

QString SoundTexts::trText(unsigned int id) const
{
    return id >= First && id < End ? tr(texts[id - First].label) : QString();
}

QString SoundTexts::trToolTip(unsigned int id) const
{
    return id >= First && id < End ? tr(texts[id - First].toolTip) : QString();
}

}  // namespace Zorv
