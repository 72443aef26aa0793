// 500 animations with 5,000 sprites of another project, into one without any and into one whose
// sprites have all the numbers: beside reading, hashing and writing the same records, and inserting
// the same text once.

#include "family/assets/pixelstore.h"
#include "family/assets/spritefile.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "operations/media/assetimport.h"
#include "support/bench.h"

#include <zorv/animation/import/animationimport.h>
#include <zorv/cache/crc64.h>
#include <zorv/core/filesystemarchive.h>

#include <QApplication>
#include <QTemporaryDir>
#include <ctime>

using namespace Family;

namespace {

constexpr int Animations = 500;
constexpr int Frames = 10;
constexpr int Boxes = 4;
constexpr int Rounds = 7;

/// Each one is another picture.
QImage picture(int kind)
{
    QImage image(64, 96, QImage::Format_Indexed8);
    image.setColorTable(tableOfColors(greyColors()));
    image.fill(0);
    for (int y = 4; y < 92; ++y) {
        uchar* row = image.scanLine(y);
        for (int x = 10 + (y + kind) % 9; x < 50 - (y * kind) % 7; ++x) {
            row[x] = uchar(1 + ((x ^ y) + kind / 64) % 30);
        }
    }
    for (int bit = 0; bit < 16; ++bit) {
        image.scanLine(0)[bit] = uchar(kind >> bit & 1);
    }
    return image;
}

bool makeSprites(const QString& name, int firstKind)
{
    SpriteFile file;
    for (int i = 0; i < Animations * Frames; ++i) {
        Zorv::Sprite* sprite = file.addSprite();
        sprite->setProperty(QStringLiteral("Identifier"),
                            AssetId{quint16(i / Frames), quint16(i % Frames)}.text());
        sprite->setImage(picture(firstKind + i));
    }
    file.refresh();
    return file.toFile(*Zorv::FileSystemArchive::instance(), name, false);
}

QString animations()
{
    QString text;
    for (int i = 0; i < Animations; ++i) {
        text += QStringLiteral("# attack %1\nanimation a%1 \"Attack %1\"\n").arg(i);
        for (int frame = 0; frame < Frames; ++frame) {
            for (int box = 0; box < Boxes; ++box) {
                text += QStringLiteral("body %1,-80, 20,%2\n").arg(-box - 10).arg(frame);
            }
            text += QStringLiteral("frame %1,%2  offset 2,-3  delay 4\n").arg(i).arg(frame);
        }
        text += QLatin1Char('\n');
    }
    return text;
}

/// Milliseconds of the processor that a call takes: what else the machine does counts less.
template <class Function>
double worked(Function function)
{
    const std::clock_t start = std::clock();
    function();
    return double(std::clock() - start) * 1000 / CLOCKS_PER_SEC;
}

quint64 hashOf(const QByteArray& bytes)
{
    return Zorv::crc64(reinterpret_cast<const uchar*>(bytes.constData()), unsigned(bytes.size()));
}

class Bench500
{
public:
    explicit Bench500(const QString& folder)
        : m_source(folder + QStringLiteral("/source.sprites")),
          m_same(folder + QStringLiteral("/same.sprites")),
          m_out(folder + QStringLiteral("/out.sprites")), m_text(FileKind::Animations),
          m_code(animations())
    {
        m_text.fromString(m_code);
        makeSprites(m_source, 0);
        makeSprites(m_same, Animations * Frames);
    }

    /// The time of an import into a project with a sprite file, and of the peer. The file of the
    /// destination is open and is not written in both, if it has sprites of its own.
    void run(const char* name, bool isEmpty)
    {
        const auto measure = [&] {
            const double own = import(isEmpty);
            return own / peer(isEmpty);
        };
        Bench::ratio(name, Bench::medianOf(Rounds, measure), 1, 1.5);
    }

    double peer(bool writes)
    {
        SpriteFile file;
        FamilyDocument target(FileKind::Animations);
        quint64 sum = 0;
        PixelStore store;
        QVector<PixelRef> taken;
        return worked([&] {
            file.fromFile(*m_disk, m_source, false);
            for (const auto& sprite : file.items()) {
                const PixelData* pixels = sprite->state.pixels.get();
                const QByteArray stream = file.store()->stream(pixels);
                sum += hashOf(stream);
                if (!writes) {
                    taken.append(
                        store.adopt(pixels->format, stream, pixels->pixelCrc, pixels->streamCrc));
                }
            }
            if (writes) {
                file.toFile(*m_disk, m_out, false);
            }
            target.beginChange(QStringLiteral("Insert"));
            QTextCursor cursor(&target);
            cursor.insertText(m_code);
            target.endChange();
        });
    }

    double import(bool writes)
    {
        SpriteFile source;
        SpriteFile destination;
        FamilyDocument target(FileKind::Animations);
        if (!writes) {
            destination.fromFile(*m_disk, m_same, false);
        }
        QVector<Zorv::ImportEntry> entries;
        const FamilyAnimations* list = m_text.animations();
        for (int i = 0; i < list->count(); ++i) {
            entries.append({list->index(i), QStringLiteral("a%1").arg(i)});
        }
        return worked([&] {
            source.fromFile(*m_disk, m_source, false);
            Zorv::AnimationImport import(target.animations(), entries, Zorv::ImportConflict::Skip);
            const Zorv::AssetResult assets =
                Operations::importAssets(&source, &destination, import.sprites(), {});
            const auto result = import.insert(-1, QString(), assets.renumbered);
            if (writes) {
                destination.toFile(*m_disk, m_out, false);
            }
            if (assets.added != Animations * Frames || result.count() != Animations ||
                assets.renumbered.isEmpty() != writes) {
                std::printf("the import is not whole: %d, %d\n", assets.added, result.count());
            }
        });
    }

private:
    QString m_source;
    QString m_same;
    QString m_out;
    FamilyDocument m_text;
    QString m_code;
    Zorv::Archive* m_disk = Zorv::FileSystemArchive::instance();
};

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QTemporaryDir folder;
    Bench500 bench(folder.path());
    Bench::figure("reading, hashing, writing, and one insertion", bench.peer(true), "ms");
    Bench::figure("the import, read and written", bench.import(true), "ms");
    bench.run("import / reading, hashing, writing, and one insertion", true);
    bench.run("import, all renumbered / the same without the file", false);
    return 0;
}
