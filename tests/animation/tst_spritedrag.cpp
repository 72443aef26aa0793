#include "animation/spritedrag.h"
#include "support/testtable.h"

#include <QMimeData>
#include <QTest>

#include <memory>

using namespace Zorv;

namespace {

using Numbers = QVector<SpriteNumber>;

}  // namespace

Q_DECLARE_METATYPE(Numbers)

/// What is dropped is what was dragged, and never half of it.
class TestSpriteDrag : public QObject
{
    Q_OBJECT

private slots:
    void comesBack();
    void brokenIsNothing_data();
    void brokenIsNothing();
};

void TestSpriteDrag::comesBack()
{
    const Numbers all[] = {{}, {{0, 0}}, {{7, 2}, {0, 65535}, {7, 2}, {2147483647, 1}}};
    for (const Numbers& numbers : all) {
        const std::unique_ptr<QMimeData> data(spriteDrag(numbers));
        QCOMPARE(data->formats(), QStringList{spriteDragType()});
        QCOMPARE(draggedSprites(data.get()), numbers);
    }
    QCOMPARE(draggedSprites(nullptr), Numbers());
}

void TestSpriteDrag::brokenIsNothing_data()
{
    columns<QString, QByteArray>("type", "bytes");
    const QString own = spriteDragType();
    QTest::newRow("other data") << QStringLiteral("text/plain") << QByteArray("1,2");
    QTest::newRow("no comma") << own << QByteArray("1,2\n3\n");
    QTest::newRow("no group") << own << QByteArray(",3");
    QTest::newRow("no number") << own << QByteArray("3,");
    QTest::newRow("negative") << own << QByteArray("1,2\n-1,4");
    QTest::newRow("past the end") << own << QByteArray("99999999999,4");
    QTest::newRow("third") << own << QByteArray("1,2,3");
    QTest::newRow("bytes") << own << QByteArray("\0\xff,\n", 4);
}

void TestSpriteDrag::brokenIsNothing()
{
    const auto [type, bytes] = fetched<QString, QByteArray>();
    QMimeData data;
    data.setData(type, bytes);
    QCOMPARE(draggedSprites(&data), Numbers());
}

QTEST_GUILESS_MAIN(TestSpriteDrag)
#include "tst_spritedrag.moc"
