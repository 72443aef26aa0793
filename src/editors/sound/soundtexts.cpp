#include "editors/sound/soundtexts_p.h"

namespace Zorv {

namespace {

/// In the order of `SoundTexts::Id`.
const TextTable::Row rows[SoundTexts::End - SoundTexts::First] = {
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

SoundTexts::SoundTexts() : TextTable("Zorv::SoundTexts", First, rows) {}

SoundTexts* SoundTexts::instance()
{
    static SoundTexts texts;
    return &texts;
}

}  // namespace Zorv
