#pragma once

#include <QLocalServer>
#include <QObject>

class QJsonObject;

namespace Operations {
class ObjectSocket;
}

namespace App {

/// The editor's end of the way to the player that it starts: a local socket that only this person
/// can open, with a name that no other has. docs/engine.md tells what goes over it.
///
/// The player reaches it as soon as it is up, once; whoever else comes is turned away.
class PlayerLink : public QObject
{
    Q_OBJECT

public:
    explicit PlayerLink(QObject* parent = nullptr);
    ~PlayerLink() override;

    /// What the player is told; empty where there can be no socket. It plays without then.
    QString name() const { return m_server.fullServerName(); }

    /// True from the moment at which the player is there to one of the two going away.
    bool isConnected() const { return m_socket; }

    /// The player goes on with a copy of a character or stage; `original` is empty for what was
    /// never saved. Without a copy it takes the original of the last one.
    void play(const QString& copy, const QString& original, bool isStage);

signals:
    /// `isConnected()` is another.
    void changed();

    /// The person wants to see a line, from 1, of a file, in the editor.
    void lineAsked(const QString& file, int line);

    /// The player has seen that files were saved.
    void filesChanged();

private:
    void accept();
    void take(const QJsonObject& message);

    QLocalServer m_server;
    Operations::ObjectSocket* m_socket = nullptr;
};

}  // namespace App
