#pragma once

#include "app/window/part.h"

#include <QObject>

namespace Zorv {
class ThumbnailsEditor;
}

namespace App {

struct WindowServices;

/// The panel of thumbnails: the sprites of the project in front, on their way into animations.
class ThumbnailCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// Makes the panel, which places its tools in the window of the host. Lives as a child of the
    /// window.
    explicit ThumbnailCommands(const WindowServices& services);

    Zorv::ThumbnailsEditor* panel() const { return m_panel; }

    /// The editors are there by now, that of animations among them.
    void actionsMade() override;
    void showProject(Family::FamilyProject* project) override;
    QVector<PanelPlace> places() override;

private:
    const WindowServices& m_services;
    Zorv::ThumbnailsEditor* m_panel;
};

}  // namespace App
