#pragma once

#include <QLocalServer>
#include <QObject>

class QJsonObject;

namespace Operations {
class ObjectSocket;
}

namespace App {

/// The editor's end of the connection to the player that it starts: a local socket with a unique
/// name that only the current user can open. docs/engine.md describes the protocol.
///
/// The player connects once, when it has started; other connections are refused.
class PlayerLink : public QObject
{
    Q_OBJECT

public:
    explicit PlayerLink(QObject* parent = nullptr);
    ~PlayerLink() override;

    /// The name passed to the player; empty if no socket could be opened. The player then runs
    /// without a connection.
    QString name() const { return m_server.fullServerName(); }

    /// True while the player is connected.
    bool isConnected() const { return m_socket; }

    /// Makes the player continue with a copy of a character or stage. `original` is empty if it was
    /// never saved. If `copy` is empty, the player loads the original of the previous one.
    void play(const QString& copy, const QString& original, bool isStage);

signals:
    /// `isConnected()` changed.
    void changed();

    /// The user wants to see a line, counted from 1, of a file in the editor.
    void lineAsked(const QString& file, int line);

    /// The player noticed that files were saved.
    void filesChanged();

private:
    void accept();
    void take(const QJsonObject& message);

    QLocalServer m_server;
    Operations::ObjectSocket* m_socket = nullptr;
};

}  // namespace App
