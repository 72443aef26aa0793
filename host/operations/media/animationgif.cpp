#include "operations/media/animationgif.h"

#include "family/nodes/framenode.h"
#include "family/stage/framecomposer.h"

#include <zorv/code/codedoc/animationcode.h>
#include <zorv/media/tools/savegif.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace Operations {

using Family::FrameComposer;
using Family::FrameNode;

namespace {

// All pictures together, while they wait to be written.
const qint64 MaxBytes = qint64(1) << 30;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::AnimationGif)
};

/// The frames of a GIF.
class GifFrames
{
public:
    explicit GifFrames(FrameComposer* composer) : m_composer(composer) {}

    /// Adds a frame; frames without a duration are skipped. False, with `error`, if it cannot be
    /// drawn.
    bool add(const FrameNode& node, QString* error)
    {
        const int delay = node.data().delay;
        if (delay == 0 || m_stays) {
            return true;
        }
        const QRect area = m_composer->bounds(node, error);
        m_canvas |= area;
        if (!error->isEmpty() || !hasRoom(area, error)) {
            return false;
        }
        const QImage image =
            area.isEmpty() ? QImage() : m_composer->composeIndexed(node, area, error);
        m_bytes += image.sizeInBytes();
        m_frames.append({image, area.topLeft(), qMax(delay, 1)});
        m_stays = delay < 0;
        return error->isEmpty();
    }

    QByteArray write(QString* error) const
    {
        Zorv::GIFOptions options;
        options.loops = m_stays ? -1 : 0;
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        if (m_canvas.isEmpty()) {
            *error = Text::tr("The animation has no frame to show.");
        } else if (!Zorv::saveGIF(&buffer, m_frames, options)) {
            *error = Text::tr("The animation is larger than a GIF file can be, 65535 by 65535.");
        }
        return error->isEmpty() ? bytes : QByteArray();
    }

private:
    bool hasRoom(const QRect& area, QString* error) const
    {
        if (double(m_canvas.width()) * m_canvas.height() > double(FrameComposer::MaxPixels)) {
            *error = Text::tr("The frames are too far from each other for one picture.");
        } else if (m_bytes + qint64(area.width()) * area.height() > MaxBytes) {
            *error = Text::tr("The frames together are too large for one file. Choose a smaller "
                              "zoom.");
        }
        return error->isEmpty();
    }

    FrameComposer* m_composer;
    QVector<Zorv::GIFFrame> m_frames;
    QRect m_canvas;
    qint64 m_bytes = 0;
    bool m_stays = false;
};

}  // namespace

QByteArray animationGif(const Zorv::AnimationCode& animation, FrameComposer* composer,
                        QString* error)
{
    GifFrames gif(composer);
    const QList<Zorv::FrameCode*> frames = animation.frames();
    for (const Zorv::FrameCode* frame : frames) {
        if (!gif.add(*static_cast<const FrameNode*>(frame), error)) {
            return {};
        }
    }
    return gif.write(error);
}

QString spritesBeside(const QString& codeFile, QString* error)
{
    const QDir folder = QFileInfo(codeFile).dir();
    const QStringList names =
        folder.entryList({QStringLiteral("*.sprites")}, QDir::Files, QDir::Name);
    if (names.size() != 1) {
        *error = names.isEmpty()
                     ? Text::tr("There is no sprite file beside '%1'. Name one with '--sprites'.")
                           .arg(codeFile)
                     : Text::tr("There are several sprite files beside '%1': %2. Name one "
                                "with '--sprites'.")
                           .arg(codeFile, names.join(QLatin1String(", ")));
        return {};
    }
    return folder.filePath(names.first());
}

}  // namespace Operations
