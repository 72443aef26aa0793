#include "core/organizableobject.h"
#include "support/testtable.h"

#include <QAbstractItemModelTester>
#include <QBrush>
#include <QColor>
#include <QDataStream>
#include <QDateTime>
#include <QDropEvent>
#include <QFont>
#include <QIcon>
#include <QListView>
#include <QMimeData>
#include <QPixmap>
#include <QtTest>

#include <numeric>

using namespace Zorv;

namespace {

/// A list of letters that writes down its moves.
class Letters : public OrganizableObject
{
public:
    explicit Letters(int count) : rows(count) { std::iota(rows.begin(), rows.end(), 0); }

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : rows.size();
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role == Qt::DisplayRole) {
            return QString(QChar('a' + rows.value(index.row())));
        }
        return role == Qt::UserRole ? extra : QVariant();
    }

    QMap<int, QVariant> itemData(const QModelIndex& index) const override
    {
        QMap<int, QVariant> roles = OrganizableObject::itemData(index);
        roles.insert(Qt::UserRole, extra);
        return roles;
    }

    void move(unsigned from, unsigned to) override
    {
        const int source = int(from), target = int(to);
        QVERIFY(source < rows.size() && target < rows.size() && source != target);
        QVERIFY(beginMoveRows({}, source, source, {}, target > source ? target + 1 : target));
        rows.move(source, target);
        endMoveRows();
        moves.append({source, target});
        emit changed(false);
    }

    void beginChange(const QString&) override {}
    void endChange() override {}
    void remove(unsigned) override {}
    void autoOrganize() override {}

    QMimeData* drag(const QList<int>& dragged) const
    {
        QModelIndexList indexes;
        for (const int row : dragged) {
            indexes.append(index(row));
        }
        return mimeData(indexes);
    }

    QVector<int> rows;
    QVector<QPair<int, int>> moves;
    QVariant extra;
};

struct HostValue
{
    QString text;
};

QDataStream& operator<<(QDataStream& out, const HostValue& value)
{
    return out << value.text;
}

QDataStream& operator>>(QDataStream& in, HostValue& value)
{
    return in >> value.text;
}

using Rows = QVector<int>;
using Moves = QVector<QPair<int, int>>;

// The dragged rows stand together in front of the row they were dropped at.
Rows expectedOrder(int count, QList<int> dragged, int target)
{
    std::sort(dragged.begin(), dragged.end());
    Rows before, after;
    for (int row = 0; row < count; ++row) {
        if (!dragged.contains(row)) {
            (row < target ? before : after).append(row);
        }
    }
    return before + dragged.toVector() + after;
}

}  // namespace

Q_DECLARE_METATYPE(HostValue)

class TestOrganizable : public QObject
{
    Q_OBJECT

private slots:
    void drops_data()
    {
        columns<QList<int>, int, Moves, Rows>("dragged", "row", "moves", "order");
        row("two down", QList<int>{1, 2}, 4, Moves{{1, 3}, {1, 3}}, Rows{0, 3, 1, 2, 4});
        row("last to the top", QList<int>{4}, 0, Moves{{4, 0}}, Rows{4, 0, 1, 2, 3});
        row("two up, in any order", QList<int>{4, 3}, 1, Moves{{3, 1}, {4, 2}},
            Rows{0, 3, 4, 1, 2});
        row("from both sides", QList<int>{0, 4}, 2, Moves{{0, 1}, {4, 2}}, Rows{1, 0, 4, 2, 3});
        row("behind the end", QList<int>{1}, 5, Moves{{1, 3}}, Rows{0, 2, 3, 1, 4});
        row("far behind the end", QList<int>{4}, 99, Moves{}, Rows{0, 1, 2, 3, 4});
        row("no row", QList<int>{2}, -1, Moves{{2, 0}}, Rows{2, 0, 1, 3, 4});
        row("in front of itself", QList<int>{2}, 2, Moves{}, Rows{0, 1, 2, 3, 4});
        row("behind itself", QList<int>{2}, 3, Moves{}, Rows{0, 1, 2, 3, 4});
    }

    void drops()
    {
        const auto [dragged, row] = fetched<QList<int>, int>();
        Letters list(5);
        QAbstractItemModelTester tester(&list);
        const QScopedPointer<QMimeData> data(list.drag(dragged));
        QVERIFY(!list.dropMimeData(data.data(), Qt::MoveAction, row, 0, {}));
        QTEST(list.moves, "moves");
        QTEST(list.rows, "order");
    }

    void otherActionsAreRefused()
    {
        Letters list(5);
        const QScopedPointer<QMimeData> data(list.drag({4}));
        QVERIFY(!list.dropMimeData(data.data(), Qt::CopyAction, 0, 0, {}));
        QVERIFY(!list.dropMimeData(nullptr, Qt::MoveAction, 0, 0, {}));
        QVERIFY(list.moves.isEmpty());
    }

    // All rows above the target: a block keeps its order and stands in front of the target.
    void blocksKeepTheirOrder()
    {
        for (int target = 0; target < 8; ++target) {
            for (int bits = 1; bits < 256; ++bits) {
                QList<int> dragged;
                for (int row = 7; row >= 0; --row) {
                    if (bits >> row & 1) {
                        dragged.append(row);
                    }
                }
                // A row dropped on its own place splits the ones around it.
                if (dragged.contains(target)) {
                    continue;
                }
                Letters list(8);
                const QScopedPointer<QMimeData> data(list.drag(dragged));
                list.dropMimeData(data.data(), Qt::MoveAction, target, 0, {});
                QCOMPARE(list.rows, expectedOrder(8, dragged, target));
            }
        }
    }

    void realDropOnAView()
    {
        Letters list(5);
        QListView view;
        view.setModel(&list);
        view.setDragDropMode(QAbstractItemView::DragDrop);
        view.resize(200, 300);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QScopedPointer<QMimeData> data(list.drag({4}));
        // The upper edge of a row is the gap above it.
        const QPoint place = view.visualRect(list.index(1)).topLeft() + QPoint(5, 0);
        QDragEnterEvent enter(place, Qt::MoveAction, data.data(), Qt::LeftButton, {});
        QApplication::sendEvent(view.viewport(), &enter);
        QDragMoveEvent over(place, Qt::MoveAction, data.data(), Qt::LeftButton, {});
        QApplication::sendEvent(view.viewport(), &over);
        QVERIFY(over.isAccepted());
        QDropEvent drop(place, Qt::MoveAction, data.data(), Qt::LeftButton, {});
        QApplication::sendEvent(view.viewport(), &drop);
        QCOMPARE(list.rows, (Rows{0, 4, 1, 2, 3}));
    }

    void flagsOfRows()
    {
        Letters list(5), other(5);
        QCOMPARE(list.flags({}), Qt::ItemFlags(Qt::ItemIsDropEnabled));
        QCOMPARE(list.flags(other.index(1)), Qt::ItemFlags(Qt::ItemIsDropEnabled));
        QVERIFY(list.flags(list.index(1)) & Qt::ItemIsDragEnabled);
        QVERIFY(!(list.flags(list.index(1)) & Qt::ItemIsDropEnabled));
        const QModelIndex last = list.index(4);
        list.rows.removeLast();
        QCOMPARE(list.flags(last), Qt::ItemFlags(Qt::ItemIsDropEnabled));
    }

    void payloadsWithValues_data()
    {
        qRegisterMetaTypeStreamOperators<HostValue>();
        QPixmap picture(7, 5);
        picture.fill(Qt::red);
        QTest::addColumn<QVariant>("value");
        const auto row = [](const char* name, const QVariant& value) {
            ::row(name, QVariant::fromValue(value));
        };
        row("invalid", {});
        row("null text", QString());
        row("number", 12);
        row("float", QVariant::fromValue(1.5f));
        row("large number", Q_INT64_C(1) << 40);
        row("long", QVariant::fromValue(5l));
        row("character", QChar('x'));
        row("colour", QColor(Qt::red));
        row("rectangle", QRectF(1, 2, 3, 4));
        row("bytes", QByteArray("abc\0def", 7));
        row("address", QUrl(QStringLiteral("file:///a%20b")));
        row("texts", QStringList{QStringLiteral("a"), QStringLiteral("b")});
        row("list", QVariantList{1, QStringLiteral("x"), QVariantList{2.5}});
        row("map", QVariantMap{{QStringLiteral("k"), QVariantMap{{QStringLiteral("l"), 1}}}});
        row("hash", QVariantHash{{QStringLiteral("k"), QPoint(1, 2)}});
        row("font", QFont(QStringLiteral("Sans"), 9));
        row("time", QDateTime::currentDateTimeUtc());
        row("brush", QBrush(Qt::green));
        row("brush with a picture", QBrush(picture));
        row("image", picture.toImage());
        row("pixmap", picture);
        row("icon", QIcon(picture));
        row("no icon", QIcon());
        row("of the host", QVariant::fromValue(HostValue{QStringLiteral("text")}));
    }

    // Whatever the items hold, the rows behind it are found too.
    void payloadsWithValues()
    {
        QFETCH(QVariant, value);
        Letters list(5);
        list.extra = value;
        const QScopedPointer<QMimeData> data(list.drag({3, 4}));
        list.dropMimeData(data.data(), Qt::MoveAction, 0, 0, {});
        QCOMPARE(list.rows, (Rows{3, 4, 0, 1, 2}));

        // Cut anywhere inside of the last item it is broken as a whole.
        const QString format = data->formats().value(0);
        const QByteArray whole = data->data(format);
        const QScopedPointer<QMimeData> one(list.drag({3}));
        for (int size = one->data(format).size() + 1; size < whole.size(); ++size) {
            QMimeData cut;
            cut.setData(format, whole.left(size));
            Letters fresh(5);
            fresh.dropMimeData(&cut, Qt::MoveAction, 0, 0, {});
            QVERIFY2(fresh.moves.isEmpty(), qPrintable(QString::number(size)));
        }
    }

    void brokenPayloads_data()
    {
        QTest::addColumn<QByteArray>("payload");
        const auto payload = [](int row, quint32 type, quint32 size) {
            QByteArray bytes;
            QDataStream out(&bytes, QIODevice::WriteOnly);
            out << row << 0 << quint32(1) << int(Qt::UserRole) << type << quint8(0) << size;
            return bytes;
        };
        const int types[] = {QMetaType::QString,
                             QMetaType::QByteArray,
                             QMetaType::QVariantList,
                             QMetaType::QStringList,
                             QMetaType::QVariantMap,
                             QMetaType::QPolygon,
                             QMetaType::QBitArray,
                             QMetaType::QImage,
                             QMetaType::QIcon,
                             QMetaType::User,
                             0x7fffffff};
        for (const int type : types) {
            row(qPrintable(QStringLiteral("huge value of type %1").arg(type)),
                payload(1, quint32(type), 0xfffffff0));
        }
        QByteArray deep;
        QDataStream out(&deep, QIODevice::WriteOnly);
        out << 1 << 0 << quint32(1) << int(Qt::UserRole);
        for (int i = 0; i < 200000; ++i) {
            out << quint32(QMetaType::QVariantList) << quint8(0) << quint32(1);
        }
        row("lists in lists", deep);
        row("rows that are not there",
            payload(-1, QMetaType::Int, 0) + payload(5, QMetaType::Int, 0) +
                payload(INT_MAX, QMetaType::Int, 0) + payload(INT_MIN, QMetaType::Int, 0));
    }

    void brokenPayloads()
    {
        QFETCH(QByteArray, payload);
        QMimeData data;
        data.setData(QStringLiteral("application/x-qabstractitemmodeldatalist"), payload);
        Letters list(5), empty(0);
        list.dropMimeData(&data, Qt::MoveAction, 0, 0, {});
        empty.dropMimeData(&data, Qt::MoveAction, 0, 0, {});
        QVERIFY(list.moves.isEmpty());
    }

    void randomPayloads()
    {
        const quint32 seed = 4711;
        qInfo("seed %u", seed);
        QRandomGenerator random(seed);
        Letters list(5);
        list.extra = QVariantList{QStringLiteral("text"), QColor(Qt::red), QFont()};
        const QScopedPointer<QMimeData> data(list.drag({0, 1, 4}));
        const QString format = data->formats().value(0);
        for (int i = 0; i < 20000; ++i) {
            QByteArray bytes = data->data(format);
            for (int n = random.bounded(4); n >= 0; --n) {
                bytes[random.bounded(bytes.size())] = char(random.bounded(256));
            }
            QMimeData changed;
            changed.setData(format, bytes);
            list.dropMimeData(&changed, Qt::MoveAction, random.bounded(6), 0, {});
            Rows sorted = list.rows;
            std::sort(sorted.begin(), sorted.end());
            QCOMPARE(sorted, (Rows{0, 1, 2, 3, 4}));
        }
    }
};

QTEST_MAIN(TestOrganizable)
#include "tst_organizable.moc"
