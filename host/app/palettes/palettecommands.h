#pragma once

#include "app/window/part.h"

#include <QObject>

namespace App {

class FamilyPaletteEditor;
struct WindowServices;

/// The panel of palettes, which goes with the canvas. With the keyboard in it undo is that of the
/// file of the sprites; the rest is done by the editor in front.
class PaletteCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// Makes the panel, which places its tools in the window of the host. Lives as a child of the
    /// window, and longer than the editor of sprites.
    explicit PaletteCommands(const WindowServices& services);
    ~PaletteCommands() override;

    FamilyPaletteEditor* editor() const { return m_editor; }

    QVector<PanelPlace> places() override;

private:
    FamilyPaletteEditor* m_editor;
};

}  // namespace App
