#include "editors/organizer/organizereditor.h"

#include "support/testgrammar.h"
#include "support/testinterface.h"
#include "support/testtable.h"

#include "core/organizableobject.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QListView>
#include <QMimeData>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTextBlock>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <memory>

using namespace Zorv;

namespace {

const unsigned Seed = 4711;

/// A list of numbers, which keeps its steps of undo and counts the calls of data().
class Numbers : public OrganizableObject
{
    Q_OBJECT

public:
    explicit Numbers(int count)
    {
        for (int i = 0; i < count; ++i) {
            values.append(i);
        }
    }

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : values.size();
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        ++calls;
        return role == Qt::DisplayRole ? values.value(index.row()) : QVariant();
    }

    void move(unsigned from, unsigned to) override
    {
        if (resets) {
            beginResetModel();
            values.move(int(from), int(to));
            endResetModel();
        } else if (beginMoveRows({}, int(from), int(from), {}, int(to + (from < to ? 1 : 0)))) {
            values.move(int(from), int(to));
            endMoveRows();
        }
    }

    void beginChange(const QString&) override { steps += depth++ == 0 ? 1 : 0; }
    void endChange() override { --depth; }
    void remove(unsigned index) override
    {
        beginRemoveRows({}, int(index), int(index));
        values.removeAt(int(index));
        endRemoveRows();
    }

    void insert(int index, int value)
    {
        beginInsertRows({}, index, index);
        values.insert(index, value);
        endInsertRows();
    }

    void autoOrganize() override
    {
        emit layoutAboutToBeChanged();
        QVector<int> sorted = values;
        std::sort(sorted.begin(), sorted.end());
        const QModelIndexList before = persistentIndexList();
        QModelIndexList now;
        for (const QModelIndex& index : before) {
            now.append(createIndex(sorted.indexOf(values[index.row()]), 0));
        }
        values = sorted;
        changePersistentIndexList(before, now);
        emit layoutChanged();
    }

    QVector<int> values;
    bool resets = false;
    int steps = 0;
    int depth = 0;
    mutable int calls = 0;
};

/// Animations that stay whole where the text does not end in a line end.
class WholeAnimations : public TestAnimations
{
    Q_OBJECT

public:
    using TestAnimations::TestAnimations;

    void move(unsigned from, unsigned to) override
    {
        beginChange(QString());
        if (document()->lastBlock().length() > 1) {
            document()->insert(QStringLiteral("\n"));
        }
        TestAnimations::move(from, to);
        endChange();
    }
};

/// What one step up makes of the selected values: each changes places with the one above.
QVector<int> oneUp(QVector<int> values, const QVector<int>& selected)
{
    for (int i = 1; i < values.size(); ++i) {
        if (selected.contains(values[i]) && !selected.contains(values[i - 1])) {
            std::swap(values[i], values[i - 1]);
        }
    }
    return values;
}

QVector<int> moved(QVector<int> values, const QVector<int>& selected, int distance)
{
    const bool isDown = distance > 0;
    for (int i = 0; i < std::abs(distance); ++i) {
        if (isDown) {
            std::reverse(values.begin(), values.end());
        }
        values = oneUp(values, selected);
        if (isDown) {
            std::reverse(values.begin(), values.end());
        }
    }
    return values;
}

QVector<int> dropped(const QVector<int>& values, const QVector<int>& selected, int target)
{
    QVector<int> above, taken, below;
    for (int i = 0; i < values.size(); ++i) {
        (selected.contains(values[i]) ? taken : i < target ? above : below).append(values[i]);
    }
    return above + taken + below;
}

}  // namespace

/// The organizer with a real view, on a host of real actions.
class TestOrganizer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void movesAgainstPlainList_data();
    void movesAgainstPlainList();
    void animationsComeBackByUndo();
    void dropsAtTheMouse_data();
    void dropsAtTheMouse();
    void refusesForeignRows();
    void enablesWhatCanBeDone();
    void followsListsThatComeAndGo();
    void tellsWhatWasChosen();
    void fewCallsForManyRows();

private:
    QAbstractItemModel* rows() const { return m_view->model(); }
    QPoint placeOf(int target) const;
    void drop(const QMimeData* data, int target, Qt::DropAction action = Qt::MoveAction);
    std::unique_ptr<QMimeData> payload(const QVector<int>& of) const;
    void select(const QVector<int>& wanted);
    QVector<int> selectRandomly(QRandomGenerator& random);

    std::unique_ptr<TestInterface> m_host;
    std::unique_ptr<OrganizerEditor> m_organizer;
    QListView* m_view = nullptr;
};

void TestOrganizer::init()
{
    m_host = std::make_unique<TestInterface>();
    m_organizer = std::make_unique<OrganizerEditor>();
    m_view = qobject_cast<QListView*>(m_host->controls.value(QStringLiteral("org_list")));
    QVERIFY(m_view);
    QWidget* window = m_host->controlsWindow();
    window->setFixedSize(400, 1200);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window));
}

void TestOrganizer::cleanup()
{
    m_organizer.reset();
    m_host.reset();
}

QPoint TestOrganizer::placeOf(int target) const
{
    if (target < rows()->rowCount()) {
        return m_view->visualRect(rows()->index(target, 0)).topLeft();
    }
    return m_view->visualRect(rows()->index(target - 1, 0)).bottomLeft() + QPoint(0, 5);
}

void TestOrganizer::drop(const QMimeData* data, int target, Qt::DropAction action)
{
    QDragEnterEvent enter(placeOf(target), action, data, Qt::LeftButton, {});
    QApplication::sendEvent(m_view->viewport(), &enter);
    QDropEvent event(placeOf(target), action, data, Qt::LeftButton, {});
    QApplication::sendEvent(m_view->viewport(), &event);
    QVERIFY(!event.isAccepted());
}

std::unique_ptr<QMimeData> TestOrganizer::payload(const QVector<int>& of) const
{
    QModelIndexList indexes;
    for (int row : of) {
        indexes.append(rows()->index(row, 0));
    }
    return std::unique_ptr<QMimeData>(rows()->mimeData(indexes));
}

void TestOrganizer::select(const QVector<int>& wanted)
{
    m_organizer->setCurrentRow(-1);
    for (int row : wanted) {
        m_view->selectionModel()->setCurrentIndex(rows()->index(row, 0),
                                                  QItemSelectionModel::Select);
    }
}

QVector<int> TestOrganizer::selectRandomly(QRandomGenerator& random)
{
    QVector<int> wanted;
    const int chance = random.bounded(1, 5);
    for (int row = 0; row < rows()->rowCount(); ++row) {
        if (random.bounded(chance) == 0) {
            wanted.append(row);
        }
    }
    select(wanted);
    return wanted;
}

void TestOrganizer::movesAgainstPlainList_data()
{
    QTest::addColumn<bool>("resets");
    QTest::newRow("a list that moves rows") << false;
    QTest::newRow("a list that knows only resets") << true;
}

/// Any act on any selection: the order of a plain list, one step, and what was selected stays so.
void TestOrganizer::movesAgainstPlainList()
{
    QFETCH(bool, resets);
    qInfo("seed %u", Seed);
    QRandomGenerator random(Seed);
    const QAbstractItemModelTester tester(rows(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QList<QPair<const char*, int>> steps{{"org_up", -1},     {"org_down", 1},
                                               {"org_up10", -10},  {"org_down10", 10},
                                               {"org_top", -1000}, {"org_bottom", 1000}};
    for (int run = 0; run < 400; ++run) {
        Numbers list(random.bounded(25));
        list.resets = resets;
        m_organizer->setObject(&list);
        std::random_shuffle(list.values.begin(), list.values.end(),
                            [&](int n) { return random.bounded(n); });
        const QVector<int> before = list.values;
        const QVector<int> wanted = selectRandomly(random);
        const int current = m_organizer->currentRow();
        QVector<int> selected, stillSelected;
        for (int row : wanted) {
            selected.append(before[row]);
        }
        QVector<int> expected;
        const int act = random.bounded(steps.size() + 1);
        if (act < steps.size()) {
            expected = moved(before, selected, steps[act].second);
            QAction* action = m_host->actions[QString::fromLatin1(steps[act].first)];
            QCOMPARE(action->isEnabled(), expected != before);
            action->trigger();
        } else {
            const int target = random.bounded(before.size() + 1);
            expected = dropped(before, selected, target);
            QVERIFY(!rows()->dropMimeData(payload(wanted).get(), Qt::MoveAction, target, 0, {}));
        }
        QCOMPARE(list.values, expected);
        QCOMPARE(list.depth, 0);
        QCOMPARE(list.steps, expected == before ? 0 : 1);
        for (int row : m_organizer->selectedRows()) {
            stillSelected.append(list.values[row]);
        }
        QCOMPARE(stillSelected, selected);
        if (!resets && current >= 0) {
            QCOMPARE(list.values[m_organizer->currentRow()], before[current]);
        }
    }
    QCOMPARE(m_organizer->object(), nullptr);
    QCOMPARE(rows()->rowCount(), 0);
}

/// The animations of a text, whose own move to the last place ends at the head of the text.
void TestOrganizer::animationsComeBackByUndo()
{
    qInfo("seed %u", Seed);
    QRandomGenerator random(Seed);
    GrammarDocument document(QStringLiteral("[1]\na=1\n!3\n-f\n!b\n!1\n-g\n-h\n!a\n!2\n"));
    auto* list = new WholeAnimations(&document);
    document.registerDocumentEditor(list, CodeNode::Animation, 0);
    document.reparse();
    m_organizer->setObject(list);
    const auto names = [this] {
        QStringList result;
        for (int row = 0; row < rows()->rowCount(); ++row) {
            result.append(rows()->index(row, 0).data().toString());
        }
        return result;
    };
    for (int run = 0; run < 200; ++run) {
        const QString text = document.text();
        const QStringList before = names();
        QVector<int> wanted = selectRandomly(random);
        const int target = random.bounded(before.size() + 1);
        QVector<int> all{0, 1, 2, 3, 4};
        drop(payload(wanted).get(), target);
        QStringList expected;
        for (int row : dropped(all, wanted, target)) {
            expected.append(before[row]);
        }
        QCOMPARE(names(), expected);
        QCOMPARE(m_organizer->selectedRows().size(), wanted.size());
        if (random.bounded(10) == 0) {
            m_organizer->organize();
        }
        QCOMPARE(document.dump(), GrammarDocument(document.text()).dump());
        while (document.text() != text) {
            QVERIFY(document.isUndoAvailable());
            document.undo();
        }
        QCOMPARE(names(), before);
        if (random.bounded(3) == 0) {
            document.redo();
        }
    }
}

void TestOrganizer::dropsAtTheMouse_data()
{
    columns<QVector<int>, int, QVector<int>>("dragged", "target", "expected");
    using Rows = QVector<int>;
    QTest::newRow("to the top") << Rows{3} << 0 << Rows{3, 0, 1, 2, 4};
    QTest::newRow("behind the last") << Rows{0} << 5 << Rows{1, 2, 3, 4, 0};
    QTest::newRow("all but the last") << Rows{0, 1, 2, 3} << 5 << Rows{4, 0, 1, 2, 3};
    QTest::newRow("the first of them stands there") << Rows{1, 3} << 1 << Rows{0, 1, 3, 2, 4};
    QTest::newRow("on both sides") << Rows{0, 4} << 2 << Rows{1, 0, 4, 2, 3};
    QTest::newRow("where they are") << Rows{1, 2} << 2 << Rows{0, 1, 2, 3, 4};
}

void TestOrganizer::dropsAtTheMouse()
{
    const auto [dragged, target, expected] = fetched<QVector<int>, int, QVector<int>>();
    Numbers list(5);
    m_organizer->setObject(&list);
    select(dragged);
    drop(payload(dragged).get(), target, Qt::CopyAction);
    QCOMPARE(list.steps, 0);
    QSignalSpy told(m_organizer.get(), &OrganizerEditor::selectionMoved);
    drop(payload(dragged).get(), target);
    QCOMPARE(list.values, expected);
    QCOMPARE(told.count(), list.steps);
}

void TestOrganizer::refusesForeignRows()
{
    Numbers list(5);
    m_organizer->setObject(&list);
    const auto canDrop = [this](const QMimeData* data) {
        return rows()->canDropMimeData(data, Qt::MoveAction, 2, 0, {});
    };
    const auto own = payload({1});
    QVERIFY(canDrop(own.get()));
    const std::unique_ptr<QMimeData> ofList(list.mimeData({list.index(1)}));
    QMimeData cut;
    cut.setData(own->formats().value(0), own->data(own->formats().value(0)).left(14));
    QVERIFY(!canDrop(ofList.get()) && !canDrop(&cut) && !canDrop(nullptr));

    // Another process has another number, which comes first.
    QMimeData foreign;
    QByteArray bytes = own->data(own->formats().value(0));
    bytes[7] = char(bytes[7] ^ 1);
    foreign.setData(own->formats().value(0), bytes);
    QVERIFY(!canDrop(&foreign));

    // The numbers mean other rows as soon as one comes or goes.
    list.insert(0, 9);
    QVERIFY(!canDrop(own.get()));
    const auto late = payload({1});
    Numbers other(5);
    m_organizer->setObject(&other);
    drop(late.get(), 5);
    QCOMPARE(other.steps, 0);
    QCOMPARE(list.steps, 0);
}

void TestOrganizer::enablesWhatCanBeDone()
{
    Numbers list(4);
    m_organizer->setObject(&list);
    const auto state = [this] {
        QString result;
        for (const char* name : {"org_up", "org_top", "org_down10", "org_auto"}) {
            result +=
                QLatin1Char(m_host->actions[QString::fromLatin1(name)]->isEnabled() ? '1' : '0');
        }
        return result;
    };
    QCOMPARE(state(), QStringLiteral("0001"));
    const QList<QPair<QVector<int>, const char*>> cases{
        {{0}, "0011"},    {{3}, "1101"},          {{0, 1}, "0011"}, {{0, 2}, "1111"},
        {{2, 3}, "1101"}, {{0, 1, 2, 3}, "0001"}, {{1}, "1111"}};
    for (const auto& entry : cases) {
        select(entry.first);
        QCOMPARE(state(), QString::fromLatin1(entry.second));
    }
    list.remove(0);
    QCOMPARE(state(), QStringLiteral("0011"));
    m_organizer->setObject(nullptr);
    QCOMPARE(state(), QStringLiteral("0000"));
}

void TestOrganizer::followsListsThatComeAndGo()
{
    QSignalSpy current(m_organizer.get(), &OrganizerEditor::currentRowChanged);
    const QAbstractItemModelTester tester(rows(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    {
        Numbers list(5);
        m_organizer->setObject(&list);
        m_organizer->setCurrentRow(2);
        list.insert(0, 7);
        QCOMPARE(m_organizer->currentRow(), 3);
        QCOMPARE(list.values[3], 2);
        m_organizer->organize();
        QCOMPARE(m_organizer->currentRow(), 2);
        emit list.dataChanged(list.index(1), list.index(2));
    }
    QCOMPARE(m_organizer->currentRow(), -1);
    QCOMPARE(current.last().value(0).toInt(), -1);
    m_organizer->moveUp();
    m_organizer->organize();
    m_organizer->setCurrentRow(0);
    QVERIFY(m_organizer->selectedRows().isEmpty());
}

void TestOrganizer::tellsWhatWasChosen()
{
    Numbers list(5);
    m_organizer->setObject(&list);
    QSignalSpy activated(m_organizer.get(), &OrganizerEditor::rowActivated);
    const QPoint place = m_view->visualRect(rows()->index(3, 0)).center();
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(m_view->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(activated.count(), 1);
    QTest::keyClick(m_view, Qt::Key_Up);
    QTest::keyClick(m_view, Qt::Key_Return);
    QCOMPARE(activated.count(), 2);
    QCOMPARE(activated[0].value(0).toInt(), 3);
    QCOMPARE(activated[1].value(0).toInt(), 2);
}

void TestOrganizer::fewCallsForManyRows()
{
    Numbers list(50000);
    m_organizer->setObject(&list);
    m_organizer->setCurrentRow(25000);
    const QList<std::function<void()>> changes{
        [&] { list.insert(25001, -1); },
        [&] { list.remove(3); },
        [&] { list.move(25003, 24998); },
        [&] { emit list.dataChanged(list.index(25000), list.index(25000)); },
        [&] { m_organizer->moveDown(); },
        [&] { m_organizer->moveToTop(); },
        [&] {
            m_view->selectAll();
            m_view->selectionModel()->select(rows()->index(49998, 0),
                                             QItemSelectionModel::Deselect);
        },
        [&] { m_organizer->organize(); },
    };
    QCoreApplication::processEvents();
    for (const auto& change : changes) {
        list.calls = 0;
        change();
        QTest::qWait(20);
        QVERIFY2(list.calls > 0 && list.calls <= 1000, qPrintable(QString::number(list.calls)));
    }
}

QTEST_MAIN(TestOrganizer)
#include "tst_organizer.moc"
