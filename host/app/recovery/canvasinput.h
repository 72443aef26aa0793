#pragma once

#include "operations/recovery/recoveryinput.h"

#include <QObject>

namespace Operations {
struct CanvasCopy;
}

namespace Zorv {
class SpriteEditor;
}

namespace App {

/// The canvas of the sprite editor as recoverable work: its unsaved changes, and hidden layers,
/// which no sprite contains.
class CanvasInput : public QObject, public Operations::RecoveryInput
{
    Q_OBJECT

public:
    /// The editor outlives it.
    CanvasInput(Zorv::SpriteEditor* editor, QObject* parent);

    Zorv::ProjectFile* file() const override;
    std::function<bool(QIODevice*)> take(Operations::RecoveryCopy* copy) const override;

    /// Restores a canvas into the editor as unsaved work on its sprite. False, with `error`, if the
    /// sprite is not in the file or the user keeps the current canvas.
    bool restore(Zorv::ProjectFile* file, const Operations::CanvasCopy& canvas, QString* error);

    /// The editor of the canvas.
    Zorv::SpriteEditor* editor() const { return m_editor; }

signals:
    /// Sent soon after the canvas changed.
    void changed();

private:
    void changeSoon();

    Zorv::SpriteEditor* m_editor;
    bool m_isPending = false;
};

}  // namespace App
