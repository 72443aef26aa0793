// A GIF of an animation of 200 frames: the time of each stage, and of the whole, from the files of
// a character to the GIF, against ImageMagick's `convert` making it of the same frames as PNG
// files. Both are processes of their own.

#include "family/assets/newsprites.h"
#include "family/assets/spritecollection.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/framenode.h"
#include "family/stage/framecomposer.h"
#include "operations/hostinterface.h"
#include "operations/media/animationgif.h"
#include "operations/media/animationrender.h"
#include "operations/media/openanimation.h"
#include "support/bench.h"

#include <zorv/core/filesystemarchive.h>
#include <zorv/media/tools/savegif.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtMath>
#include <functional>
#include <sys/resource.h>

namespace {

const int Frames = 200;
const QSize SpriteSize(160, 200);

/// A figure of flat colours with an outline, whose limbs move from one to the next.
QImage drawSprite(int number)
{
    QImage image(SpriteSize, QImage::Format_Indexed8);
    QVector<QRgb> table{0};
    for (int i = 1; i < 256; ++i) {
        table.append(qRgb(i * 37 % 256, i * 91 % 256, i * 53 % 256));
    }
    image.setColorTable(table);
    image.fill(0);
    const double phase = number * 2 * M_PI / 25;
    for (int y = 0; y < image.height(); ++y) {
        uchar* const line = image.scanLine(y);
        for (int limb = 0; limb < 5; ++limb) {
            const int middle = 80 + int(40 * std::sin(phase + limb * 1.3 + y * 0.012));
            const int half = 6 + limb * 2 + int(5 * std::sin(y * 0.05 + limb + number % 7));
            for (int x = middle - half; x <= middle + half; ++x) {
                const bool isEdge = x == middle - half || x == middle + half;
                line[x] =
                    uchar(isEdge ? 1 : 2 + limb * 6 + (x - middle + half) * 5 / (2 * half + 1));
            }
        }
    }
    return image;
}

bool writeSprites(const QString& fileName)
{
    Family::SpriteCollection* sprites = Family::newSprites(fileName);
    sprites->beginChange({});
    for (int i = 0; i < Frames; ++i) {
        sprites->insertSprite(i - 1, {1, quint16(i)}, QPoint(80, 199), drawSprite(i));
    }
    sprites->endChange();
    const bool isWritten = sprites->toFile(*Zorv::FileSystemArchive::instance(), fileName, false);
    sprites->release();
    return isWritten;
}

/// Every fourth frame is in a pose of its own.
bool writeAnimation(const QString& fileName)
{
    const char* const poses[] = {"", "",         "", "flip h", "", "",
                                 "", "angle 20", "", "",       "", "scale 1.1,0.9"};
    QByteArray text("zorv 1\r\nanimation 1\r\n");
    for (int i = 0; i < Frames; ++i) {
        text += QByteArray("frame 1,") + QByteArray::number(i) + "  offset " +
                QByteArray::number(i % 20) + ",0  delay 6  " + poses[i % 12] + "\r\n";
    }
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

bool renderGif(const QString& fileName, const QString& target)
{
    const Operations::OpenAnimation opened(fileName, QStringLiteral("1"));
    QString error = opened.errorString();
    QByteArray bytes;
    if (opened) {
        Family::FrameComposer composer(opened.sprites(), Operations::stageStyle());
        bytes = Operations::animationGif(opened.animation(), &composer, &error);
    }
    QFile file(target);
    return error.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// The frames as the benchmark measures them: opened once, drawn as often as asked.
class Stages
{
public:
    explicit Stages(const QString& fileName) : m_opened(fileName, QStringLiteral("1")) {}

    explicit operator bool() const { return bool(m_opened); }

    void forEachFrame(const std::function<void(const Family::FrameNode&)>& work) const
    {
        const QList<Zorv::FrameCode*> frames = m_opened.animation().frames();
        for (const Zorv::FrameCode* frame : frames) {
            work(*static_cast<const Family::FrameNode*>(frame));
        }
    }

    /// For the first time; then the store has them.
    double decode() const
    {
        return Bench::once([this] {
            forEachFrame([this](const Family::FrameNode& frame) {
                m_opened.sprites()
                    ->byId({quint16(frame.spriteGroup()), quint16(frame.spriteNumber())})
                    ->image();
            });
        });
    }

    double compose(QVector<Zorv::GIFFrame>* pictures) const
    {
        Family::FrameComposer composer(m_opened.sprites(), Operations::stageStyle());
        const auto draw = [&] {
            pictures->clear();
            forEachFrame([&](const Family::FrameNode& frame) {
                QString error;
                const QRect area = composer.bounds(frame, &error);
                pictures->append({composer.composeIndexed(frame, area, &error), area.topLeft(), 6});
            });
        };
        draw();
        return Bench::median(5, draw);
    }

    bool writePictures(const QDir& folder) const
    {
        Family::FrameComposer composer(m_opened.sprites(), Operations::stageStyle());
        QString error;
        for (int i = 0; i < Frames; ++i) {
            const QImage image =
                Operations::renderFrame(m_opened.animation(), i, &composer, &error);
            if (!image.save(
                    folder.filePath(QStringLiteral("%1.png").arg(i, 3, 10, QLatin1Char('0'))))) {
                return false;
            }
        }
        return error.isEmpty();
    }

private:
    Operations::OpenAnimation m_opened;
};

struct Times
{
    double whole;
    double processor;  ///< in the program's own code
};

/// Of a process, in milliseconds. Its memory is kept until it ends: giving large blocks back for
/// each picture is what a peer may wait for most of its time.
Times timesOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("MALLOC_MMAP_THRESHOLD_"), QStringLiteral("1073741824"));
    environment.insert(QStringLiteral("MALLOC_TRIM_THRESHOLD_"), QStringLiteral("2147483648"));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const auto processorTime = [] {
        rusage usage;
        getrusage(RUSAGE_CHILDREN, &usage);
        return double(usage.ru_utime.tv_sec) * 1e3 + double(usage.ru_utime.tv_usec) / 1e3;
    };
    const double before = processorTime();
    const double whole = Bench::once([&] {
        process.start(program, arguments);
        process.waitForFinished(-1);
    });
    return {whole, processorTime() - before};
}

/// False if the peer is not there, or one of them fails.
bool compare(const QString& animation, const QDir& folder)
{
    const QString convert =
        QStandardPaths::findExecutable(QStringLiteral("convert"), {QStringLiteral("/usr/bin")});
    const QString own = folder.filePath(QStringLiteral("own.gif"));
    const QString other = folder.filePath(QStringLiteral("other.gif"));
    QStringList arguments{QStringLiteral("-delay"), QStringLiteral("10"),
                          QStringLiteral("-dispose"), QStringLiteral("background")};
    const QStringList names = folder.entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
    for (const QString& name : names) {
        arguments.append(folder.filePath(name));
    }
    arguments += {QStringLiteral("-loop"), QStringLiteral("0"), other};
    const Times ours = timesOf(QCoreApplication::applicationFilePath(), {animation, own});
    const Times theirs = timesOf(convert, arguments);
    Bench::figure("the whole, as a process", ours.whole, "ms");
    Bench::figure("convert", theirs.whole, "ms");
    Bench::figure("the file", double(QFile(own).size()) / 1024, "KiB");
    Bench::figure("that of convert", double(QFile(other).size()) / 1024, "KiB");
    Bench::ratio("a GIF of 200 frames, to convert with their PNG files", ours.whole, theirs.whole,
                 0.3);
    Bench::ratio("the same, time of the processor in the program alone", ours.processor,
                 theirs.processor, 0.3);
    return QFile(own).size() > 0 && QFile(other).size() > 0;
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "minimal");
    const QGuiApplication application(argc, argv);
    Operations::HostInterface host;
    Operations::startHost(&host);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3) {
        return renderGif(arguments[1], arguments[2]) ? 0 : 1;
    }
    const QTemporaryDir place;
    const QDir folder(place.path());
    const QString animation = folder.filePath(QStringLiteral("bench.anim"));
    if (!writeSprites(folder.filePath(QStringLiteral("bench.sprites"))) ||
        !writeAnimation(animation)) {
        std::printf("bench_render: the files could not be written\n");
        return 1;
    }
    QVector<Zorv::GIFFrame> pictures;
    const Stages stages(animation);
    if (!stages || !stages.writePictures(folder)) {
        std::printf("bench_render: the frames could not be drawn\n");
        return 1;
    }
    Bench::figure("200 sprites of 160 by 200, unpacked", stages.decode(), "ms");
    Bench::figure("200 frames, composed", stages.compose(&pictures), "ms");
    Bench::figure("a GIF of them, encoded",
                  Bench::median(5,
                                [&] {
                                    QBuffer buffer;
                                    buffer.open(QIODevice::WriteOnly);
                                    Zorv::saveGIF(&buffer, pictures);
                                }),
                  "ms");
    return compare(animation, folder) ? 0 : 1;
}
