#pragma once

#include <QObject>

namespace Zorv {
class SpriteEditor;
}

namespace App {

/// Zooms the first picture to fill the view. The view gets its size in several steps, so the zoom
/// follows it until the user does something; then the zoom is the user's.
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
