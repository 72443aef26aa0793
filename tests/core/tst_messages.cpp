#include "core/messagelist.h"
#include "core/messages.h"
#include "support/testproject.h"
#include "support/testtable.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <memory>
#include <utility>

using namespace Zorv;

namespace {

constexpr auto Fatal = QAbstractItemModelTester::FailureReportingMode::Fatal;

QStringList rows(const QAbstractItemModel& model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        texts << model.index(row, 0).data().toString();
    }
    return texts;
}

/// The texts of a model as a view knows them, from its signals alone.
class Follower : public QObject
{
public:
    explicit Follower(QAbstractItemModel* model) : texts(rows(*model))
    {
        connect(model, &QAbstractItemModel::rowsInserted, this,
                [this, model](const QModelIndex&, int first, int last) {
                    for (int row = first; row <= last; ++row) {
                        texts.insert(row, model->index(row, 0).data().toString());
                    }
                });
        connect(model, &QAbstractItemModel::rowsRemoved, this,
                [this](const QModelIndex&, int first, int last) {
                    texts.erase(texts.begin() + first, texts.begin() + last + 1);
                });
        connect(model, &QAbstractItemModel::dataChanged, this,
                [this, model](const QModelIndex& from, const QModelIndex& to) {
                    for (int row = from.row(); row <= to.row(); ++row) {
                        texts[row] = model->index(row, 0).data().toString();
                    }
                });
    }

    QStringList texts;
};

/// Messages in order, kept by looking at all of them.
struct SlowModel
{
    QVector<Message> list;

    void replaceLine(int line, const QVector<Message>& messages)
    {
        moveLines(line, 1, 1);
        list += messages;
        std::stable_sort(list.begin(), list.end(),
                         [](const Message& a, const Message& b) { return a.line < b.line; });
    }

    void moveLines(int first, int removed, int added)
    {
        QVector<Message> moved;
        for (Message message : qAsConst(list)) {
            if (message.line >= first && message.line < first + removed) {
                continue;
            }
            if (message.line >= first) {
                message.line += added - removed;
            }
            moved.append(message);
        }
        list = moved;
    }
};

Message makeMessage(int line, int column, int type, const QString& text)
{
    Message message;
    message.type = static_cast<Message::Type>(type);
    message.line = line;
    message.column = column;
    message.text = text;
    return message;
}

}  // namespace

class TestMessages : public QObject
{
    Q_OBJECT

private slots:
    void init() { parent = std::make_unique<TestParent>(folder.path()); }
    void cleanup() { parent.reset(); }
    void insertsInOrderAtTheEnd();
    void insertAfterClearLineLandsEarly();
    void clearLineReachesOnlyTheTail();
    void operationsOnAnEmptyList();
    void frameHoldsNotificationBack();
    void followsEdits_data();
    void followsEdits();
    void projectShowsAllFiles();
    void sameFileTwice();
    void rowsInsideAFrame();
    void dyingFileLeavesTheList();
    void fileClosedByItsOwnMessage();
    void listDiesFirst();

private:
    const QTemporaryDir folder;
    std::unique_ptr<TestParent> parent;
};

void TestMessages::insertsInOrderAtTheEnd()
{
    Messages messages(nullptr);
    const QAbstractItemModelTester tester(&messages, Fatal);
    for (int line = 0; line < 5; ++line) {
        messages.insert(Message::Warning, QString::number(line), line, 3);
    }
    // Of one place, both go behind what stands before them.
    messages.insert(Message::Warning, "5", 5, 1);
    messages.insert(Message::Warning, "6", 5, 1);
    QCOMPARE(rows(messages), QStringList({"0", "1", "2", "3", "4", "5", "6"}));
    messages.insert(Message::Warning, "5b", 5, 2);
    QCOMPARE(rows(messages), QStringList({"0", "1", "2", "3", "4", "5", "5b", "6"}));
}

void TestMessages::insertAfterClearLineLandsEarly()
{
    Messages messages(nullptr);
    for (int line = 0; line < 4; ++line) {
        messages.insert(Message::Error, QString::number(line), line, 0);
    }
    messages.clearLine(2);
    messages.insert(Message::Error, "2 again", 2, 0);
    QCOMPARE(rows(messages), QStringList({"0", "2 again", "1", "3"}));
    messages.insert(Message::Error, "0 again", 0, 0);
    QCOMPARE(rows(messages), QStringList({"0", "2 again", "1", "3", "0 again"}));
}

void TestMessages::clearLineReachesOnlyTheTail()
{
    Messages messages(nullptr);
    const QAbstractItemModelTester tester(&messages, Fatal);
    for (const int line : {5, 2, 5, 7, 5}) {
        messages.add(Message::Error, QString::number(line), line, 0);
    }
    QSignalSpy updated(&messages, &Messages::updated);
    messages.clearLine(5);
    QCOMPARE(rows(messages), QStringList({"5", "2", "7"}));
    QCOMPARE(updated.count(), 1);
    messages.clearLine(6);
    QCOMPARE(updated.count(), 1);
}

void TestMessages::operationsOnAnEmptyList()
{
    Messages messages(nullptr);
    QSignalSpy updated(&messages, &Messages::updated);
    messages.clear();
    messages.clearLine(0);
    messages.replaceLine(0, {});
    messages.moveLines(0, 3, 5);
    messages.endChange();
    QCOMPARE(updated.count(), 0);
    QCOMPARE(messages.indexOfLine(7), 0);
    QCOMPARE(messages.fileString(), QString());
    QVERIFY(messages.at(0).text.isEmpty());
    QVERIFY(!messages.data(messages.index(0, 0)).isValid());
    messages.notifyUpdate();
    QCOMPARE(updated.count(), 1);
}

void TestMessages::frameHoldsNotificationBack()
{
    TestProject* project = parent->open({}, {});
    Messages* messages = project->file(FileID::MainCode)->messages();
    QSignalSpy updated(messages, &Messages::updated);
    QSignalSpy listUpdated(project->messages(), &MessageList::updated);

    messages->beginChange();
    messages->beginChange();
    messages->insert(Message::Error, "a", 0, 0);
    messages->endChange();
    QCOMPARE(messages->rowCount(), 1);
    QCOMPARE(project->messages()->rowCount(), 0);
    QCOMPARE(updated.count(), 0);
    messages->endChange();
    QCOMPARE(updated.count(), 1);
    QCOMPARE(listUpdated.count(), 1);
    QCOMPARE(rows(*project->messages()), QStringList("file 1/0 (1) : a"));

    messages->beginChange();
    messages->endChange();
    QCOMPARE(updated.count(), 2);
}

void TestMessages::followsEdits_data()
{
    columns<int, bool>("lines", "local");
    QTest::newRow("few lines") << 6 << false;
    QTest::newRow("many lines") << 400 << false;
    QTest::newRow("near one place") << 400 << true;
}

// replaceLine() and moveLines() against a model that looks at every message,
// with a view that knows no more than the signals.
void TestMessages::followsEdits()
{
    const auto [lines, local] = fetched<int, bool>();
    const quint32 seed = 20240607;
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    Messages messages(nullptr);
    const QAbstractItemModelTester tester(&messages, Fatal);
    const Follower follower(&messages);
    SlowModel slow;
    for (int step = 0; step < 3000; ++step) {
        const int line = local ? lines / 2 + random.bounded(3) : random.bounded(lines);
        if (random.bounded(3) > 0) {
            QVector<Message> list;
            const int count = random.bounded(4);
            for (int i = 0; i < count; ++i) {
                list << makeMessage(line, i, random.bounded(3), QString::number(random.bounded(9)));
            }
            messages.replaceLine(line, list);
            slow.replaceLine(line, list);
        } else {
            const int removed = random.bounded(4);
            const int added = random.bounded(4);
            messages.moveLines(line, removed, added);
            slow.moveLines(line, removed, added);
        }
        if (random.bounded(500) == 0) {
            messages.clear();
            slow.list.clear();
        }
        QCOMPARE(messages.count(Message::AllTypes), slow.list.size());
        for (int i = 0; i < slow.list.size(); ++i) {
            QVERIFY2(messages.at(i) == slow.list.at(i),
                     qPrintable(QStringLiteral("step %1, message %2").arg(step).arg(i)));
        }
        QCOMPARE(follower.texts, rows(messages));
        const auto isWarning = [](const Message& m) { return m.type == Message::Warning; };
        QCOMPARE(messages.count(Message::Warning),
                 int(std::count_if(slow.list.begin(), slow.list.end(), isWarning)));
        const auto atLine = std::find_if(slow.list.begin(), slow.list.end(),
                                         [line](const Message& m) { return m.line >= line; });
        QCOMPARE(messages.indexOfLine(line), int(atLine - slow.list.begin()));
    }
}

void TestMessages::projectShowsAllFiles()
{
    TestProject* project = parent->open({}, {});
    MessageList* list = project->messages();
    const QAbstractItemModelTester tester(list, Fatal);
    const Follower follower(list);
    auto* first = new TestFile;
    auto* empty = new TestFile;
    auto* second = new TestFile;
    project->addFile(first, 4 | 8);
    project->addFile(empty, 2);
    project->addFile(second, 4);
    first->messages()->add(Message::Error, "%1 one", 0, 0);
    second->messages()->add(Message::Warning, "two", 8, 0);
    first->messages()->add(Message::Information, "three", 3, 0);

    QCOMPARE(rows(*list),
             QStringList({"file 4/0 (1) : %1 one", "file 4/0 (4) : three", "file 4/1 (9) : two"}));
    QCOMPARE(follower.texts, rows(*list));
    QCOMPARE(list->errorCount(), 1);
    QCOMPARE(list->warningCount(), 1);

    FileID id = 99;
    QCOMPARE(list->messageAt(1, id).text, QString("three"));
    QCOMPARE(quint32(id), 12u);
    id = 99;
    QVERIFY(list->messageAt(3, id).text.isEmpty());
    QVERIFY(list->messageAt(-1, id).text.isEmpty());
    QCOMPARE(quint32(id), 99u);
    int place = -1;
    QCOMPARE(list->messagesAt(2, &place), second->messages());
    QCOMPARE(place, 0);
}

void TestMessages::sameFileTwice()
{
    TestProject* project = parent->open({}, {});
    auto* file = new TestFile;
    project->addFile(file, 2);
    project->addFile(file, 4);
    file->messages()->add(Message::Error, "a", 0, 0);
    QCOMPARE(project->messages()->rowCount(), 2);
    QCOMPARE(project->messages()->errorCount(), 2);

    // Taken out of the project the file is still listed, without a title.
    project->takeFile(file);
    QCOMPARE(rows(*project->messages()), QStringList({" (1) : a", " (1) : a"}));
    file->release();
    QCOMPARE(project->messages()->rowCount(), 0);
}

// A view may ask for old rows while a file is in the middle of its changes.
void TestMessages::rowsInsideAFrame()
{
    TestProject* project = parent->open({}, {});
    auto* file = new TestFile;
    project->addFile(file, 2);
    for (int line = 0; line < 3; ++line) {
        file->messages()->add(Message::Error, "a", line, 0);
    }
    file->messages()->beginChange();
    file->messages()->clear();
    QCOMPARE(project->messages()->rowCount(), 3);
    QCOMPARE(rows(*project->messages()), QStringList({"", "", ""}));
    file->messages()->endChange();
    QCOMPARE(project->messages()->rowCount(), 0);
}

void TestMessages::dyingFileLeavesTheList()
{
    TestProject* project = parent->open({}, {});
    auto* file = new TestFile;
    project->addFile(file, 2);
    file->messages()->add(Message::Error, "a", 0, 0);
    // A view looks at the rows once more before they go.
    QAbstractItemModelTester tester(project->messages(),
                                    QAbstractItemModelTester::FailureReportingMode::QtTest);
    QSignalSpy updated(project->messages(), &MessageList::updated);
    project->removeFile(file);
    QCOMPARE(updated.count(), 1);
    QCOMPARE(project->messages()->rowCount(), 0);
    QCOMPARE(project->messages()->errorCount(), 0);
}

void TestMessages::fileClosedByItsOwnMessage()
{
    TestProject* project = parent->open({}, {});
    auto* file = new TestFile;
    project->addFile(file, 2);
    const QObject scope;
    connect(project->messages(), &MessageList::updated, &scope, [&file, project] {
        if (file) {
            project->removeFile(std::exchange(file, nullptr));
        }
    });
    file->messages()->add(Message::Error, "a", 0, 0);
    QVERIFY(!file);
    QCOMPARE(project->messages()->rowCount(), 0);
}

void TestMessages::listDiesFirst()
{
    auto list = std::make_unique<MessageList>(nullptr);
    Messages messages(nullptr);
    list->registerMessages(&messages);
    list.reset();
    messages.add(Message::Error, "a", 0, 0);

    MessageList first(nullptr);
    first.registerMessages(&messages);
    MessageList second(nullptr);
    second.registerMessages(&messages);
    QCOMPARE(first.rowCount(), 0);
    QCOMPARE(second.rowCount(), 1);
}

QTEST_MAIN(TestMessages)
#include "tst_messages.moc"
