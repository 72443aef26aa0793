#include "media/tools/savegif.h"

#include "media/tools/gifpacker_p.h"
#include "media/tools/gifpicture_p.h"
#include "media/tools/gifstep_p.h"
#include "media/tools/gifwriter_p.h"

#include <QIODevice>

namespace Zorv {

namespace {

void writeFrame(GIFWriter& writer, GIFPacker& packer, const GIFPicture& picture,
                const GIFStep& step, int delay)
{
    GIFImage::SubImage frame;
    frame.left = step.rect.left();
    frame.top = step.rect.top();
    frame.transparent = picture.transparent;
    frame.delay = delay;
    frame.disposal = step.disposal;
    writer.beginFrame(frame, step.rect.size(), picture.colors);
    writer.putPacked(packer.pack(picture.pixels, picture.bits, picture.transparent));
}

bool writeAnimation(QIODevice* device, const GIFAnimation& animation, int loops)
{
    const GIFTable global = animation.globalTable();
    GIFWriter writer(device);
    GIFPacker packer;
    writer.begin(animation.size(), paddedColors(global.colors(), 0), qMax(0, global.transparent()),
                 loops);

    GIFComposite base;
    GIFComposite shown = animation.composite(0);
    QRect rect = gifRect(changeOf(base, shown), shown);
    for (int i = 0; i < animation.count(); ++i) {
        GIFStep step{GIFImage::Keep, rect, {}, {}};
        GIFComposite next;
        if (i + 1 < animation.count()) {
            next = animation.composite(i + 1);
            step = chooseStep(base, rect, shown, next);
        }
        writeFrame(writer, packer, makePicture(base, shown, step.rect, global, animation), step,
                   animation.delay(i));
        base = step.base;
        shown = next;
        rect = step.nextRect;
    }
    return writer.finish();
}

}  // namespace

bool saveGIF(QIODevice* device, const QVector<GIFFrame>& frames, const GIFOptions& options)
{
    const GIFAnimation animation(frames, options.background);
    return animation.isValid() && device->isWritable() &&
           writeAnimation(device, animation, qMin(options.loops, 65535));
}

}  // namespace Zorv
