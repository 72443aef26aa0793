#pragma once

#include <QObject>

namespace Zorv {
class SpriteEditor;
}

namespace App {

/// Shows the first picture as large as there is room for. The view finds its size in several steps,
/// so the zoom follows it until something else is done: from then on it is the person's.
class FirstZoom : public QObject
{
    Q_OBJECT

public:
    /// The editor outlives it.
    FirstZoom(Zorv::SpriteEditor* editor, QObject* parent);

private:
    void fit();
    void end();

    Zorv::SpriteEditor* m_editor;
    bool m_hasPicture = false;
    bool m_isFitting = false;
};

}  // namespace App
