#pragma once

#include "app/actions/actionrow.h"

#include <QObject>

namespace Operations {
struct MediaResult;
}

namespace App {

class ChosenPalette;
class FamilyPaletteEditor;
class PaletteUsage;
struct WindowServices;

/// What the window does with palettes beyond the library's tools: by the operations that the
/// command line has, too. Each is one step of undo of the file of the sprites.
class PaletteTools : public QObject
{
    Q_OBJECT

public:
    /// The editor outlives it.
    PaletteTools(const WindowServices& services, FamilyPaletteEditor* editor, PaletteUsage* usage,
                 QObject* parent);

    QVector<ActionRow> actions();

    /// Puts them into the menu of the grid.
    void actionsMade();

private:
    bool hasPalette() const;
    bool hasSprites() const;
    bool hasSlot() const;
    bool hasSlotsBetween() const;

    void duplicate();
    void sort();
    void ramp();
    void shiftHue();
    void replace();
    void countUses();

    ChosenPalette comeForward() const;
    void finish(const QString& title, const Operations::MediaResult& result,
                const QString& done = {});

    const WindowServices& m_services;
    FamilyPaletteEditor* m_editor;
    PaletteUsage* m_usage;
};

}  // namespace App
