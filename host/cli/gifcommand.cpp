#include "assets/spritecollection.h"
#include "cli.h"
#include "command.h"
#include "editing.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/nodes/animationnode.h"
#include "family/stage/framecomposer.h"
#include "operations/animationedits.h"
#include "operations/media/animationgif.h"
#include "operations/media/mediaresult.h"
#include "operations/media/outputfiles.h"
#include "operations/media/spriteexport.h"
#include "results.h"
#include "spriteopening.h"

namespace Cli {

namespace {

/// False, with what went wrong in `error` or told already.
bool writeGif(const Family::FamilyDocument* document, const Invocation& invocation, QString* error)
{
    const Family::FamilyAnimations* list = document->animations();
    const int index = Family::findAnimation(list, invocation.operands.at(1), error);
    const QString spriteFile = index < 0 || !invocation.sprites.isNull()
                                   ? invocation.sprites
                                   : Family::spritesBeside(invocation.operands.first(), error);
    Family::OutputRequest request = invocation.output;
    request.place = invocation.operands.at(2);
    Family::OutputFiles outputs;
    Family::MediaResult refusal;
    if (!error->isEmpty() ||
        !outputs.plan({invocation.operands.at(1)}, request, QByteArrayLiteral("GIF"), &refusal)) {
        tell(refusal);
        return false;
    }
    const OpenSprites sprites(spriteFile);
    Family::PaletteColors colors;
    const bool isRecolored = !invocation.palette.isNull();
    if (!sprites ||
        (isRecolored && !Family::findPalette(*sprites, invocation.palette, &colors, error))) {
        return false;
    }
    Family::FrameComposer composer(sprites.get(), {}, isRecolored ? &colors : nullptr);
    const QByteArray bytes = Family::animationGif(*list->animation(index), &composer, error);
    if (error->isEmpty()) {
        *error = outputs.write(0, bytes);
    }
    return error->isEmpty();
}

}  // namespace

int writeAnimationGif(const Invocation& invocation, Output&)
{
    return readFile(invocation, [&](Family::FamilyDocument* document, QString* error) {
        return writeGif(document, invocation, error);
    });
}

}  // namespace Cli
