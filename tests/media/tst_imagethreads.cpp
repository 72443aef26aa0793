#include "core/extensionmanager.h"
#include "media/imagefile.h"
#include "media/losslessimages.h"

#include <QBuffer>
#include <QThreadPool>
#include <QtTest>

#include <atomic>

using namespace Zorv;

namespace {

/// A job on one of Qt's threads.
///
/// Qt's own locks stand in code that the thread sanitizer does not see. What has been done before a
/// job, and what the job has done, it learns from two counters that every job looks at first and
/// last.
class Job : public QRunnable
{
public:
    explicit Job(std::function<void()> work) : m_work(std::move(work)) { setAutoDelete(false); }

    void run() override
    {
        ready.load(std::memory_order_acquire);
        m_work();
        done.fetch_add(1, std::memory_order_release);
    }

    static std::atomic<int> ready;
    static std::atomic<int> done;

private:
    std::function<void()> m_work;
};

std::atomic<int> Job::ready(0);
std::atomic<int> Job::done(0);

void runAll(const std::vector<std::function<void()>>& works)
{
    std::vector<std::unique_ptr<Job>> jobs;
    for (const auto& work : works) {
        jobs.push_back(std::make_unique<Job>(work));
    }
    QThreadPool pool;
    pool.setMaxThreadCount(4);
    Job::ready.fetch_add(1, std::memory_order_release);
    for (const auto& job : jobs) {
        pool.start(job.get());
    }
    pool.waitForDone();
    Job::done.load(std::memory_order_acquire);
}

class FlatFormat : public Extension
{
public:
    Type type() const override { return ImageLoader; }
    QByteArray name() const override { return "FLAT"; }
    bool loadImage(QIODevice* device, QImage& image) override
    {
        image = QImage(device->readAll().size(), 1, QImage::Format_RGB32);
        image.fill(7);
        return true;
    }
};

QImage read(QByteArray bytes, const char* format)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImage image;
    return loadImage(&buffer, format, image) ? image : QImage();
}

QByteArray written(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return saveImage(&buffer, format, image) ? bytes : QByteArray();
}

}  // namespace

class TestImageThreads : public QObject
{
    Q_OBJECT

private slots:
    void loadingFromManyThreads();
};

void TestImageThreads::loadingFromManyThreads()
{
    FlatFormat extension;
    ExtensionManager::add(&extension);
    setLosslessImages(true);
    QImage image(61, 33, QImage::Format_Indexed8);
    image.setColorTable(QVector<QRgb>(256, qRgb(9, 8, 7)));
    for (int i = 0; i < 61 * 33; ++i) {
        image.setPixel(i % 61, i / 61, uint(i * 7 % 256));
    }
    static const char* const formats[] = {"PNG", "BMP", "GIF", "PCX", "FLAT"};
    QVector<QByteArray> files;
    for (const char* format : formats) {
        files.append(qstrcmp(format, "FLAT") == 0 ? QByteArray("abc") : written(image, format));
    }
    std::atomic<int> wrong(0);
    std::vector<std::function<void()>> works;
    for (int i = 0; i < 200; ++i) {
        const int kind = i % files.size();
        const QByteArray file = files[kind];
        const QImage expected = read(file, formats[kind]);
        QVERIFY2(!expected.isNull(), formats[kind]);
        works.push_back(
            [file, expected, kind, &wrong] { wrong += read(file, formats[kind]) != expected; });
        if (i % 10 == 0) {
            works.push_back([] { setLosslessImages(true); });
        }
    }
    runAll(works);
    ExtensionManager::list(Extension::ImageLoader).clear();
    QCOMPARE(wrong.load(), 0);
}

QTEST_GUILESS_MAIN(TestImageThreads)
#include "tst_imagethreads.moc"
