#include "family/import/jsonview.h"
#include "family/import/sheet.h"
#include "family/import/sheetcutter.h"
#include "family/import/sheetreader.h"

#include "support/brokenbytes.h"
#include "support/testtable.h"

#include <QImage>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QtTest>

using namespace Family;

namespace {

const QByteArray Frame = R"("frame":{"x":1,"y":2,"w":3,"h":4.0})";

QByteArray inMeta(const QByteArray& frames, const QByteArray& meta = "{}")
{
    return "{\"frames\":" + frames + ",\"meta\":" + meta + "}";
}

QStringList namesOf(const Sheet& sheet)
{
    QStringList names;
    for (const SheetFrame& frame : sheet.frames) {
        names.append(frame.name);
    }
    return names;
}

/// White blocks on a ground.
QImage blocks(QImage::Format format, const QVector<QRect>& rects)
{
    QImage image(40, 30, format);
    image.setColorTable({0, 0xffffffff});
    image.fill(format == QImage::Format_RGB32 ? 0xff00ff00 : 0);
    for (const QRect& rect : rects) {
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            for (int x = rect.left(); x <= rect.right(); ++x) {
                image.setPixel(x, y, format == QImage::Format_Indexed8 ? 1 : 0xffffffff);
            }
        }
    }
    return image;
}

}  // namespace

class TestSheet : public QObject
{
    Q_OBJECT

private slots:
    void readsWhatQtReads_data();
    void readsWhatQtReads();
    void readsForms_data();
    void readsForms();
    void refuses_data();
    void refuses();
    void survivesBrokenBytes();
    void placesFrames_data();
    void placesFrames();
    void turnsBack();
    void cuts_data();
    void cuts();
    void readsCutOfName_data();
    void readsCutOfName();
};

void TestSheet::readsWhatQtReads_data()
{
    columns<QByteArray, bool>("json", "isJson");
    for (const char* json : {"{}", "[1,-2.5e3,0.1]", " { } ", "[[[\"a\"]], 3]",
                             "[\"a\\u00e9\\n\\\"\",\"\\ud83d\\ude00\"]"}) {
        row(json, QByteArray(json), true);
    }
    for (const char* json :
         {"[01]", "[1,]", "{\"a\"}", "[\"\\x\"]", "[1] 2", "\"", "[\"a\\\"", "[tru]", "[-]", "[1.]",
          "[1e]", "", "[\"\t\"]", "{\"a\":1,}", "[[[]]"}) {
        row(json, QByteArray(json), false);
    }
}

void TestSheet::readsWhatQtReads()
{
    const auto [json, isJson] = fetched<QByteArray, bool>();
    QString error;
    const JsonView view = JsonView::read(json, &error);
    QCOMPARE(bool(view), isJson);
    QCOMPARE(error.isEmpty(), isJson);
    const QJsonDocument other = QJsonDocument::fromJson(json);
    int i = 0;
    view.forEach([&](const QString&, const JsonView& item) {
        double number = 0;
        item.readNumber(&number);
        const bool isSame = number == other[i].toDouble() && item.text() == other[i].toString();
        ++i;
        return isSame;
    });
    QVERIFY(!isJson || i == other.array().size());
}

void TestSheet::readsForms_data()
{
    columns<QByteArray, QStringList>("json", "names");
    const QByteArray one = "{" + Frame + "}";
    row("hash in its order", inMeta("{\"man 10\":" + one + ",\"man 2\":" + one + "}"),
        QStringList({"man 10", "man 2"}));
    row("doubled keys", inMeta("{\"a\":" + one + ",\"a\":" + one + "}"), QStringList({"a", "a"}));
    row("array", inMeta("[{\"filename\":\"walk/a_1.png\"," + Frame + "}]"), QStringList("a_1"));
    row("bare", "\xef\xbb\xbf[{\"filename\":\"a.ase\"," + Frame + "}]", QStringList("a"));
    row("textures",
        QByteArray("{\"textures\":[{\"image\":\"a.png\",\"frames\":[{\"filename\":\"a\"," + Frame +
                   "}]},{\"frames\":[{\"filename\":\"b\"," + Frame + "}]}]}"),
        QStringList({"a", "b"}));
}

void TestSheet::readsForms()
{
    const auto [json, names] = fetched<QByteArray, QStringList>();
    Sheet sheet;
    QString error;
    QVERIFY2(readSheet(json, &sheet, &error), qPrintable(error));
    QCOMPARE(namesOf(sheet), names);
    QCOMPARE(sheet.frames.first().rect, QRect(1, 2, 3, 4));
    QCOMPARE(sheet.frames.last().page, sheet.pages.size() - 1);
}

void TestSheet::refuses_data()
{
    columns<QByteArray, QString>("json", "says");
    const auto frame = [](const QByteArray& more) {
        return inMeta("[{" + Frame + "," + more + "}]");
    };
    row("no JSON", QByteArray("{\n \"a\": x}"), QStringLiteral("line 2, column 7"));
    row("deep", QByteArray(100, '['), QStringLiteral("64"));
    row("map", QByteArray("{\"tiledversion\":1,\"frames\":[]}"), QStringLiteral("map"));
    row("bones", QByteArray("{\"skeleton\":{},\"bones\":[]}"), QStringLiteral("bones"));
    row("other", QByteArray("{\"a\":1}"), QStringLiteral("frames"));
    row("empty", inMeta("{}"), QStringLiteral("no frames"));
    row("polygon", frame("\"vertices\":[[0,0]]"), QStringLiteral("polygon"));
    row("degrees", frame("\"rotated\":-90"), QStringLiteral("90 degrees"));
    row("no place", inMeta("[{\"filename\":\"a\"}]"), QStringLiteral("'a'"));
    row("half a pixel", inMeta("[{\"frame\":{\"x\":0.5,\"y\":0,\"w\":1,\"h\":1}}]"),
        QStringLiteral("whole numbers"));
    row("too large", inMeta("[{\"frame\":{\"x\":0,\"y\":0,\"w\":1e300,\"h\":1}}]"),
        QStringLiteral("16384"));
}

void TestSheet::refuses()
{
    const auto [json, says] = fetched<QByteArray, QString>();
    Sheet sheet;
    QString error;
    QVERIFY(!readSheet(json, &sheet, &error));
    QVERIFY2(error.contains(says), qPrintable(error));
}

void TestSheet::survivesBrokenBytes()
{
    const QByteArray whole =
        inMeta("{\"a\":{" + Frame + ",\"rotated\":true,\"pivot\":{\"x\":0.5,\"y\":1}}}",
               R"({"image":"\u0041.png","frameTags":[{"name":"t","from":0,"to":0}]})");
    forEachBrokenForm(whole, [](const QByteArray& bytes) {
        Sheet sheet;
        QString error;
        const bool isRead = readSheet(bytes, &sheet, &error);
        QCOMPARE(error.isEmpty(), isRead);
    });
}

void TestSheet::placesFrames_data()
{
    columns<QByteArray, QRect, QPoint, QSize, QPoint>("more", "rect", "offset", "original", "axis");
    const QRect upright(1, 2, 3, 4);
    row("plain", QByteArray("\"pivot\":{\"x\":0.5,\"y\":1}"), upright, QPoint(), QSize(3, 4),
        QPoint(1, 3));
    row("turned", QByteArray("\"rotated\":true,\"pivot\":{\"x\":0,\"y\":0}"), QRect(1, 2, 4, 3),
        QPoint(), QSize(3, 4), QPoint());
    row("trimmed",
        QByteArray("\"trimmed\":true,\"spriteSourceSize\":{\"x\":5,\"y\":6,\"w\":3,\"h\":4},"
                   "\"sourceSize\":{\"w\":20,\"h\":10},\"anchor\":{\"x\":0.5,\"y\":1.5}"),
        upright, QPoint(5, 6), QSize(20, 10), QPoint(10, 15));
    row("padded inside",
        QByteArray("\"spriteSourceSize\":{\"x\":0,\"y\":0,\"w\":1,\"h\":2},"
                   "\"pivot\":{\"x\":0,\"y\":0}"),
        QRect(2, 3, 1, 2), QPoint(), QSize(1, 2), QPoint());
    row("cropped in place",
        QByteArray("\"trimmed\":false,\"spriteSourceSize\":{\"x\":5,\"y\":6,\"w\":3,\"h\":4},"
                   "\"sourceSize\":{\"w\":3,\"h\":4},\"pivot\":{\"x\":1,\"y\":1}"),
        upright, QPoint(5, 6), QSize(8, 10), QPoint(7, 9));
}

void TestSheet::placesFrames()
{
    const auto [more, rect, offset, original, axis] =
        fetched<QByteArray, QRect, QPoint, QSize, QPoint>();
    Sheet sheet;
    QString error;
    QVERIFY2(readSheet(inMeta("[{" + Frame + "," + more + "}]"), &sheet, &error),
             qPrintable(error));
    const SheetFrame& frame = sheet.frames.first();
    QCOMPARE(frame.rect, rect);
    QCOMPARE(frame.offset, offset);
    QCOMPARE(frame.original, original);
    QVERIFY(frame.hasAxis);
    QCOMPARE(frame.axis, axis);
    loseOutsiders(&sheet, {QSize(4, 5)});
    QCOMPARE(sheet.frames.first().isLost, !QRect(0, 0, 4, 5).contains(rect));
    QCOMPARE(sheet.warnings.size(), int(sheet.frames.first().isLost));
}

/// A picture that was turned clockwise is upright again, with its indices.
void TestSheet::turnsBack()
{
    QImage picture(3, 2, QImage::Format_Indexed8);
    picture.setColorTable({0xff000000, 0xff112233, 0xff445566});
    for (int i = 0; i < 6; ++i) {
        picture.setPixel(i % 3, i / 3, uint(i % 3));
    }
    QImage page(9, 9, QImage::Format_Indexed8);
    page.setColorTable(picture.colorTable());
    page.fill(0);
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 3; ++x) {
            page.setPixel(4 + 1 - y, 5 + x, uint(picture.pixelIndex(x, y)));
        }
    }
    SheetFrame frame;
    frame.rect = {4, 5, 2, 3};
    frame.isTurned = true;
    QCOMPARE(pictureOf(page, frame), picture);
}

void TestSheet::cuts_data()
{
    columns<SheetCut, QVector<QRect>, int>("cut", "rects", "warnings");
    SheetCut cut;
    cut.cell = {15, 10};
    row("size", cut, QVector<QRect>{{0, 0, 15, 10}, {15, 0, 15, 10}, {0, 10, 15, 10}}, 2);
    cut.count = 2;
    row("count of cells", cut, QVector<QRect>{{0, 0, 15, 10}, {15, 0, 15, 10}}, 1);
    cut.isColumnsFirst = true;
    row("columns first", cut, QVector<QRect>{{0, 0, 15, 10}, {0, 10, 15, 10}}, 1);
    cut = {};
    cut.how = SheetCut::ByCount;
    cut.columns = 2;
    cut.edge = 1;
    cut.gap = 2;
    row("grid", cut, QVector<QRect>{{1, 1, 18, 28}, {21, 1, 18, 28}}, 0);
    cut.columns = 50;
    row("no room", cut, QVector<QRect>(), 0);
    cut.how = SheetCut::ByGaps;
    row("gaps", cut, QVector<QRect>{{2, 1, 5, 9}, {20, 1, 8, 9}, {3, 12, 4, 3}}, 0);
}

void TestSheet::cuts()
{
    const auto [cut, rects, warnings] = fetched<SheetCut, QVector<QRect>, int>();
    for (const auto format :
         {QImage::Format_Indexed8, QImage::Format_ARGB32, QImage::Format_RGB32}) {
        const QImage image = blocks(format, {{2, 3, 5, 7}, {20, 1, 8, 4}, {3, 12, 4, 3}});
        Sheet sheet;
        QString error;
        const bool isCut = cutSheet(image, cut, &sheet, &error);
        QVERIFY(isCut == !rects.isEmpty() && isCut == error.isEmpty());
        QVector<QRect> found;
        for (const SheetFrame& frame : qAsConst(sheet.frames)) {
            found.append(frame.rect);
        }
        QCOMPARE(found, rects);
        QCOMPARE(sheet.warnings.size(), warnings);
    }
}

void TestSheet::readsCutOfName_data()
{
    columns<QString, bool, QSize>("name", "isSize", "told");
    row("strip", QStringLiteral("run_strip8.png"), false, QSize(8, 1));
    row("grid", QStringLiteral("run-8x4.png"), false, QSize(8, 4));
    row("size", QStringLiteral("run_32x48.png"), true, QSize(32, 48));
    row("does not divide", QStringLiteral("run_30x48.png"), false, QSize(30, 48));
    row("nothing", QStringLiteral("run-200-3.png"), false, QSize());
}

void TestSheet::readsCutOfName()
{
    const auto [name, isSize, told] = fetched<QString, bool, QSize>();
    SheetCut cut;
    QCOMPARE(readCut(name, {320, 192}, &cut), told.isValid());
    QCOMPARE(told.isValid() && cut.how == SheetCut::BySize, told.isValid() && isSize);
    QVERIFY(!told.isValid() || (isSize ? cut.cell : QSize(cut.columns, cut.rows)) == told);
}

Q_DECLARE_METATYPE(Family::SheetCut)

QTEST_GUILESS_MAIN(TestSheet)
#include "tst_sheet.moc"
