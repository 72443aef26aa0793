#include "operations/fixes/fix.h"

#include "family/assets/familypalette.h"
#include "family/assets/newsprites.h"
#include "family/assets/palettelist.h"
#include "family/assets/soundfile.h"
#include "family/assets/spritecollection.h"
#include "family/familydocument.h"
#include "operations/create/create.h"
#include "operations/create/mannequin.h"

#include <zorv/core/safefile.h>

#include <QTextCursor>

namespace Operations {

namespace {

constexpr int SilentRate = 22050;
constexpr int SilentFrames = SilentRate / 10;

/// The first palette of a sprite file as a palette file; empty if there is none.
QByteArray firstPalette(const QString& spriteFile)
{
    QString error;
    QByteArray bytes;
    Family::SpriteCollection* sprites =
        spriteFile.isEmpty() ? nullptr : Family::openSprites(spriteFile, &error);
    if (sprites && !sprites->palettes()->items().isEmpty()) {
        for (const Zorv::RGBA& colour : sprites->palettes()->items().first()->state.colors) {
            bytes.append(char(colour.r)).append(char(colour.g)).append(char(colour.b));
        }
    }
    if (sprites) {
        sprites->release();
    }
    return bytes;
}

Zorv::SoundSample silence()
{
    Zorv::SoundSample sample;
    sample.channels = 1;
    sample.bits = 16;
    sample.sampleRate = SilentRate;
    sample.frames = SilentFrames;
    sample.data = QByteArray(SilentFrames * 2, '\0');
    return sample;
}

}  // namespace

QString changed(const QString& text, const QVector<TextChange>& changes)
{
    QString result = text;
    for (int i = changes.size() - 1; i >= 0; --i) {
        result.replace(changes.at(i).position, changes.at(i).length, changes.at(i).text);
    }
    return result;
}

bool applyText(const Fix& fix, Family::FamilyDocument* document)
{
    if (document->text() != fix.before) {
        return false;
    }
    document->beginChange(fix.title);
    for (int i = fix.changes.size() - 1; i >= 0; --i) {
        const TextChange& change = fix.changes.at(i);
        QTextCursor cursor(document);
        cursor.setPosition(change.position);
        cursor.setPosition(change.position + change.length, QTextCursor::KeepAnchor);
        document->replaceSelection(change.text, cursor);
    }
    document->endChange();
    return true;
}

bool makeFile(const Fix& fix, QString* error)
{
    const bool isPalette = fix.path.endsWith(QLatin1String(".act"), Qt::CaseInsensitive);
    const QByteArray colours = isPalette ? firstPalette(fix.palettes) : QByteArray();
    if (!colours.isEmpty()) {
        return Zorv::SafeFile::save(fix.path, colours, error, Zorv::SafeFile::KeepsExisting);
    }
    *error = createFile(fix.path).error;
    return error->isEmpty();
}

bool addPlaceholder(Family::AssetId id, Family::SpriteCollection* sprites)
{
    if (sprites->find(0, id.text()) >= 0) {
        return false;
    }
    const PlacedDrawing drawing = drawMannequin(id);
    return sprites->insertSprite(int(sprites->count()) - 1, id, drawing.axis, drawing.image);
}

bool addSilence(Family::AssetId id, Family::SoundFile* sounds)
{
    return sounds->find(0, id.text()) < 0 &&
           sounds->add(int(sounds->count()) - 1, id.text(), silence());
}

}  // namespace Operations
