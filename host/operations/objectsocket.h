#pragma once

#include <QJsonObject>
#include <QObject>

class QLocalSocket;

namespace Operations {

/// One end of a local connection on which two programs tell each other things, a JSON object a
/// line.
///
/// What comes in is not trusted: a line that is too long or is no object ends the connection, and
/// so does another end that takes nothing in. Main thread only.
class ObjectSocket : public QObject
{
    Q_OBJECT

public:
    /// The bytes of a line, and of what waits to be taken in.
    static constexpr int MostBytes = 64 * 1024;
    static constexpr int MostWaiting = 1024 * 1024;

    /// Takes the socket over, connected or about to be.
    explicit ObjectSocket(QLocalSocket* socket, QObject* parent = nullptr);
    ~ObjectSocket() override;

    bool isConnected() const;

    /// Sends an object; nothing without a connection.
    void send(const QJsonObject& object);

    /// Ends the connection; `closed()` tells it.
    void close();

signals:
    void received(const QJsonObject& object);

    /// There is no connection any more, or there was none to be had. Told once.
    void closed();

private:
    void readLines();

    QLocalSocket* m_socket;
    bool m_isClosed = false;
};

}  // namespace Operations
