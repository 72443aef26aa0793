#pragma once

#include "app/window/command.h"

#include <QObject>

namespace App {

class FamilyPaletteEditor;

/// Transfers colours between palettes: by the clipboard, and by dragging from the grid.
class ColorExchange : public QObject
{
    Q_OBJECT

public:
    /// The editor outlives it.
    ColorExchange(FamilyPaletteEditor* editor, QObject* parent);

    /// Copies the selected slots, and pastes the clipboard into them.
    CommandRows commands();

private:
    void copy() const;
    void paste() const;
    bool canCopy() const;
    bool canPaste() const;
    void drag(int slot);

    FamilyPaletteEditor* m_editor;
};

}  // namespace App
