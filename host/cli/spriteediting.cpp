#include "cli/spriteediting.h"

#include "cli/changing.h"
#include "cli/cli.h"
#include "cli/progresshost.h"

namespace Cli {

int editSpriteFile(const QString& fileName, OpenSprites::Kind kind,
                   const std::function<int(Family::SpriteCollection*)>& edit)
{
    ProgressHost host;
    return changeFile(fileName, [&]() -> int {
        const OpenSprites sprites(fileName, kind);
        if (!sprites) {
            return NotDone;
        }
        const int status = edit(sprites.get());
        return status == Fine ? sprites.save(fileName) : status;
    });
}

}  // namespace Cli
