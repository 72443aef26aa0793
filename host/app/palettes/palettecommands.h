#pragma once

#include "app/window/part.h"

#include <QObject>

namespace App {

class ColorExchange;
class FamilyPaletteEditor;
class PaletteTools;
class PaletteUsage;
class SightSwitches;
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
    SightSwitches* sight() const { return m_sight; }

    QVector<ActionRow> actions() override;
    void actionsMade() override;
    QVector<PanelPlace> places() override;
    void retranslate() override;

private:
    FamilyPaletteEditor* m_editor;
    PaletteUsage* m_usage;
    PaletteTools* m_tools;
    ColorExchange* m_exchange;
    SightSwitches* m_sight;
};

}  // namespace App
