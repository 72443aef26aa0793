#include "graphics/glcontext.h"
#include "graphics/resetter.h"
#include "graphics/texture.h"
#include "support/gltest.h"
#include "support/testtable.h"

#include <QImage>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QSignalSpy>

#include <memory>
#include <thread>
#include <vector>

using namespace Zorv;

/// Names of textures: whose they are, and when they go.
class TestTexture : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void keepsWhatItWasMadeOf();
    void comesFromBadData_data();
    void comesFromBadData();
    void keepsAStaleName();
    void givesTheContextBack();
    void diesInAnyThread_data();
    void diesInAnyThread();
    void outlivesItsContext();
    void deletesWhatItIsTold();
};

namespace {

std::vector<RGBA> palette(quint8 red)
{
    return std::vector<RGBA>(256, RGBA{red, 2, 3, 255});
}

QImage indexed(int width, int height)
{
    QImage image(width, height, QImage::Format_Indexed8);
    image.setColorTable(QVector<QRgb>(256, 0));
    image.fill(7);
    return image;
}

bool exists(quint32 id)
{
    // The library's own may have gone, but names are those of all contexts that share.
    QOpenGLContext& shared = *QOpenGLContext::globalShareContext();
    QOffscreenSurface surface;
    surface.create();
    shared.makeCurrent(&surface);
    const bool found = shared.functions()->glIsTexture(id);
    shared.doneCurrent();
    return found;
}

int countOf(const std::vector<quint32>& names)
{
    return int(std::count_if(names.begin(), names.end(), exists));
}

/// A driver may give a name away again that was deleted.
void takeNames(const std::vector<quint32>& names)
{
    context()->makeCurrent(surface());
    for (quint32 id : names) {
        context()->functions()->glBindTexture(GL_TEXTURE_2D, id);
    }
}

using Textures = std::vector<std::unique_ptr<Texture>>;

Textures makeTextures(int count, std::vector<quint32>& names)
{
    Textures textures;
    for (int i = 0; i < count; ++i) {
        textures.push_back(std::make_unique<Texture>(indexed(1 + i % 5, 3)));
        names.push_back(textures.back()->id);
    }
    return textures;
}

/// Each thread lets go of its part.
void releaseFrom(int threads, Textures textures)
{
    std::vector<std::thread> running;
    for (int i = 0; i < threads; ++i) {
        running.emplace_back([&textures, i, threads] {
            for (size_t k = size_t(i); k < textures.size(); k += size_t(threads)) {
                textures[k].reset();
            }
        });
    }
    for (std::thread& thread : running) {
        thread.join();
    }
}

}  // namespace

void TestTexture::init()
{
    QVERIFY(isContextUsable());
}

void TestTexture::keepsWhatItWasMadeOf()
{
    GLint largest = 0;
    context()->makeCurrent(surface());
    context()->functions()->glGetIntegerv(GL_MAX_TEXTURE_SIZE, &largest);
    GlTest::CallCounter counter;
    const Texture wide(indexed(16384, 1));
    const Texture high(QImage(1, 16384, QImage::Format_ARGB32));
    const Texture colors(palette(1).data());
    QCOMPARE(counter.calls().uploads,
             QVector<QSize>({QSize(16384, 1), QSize(1, 16384), QSize(256, 1)}));
    QCOMPARE(counter.calls().uploadedBytes, 16384 + 4 * 16384 + 4 * 256);
    QCOMPARE(wide.kind, int(Texture::IndexedKind));
    QCOMPARE(high.kind, int(Texture::RgbaKind));
    QCOMPARE(high.size, QSize(1, 16384));
    QCOMPARE(colors.kind, int(Texture::PaletteKind));
    QCOMPARE(colors.size, QSize(256, 1));
    QCOMPARE(colors.uMax, 1.0);
    const Texture larger(indexed(largest + 1, 1));
    QVERIFY(larger.isStale() && !exists(larger.id));
    QCOMPARE(larger.size, QSize(largest + 1, 1));

    s_hasNPOT = false;
    const Texture padded(indexed(100, 30));
    s_hasNPOT = true;
    QCOMPARE(padded.uMax, 0.78125);
    QCOMPARE(padded.vMax, 0.9375);
    QCOMPARE(padded.size, QSize(100, 30));
}

void TestTexture::comesFromBadData_data()
{
    columns<QSize, int>("textureSize", "bytes");
    QTest::newRow("none") << QSize(4, 4) << 0;
    QTest::newRow("too few") << QSize(4, 4) << 63;
    QTest::newRow("no size") << QSize(0, 4) << 64;
    QTest::newRow("negative") << QSize(-4, -4) << 64;
    QTest::newRow("more than numbers hold") << QSize(INT_MAX, INT_MAX) << 64;
}

void TestTexture::comesFromBadData()
{
    const auto [textureSize, bytes] = fetched<QSize, int>();
    Texture texture(Texture::ImageData{textureSize, textureSize, false, QByteArray(bytes, 'x')});
    QCOMPARE(texture.id, 0U);
    QCOMPARE(texture.kind, int(Texture::Empty));
    QCOMPARE(texture.size, QSize(-1, -1));
    texture.fromPalette(nullptr);
    QCOMPARE(texture.id, 0U);
}

void TestTexture::keepsAStaleName()
{
    auto texture = std::make_unique<Texture>(indexed(5, 4));
    const quint32 id = texture->id;
    texture->fromImage(QImage());
    QVERIFY(!exists(id));
    QVERIFY(texture->isStale());
    QCOMPARE(texture->id, id);
    QCOMPARE(texture->kind, int(Texture::IndexedKind));
    QCOMPARE(texture->size, QSize(5, 4));

    takeNames({id});
    texture->fromImage(QImage());
    texture->reset();
    texture->fromImage(indexed(1, 1));
    QVERIFY(!texture->isStale());
    const quint32 other = texture->id;
    texture->fromData({});
    takeNames({other});
    // What goes with the name is that it is stale.
    Texture live(indexed(1, 1));
    const quint32 third = live.id;
    live.swap(*texture);
    QVERIFY(live.isStale() && !texture->isStale());
    texture.reset();
    QVERIFY(!exists(third));
    live.reset();
    QCOMPARE(countOf({id, other}), 2);
}

// A texture may be made, and may die, in the middle of a paint.
void TestTexture::givesTheContextBack()
{
    QOpenGLContext own;
    own.setShareContext(QOpenGLContext::globalShareContext());
    QOffscreenSurface ownSurface;
    ownSurface.create();
    QVERIFY(own.create() && own.makeCurrent(&ownSurface));
    for (int i = 0; i < 2; ++i) {
        Texture(indexed(3, 3)).fromPalette(palette(1).data());
        QCOMPARE(QOpenGLContext::currentContext(), &own);
        QCOMPARE(own.surface(), &ownSurface);
        freeContext();
        QCOMPARE(QOpenGLContext::currentContext(), &own);
    }
}

void TestTexture::diesInAnyThread_data()
{
    QTest::addColumn<bool>("contextFirst");
    QTest::newRow("then the loop runs") << false;
    QTest::newRow("then the context goes") << true;
}

void TestTexture::diesInAnyThread()
{
    QFETCH(bool, contextFirst);
    std::vector<quint32> names;
    Textures textures = makeTextures(1000, names);
    QCOMPARE(countOf(names), 1000);
    GlTest::CallCounter counter;
    releaseFrom(8, std::move(textures));
    QCOMPARE(counter.calls().deletedNames, 0);
    if (contextFirst) {
        freeContext();
    }
    QCoreApplication::processEvents();
    QCOMPARE(counter.calls().deletedNames, 1000);
    QCOMPARE(countOf(names), 0);
}

void TestTexture::outlivesItsContext()
{
    std::vector<quint32> names;
    Textures textures = makeTextures(1000, names);
    for (int round = 0; round < 2; ++round) {
        freeContext();
        QCOMPARE(countOf(names), 0);
        QVERIFY(textures.front()->isStale());
        QVERIFY(isContextUsable());
    }
    takeNames(names);
    textures.front()->reset();
    textures.front()->fromImage(indexed(1, 1));
    QVERIFY(!textures.front()->isStale());
    releaseFrom(8, std::move(textures));
    QCoreApplication::processEvents();
    QCOMPARE(countOf(names), 1000);
}

void TestTexture::deletesWhatItIsTold()
{
    const QSignalSpy spy(s_resetter, &Resetter::resetOnRenderThread);
    auto texture = std::make_unique<Texture>(indexed(2, 2));
    const quint32 id = texture->id;
    texture.reset();
    QVERIFY(!exists(id));
    Texture().reset();
    texture = std::make_unique<Texture>(indexed(2, 2));
    texture->fromImage(QImage());
    texture.reset();
    QCOMPARE(spy.size(), 3);
    QCOMPARE(spy.at(0).first().toUInt(), id);
    QCOMPARE(spy.at(1).first().toUInt(), 0U);
    QCOMPARE(spy.at(2).first().toUInt(), 0U);

    // Any name of the context will do.
    context()->makeCurrent(surface());
    GLuint name = 0;
    context()->functions()->glGenTextures(1, &name);
    takeNames({name});
    QVERIFY(exists(name));
    emit s_resetter->resetOnRenderThread(name);
    QVERIFY(!exists(name));
}

ZORV_GL_TEST_MAIN(TestTexture)
#include "tst_texture.moc"
