#include "operations/objectsocket.h"

#include <QJsonDocument>
#include <QLocalSocket>
#include <QPointer>

namespace Operations {

ObjectSocket::ObjectSocket(QLocalSocket* socket, QObject* parent)
    : QObject(parent), m_socket(socket)
{
    m_socket->setParent(this);
    m_socket->setReadBufferSize(MostBytes);
    connect(m_socket, &QLocalSocket::readyRead, this, &ObjectSocket::readLines);
    connect(m_socket, &QLocalSocket::disconnected, this, &ObjectSocket::close);
    connect(m_socket, &QLocalSocket::errorOccurred, this, &ObjectSocket::close);
    // Reads data that arrived before anyone was connected to the signal.
    QMetaObject::invokeMethod(this, &ObjectSocket::readLines, Qt::QueuedConnection);
}

/// The socket emits signals while it is destroyed, but this object is already half destroyed then.
ObjectSocket::~ObjectSocket()
{
    m_socket->disconnect(this);
}

bool ObjectSocket::isConnected() const
{
    return !m_isClosed && m_socket->state() == QLocalSocket::ConnectedState;
}

void ObjectSocket::send(const QJsonObject& object)
{
    if (!isConnected()) {
        return;
    }
    m_socket->write(QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n');
    if (m_socket->bytesToWrite() > MostWaiting) {
        close();
    }
}

void ObjectSocket::close()
{
    if (m_isClosed) {
        return;
    }
    m_isClosed = true;
    m_socket->abort();
    emit closed();
}

void ObjectSocket::readLines()
{
    const QPointer<ObjectSocket> self = this;
    while (self && !m_isClosed && m_socket->canReadLine()) {
        const QJsonDocument line = QJsonDocument::fromJson(m_socket->readLine());
        if (!line.isObject()) {
            close();
        } else {
            emit received(line.object());
        }
    }
    if (self && m_socket->bytesAvailable() >= MostBytes) {
        close();
    }
}

}  // namespace Operations
