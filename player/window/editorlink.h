#pragma once

#include "rules/fighterdata.h"

#include <QObject>

class QJsonObject;

namespace Operations {
class ObjectSocket;
}

namespace Player {

/// The player's end of the connection to the editor that started it; docs/engine.md describes the
/// protocol. If the editor disconnects, it does not come back; the match continues without it.
class EditorLink : public QObject
{
    Q_OBJECT

public:
    /// Connects to the editor at the local socket of this name.
    explicit EditorLink(const QString& socketName, QObject* parent = nullptr);

    bool isConnected() const;

    /// Asks the editor to show a line.
    void show(const Rules::TextPlace& place);

    /// Reports that files were saved. The editor then sends what to play.
    void tellChanged();

signals:
    /// Play a copy instead of its original. Without a copy, play the original instead of the last
    /// copy.
    void playAsked(const QString& copy, const QString& original, bool isStage);

private:
    void take(const QJsonObject& message);

    Operations::ObjectSocket* m_socket;
};

}  // namespace Player
