#pragma once

#include <QJsonObject>
#include <QObject>

class QLocalSocket;

namespace Operations {

/// One end of a local connection between two programs. Each message is a JSON object on one line.
///
/// Incoming data is not trusted. A line that is too long or not an object closes the connection. So
/// does a peer that does not read what is sent. Main thread only.
class ObjectSocket : public QObject
{
    Q_OBJECT

public:
    /// Limits in bytes: for one line, and for data that the peer has not read yet.
    static constexpr int MostBytes = 64 * 1024;
    static constexpr int MostWaiting = 1024 * 1024;

    /// Takes ownership of the socket, which is connected or connecting.
    explicit ObjectSocket(QLocalSocket* socket, QObject* parent = nullptr);
    ~ObjectSocket() override;

    bool isConnected() const;

    /// Sends an object; does nothing without a connection.
    void send(const QJsonObject& object);

    /// Closes the connection and emits `closed()`.
    void close();

signals:
    void received(const QJsonObject& object);

    /// The connection has ended, or could not be made. Emitted once.
    void closed();

private:
    void readLines();

    QLocalSocket* m_socket;
    bool m_isClosed = false;
};

}  // namespace Operations
