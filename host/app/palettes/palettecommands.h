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

/// The palette panel, shown with the canvas. While it has the keyboard focus, undo works on the
/// sprite file; other commands go to the editor in front.
class PaletteCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// Creates the panel, which places its tools in the host's window. A child of the window; must
    /// outlive the sprite editor.
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
