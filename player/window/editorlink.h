#pragma once

#include "rules/fighterdata.h"

#include <QObject>

class QJsonObject;

namespace Operations {
class ObjectSocket;
}

namespace Player {

/// The player's end of the way to the editor that has started it; docs/engine.md tells what goes
/// over it. An editor that is gone does not come back: the match goes on without.
class EditorLink : public QObject
{
    Q_OBJECT

public:
    /// Looks for the editor at the local socket of this name.
    explicit EditorLink(const QString& socketName, QObject* parent = nullptr);

    bool isConnected() const;

    /// Lets the editor show a line.
    void show(const Rules::TextPlace& place);

    /// Tells that files were saved: the editor sends what is to be played then.
    void tellChanged();

signals:
    /// A copy that takes the place of what it was made of. Without a name of a copy it is the
    /// original that takes the place of the last copy.
    void playAsked(const QString& copy, const QString& original, bool isStage);

private:
    void take(const QJsonObject& message);

    Operations::ObjectSocket* m_socket;
};

}  // namespace Player
