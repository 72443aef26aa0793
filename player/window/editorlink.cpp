#include "window/editorlink.h"

#include "operations/objectsocket.h"

#include <QLocalSocket>

namespace Player {

EditorLink::EditorLink(const QString& socketName, QObject* parent) : QObject(parent)
{
    auto* const socket = new QLocalSocket;
    m_socket = new Operations::ObjectSocket(socket, this);
    connect(m_socket, &Operations::ObjectSocket::received, this, &EditorLink::take);
    socket->connectToServer(socketName);
}

bool EditorLink::isConnected() const
{
    return m_socket->isConnected();
}

void EditorLink::show(const Rules::TextPlace& place)
{
    m_socket->send({{QStringLiteral("show"), QJsonObject{{QStringLiteral("file"), place.file},
                                                         {QStringLiteral("line"), place.line}}}});
}

void EditorLink::tellChanged()
{
    m_socket->send({{QStringLiteral("changed"), true}});
}

void EditorLink::take(const QJsonObject& message)
{
    if (message.contains(QLatin1String("play"))) {
        const QJsonObject work = message.value(QLatin1String("play")).toObject();
        emit playAsked(work.value(QLatin1String("copy")).toString(),
                       work.value(QLatin1String("original")).toString(),
                       work.value(QLatin1String("stage")).toBool());
    }
}

}  // namespace Player
