#pragma once

#include "app/window/part.h"

#include <QObject>

namespace Zorv {
class ThumbnailsEditor;
}

namespace App {

struct WindowServices;

/// The thumbnail panel: the sprites of the current project, for adding them to animations.
class ThumbnailCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// Creates the panel, which places its tools in the host's window. A child of the window.
    explicit ThumbnailCommands(const WindowServices& services);

    Zorv::ThumbnailsEditor* panel() const { return m_panel; }

    /// The editors, including the animation editor, exist by now.
    void actionsMade() override;
    void showProject(Family::FamilyProject* project) override;
    QVector<PanelPlace> places() override;

private:
    const WindowServices& m_services;
    Zorv::ThumbnailsEditor* m_panel;
};

}  // namespace App
