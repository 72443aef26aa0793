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

/// Palette commands of the window beyond the library's tools. They use the same operations as the
/// command line. Each is one undo step of the sprite file.
class PaletteTools : public QObject
{
    Q_OBJECT

public:
    /// The editor outlives it.
    PaletteTools(const WindowServices& services, FamilyPaletteEditor* editor, PaletteUsage* usage,
                 QObject* parent);

    QVector<ActionRow> actions();

    /// Adds them to the context menu of the grid.
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
