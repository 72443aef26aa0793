#include "app/run/playerlink.h"

#include "operations/objectsocket.h"

#include <QDir>
#include <QLocalSocket>
#include <QUuid>

namespace App {

namespace {

/// The socket is in the session folder, which is emptied when the session ends: a killed program
/// cannot remove it. A leftover socket does no harm, because names are never reused.
QString newSocketName()
{
    const QFileInfo session(qEnvironmentVariable("XDG_RUNTIME_DIR"));
    const QString folder =
        session.isDir() && session.isWritable() ? session.absoluteFilePath() : QDir::tempPath();
    return folder + QStringLiteral("/zorv-") + QUuid::createUuid().toString(QUuid::WithoutBraces);
}

}  // namespace

PlayerLink::PlayerLink(QObject* parent) : QObject(parent)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &PlayerLink::accept);
    m_server.listen(newSocketName());
}

PlayerLink::~PlayerLink() = default;

void PlayerLink::accept()
{
    while (QLocalSocket* incoming = m_server.nextPendingConnection()) {
        if (m_socket) {
            incoming->abort();
            incoming->deleteLater();
            continue;
        }
        m_socket = new Operations::ObjectSocket(incoming, this);
        connect(m_socket, &Operations::ObjectSocket::received, this, &PlayerLink::take);
        connect(m_socket, &Operations::ObjectSocket::closed, this, [this] {
            m_socket->deleteLater();
            m_socket = nullptr;
            emit changed();
        });
        emit changed();
    }
}

void PlayerLink::take(const QJsonObject& message)
{
    if (message.contains(QLatin1String("show"))) {
        const QJsonObject place = message.value(QLatin1String("show")).toObject();
        emit lineAsked(place.value(QLatin1String("file")).toString(),
                       place.value(QLatin1String("line")).toInt());
    } else if (message.contains(QLatin1String("changed"))) {
        emit filesChanged();
    }
}

void PlayerLink::play(const QString& copy, const QString& original, bool isStage)
{
    if (m_socket) {
        m_socket->send({{QStringLiteral("play"), QJsonObject{{QStringLiteral("copy"), copy},
                                                             {QStringLiteral("original"), original},
                                                             {QStringLiteral("stage"), isStage}}}});
    }
}

}  // namespace App
