#include "operations/objectsocket.h"
#include "support/testtable.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using Operations::ObjectSocket;

class TestObjectSocket : public QObject
{
    Q_OBJECT

private slots:
    void lines_data();
    void lines();
    void nobodyTakesAnythingIn();
    void mayDieOfAnObject();

private:
    /// The other end of a connection is a bare socket.
    std::unique_ptr<ObjectSocket> connected(QLocalSocket* other)
    {
        QLocalServer server;
        server.listen(m_dir.filePath("socket"));
        other->connectToServer(server.fullServerName());
        server.waitForNewConnection(10000);
        return std::make_unique<ObjectSocket>(server.nextPendingConnection());
    }

    QTemporaryDir m_dir;
};

void TestObjectSocket::lines_data()
{
    columns<QByteArray, int, bool>("bytes", "objects", "isOpen");
    const int most = ObjectSocket::MostBytes;
    row("two", QByteArray("{\"a\":1}\n{}\r\n"), 2, true);
    row("one and a half", QByteArray("{}\n{\"a\":"), 1, true);
    row("no object", QByteArray("{}\n[1]\n{}\n"), 1, false);
    row("nonsense", QByteArray("\0\xff\n{}\n", 6), 0, false);
    row("nothing", QByteArray("\n"), 0, false);
    row("nested", QByteArray(most / 2, '[') + '\n', 0, false);
    row("as long as can be", "{\"a\":\"" + QByteArray(most - 9, 'x') + "\"}\n", 1, true);
    row("longer", "{\"a\":\"" + QByteArray(most, 'x') + "\"}\n", 0, false);
    row("without end", QByteArray(10 * most, 'x'), 0, false);
}

/// Bytes come as they like.
void TestObjectSocket::lines()
{
    const auto [bytes, objects, isOpen] = fetched<QByteArray, int, bool>();
    for (const int piece : {3, 1 << 20}) {
        QLocalSocket other;
        const std::unique_ptr<ObjectSocket> socket = connected(&other);
        const QSignalSpy received(socket.get(), &ObjectSocket::received);
        const QSignalSpy closed(socket.get(), &ObjectSocket::closed);
        for (int at = 0; at<bytes.size(); at += bytes.size()> 1000 ? 1 << 20 : piece) {
            other.write(bytes.mid(at, bytes.size() > 1000 ? 1 << 20 : piece));
            other.flush();
            QCoreApplication::processEvents();
        }
        QTRY_COMPARE(received.count(), objects);
        QTRY_COMPARE(closed.count(), isOpen ? 0 : 1);
        QCOMPARE(socket->isConnected(), isOpen);
        other.abort();
        QTRY_COMPARE(closed.count(), 1);
        socket->send({});
    }
}

void TestObjectSocket::nobodyTakesAnythingIn()
{
    QLocalSocket other;
    const std::unique_ptr<ObjectSocket> socket = connected(&other);
    const QString text(ObjectSocket::MostBytes, 'x');
    for (int i = 0; i < 100 && socket->isConnected(); ++i) {
        socket->send({{"a", text}});
    }
    QVERIFY(!socket->isConnected());
}

void TestObjectSocket::mayDieOfAnObject()
{
    QLocalSocket other;
    std::unique_ptr<ObjectSocket> socket = connected(&other);
    connect(socket.get(), &ObjectSocket::received, this, [&socket] { socket.reset(); });
    other.write("{}\n{}\n");
    QTRY_VERIFY(!socket);
}

QTEST_GUILESS_MAIN(TestObjectSocket)
#include "tst_objectsocket.moc"
