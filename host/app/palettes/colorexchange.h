#pragma once

#include "app/window/command.h"

#include <QObject>

namespace App {

class FamilyPaletteEditor;

/// Takes colours from one palette to another: by the clipboard, and by a drag out of the grid.
class ColorExchange : public QObject
{
    Q_OBJECT

public:
    /// The editor outlives it.
    ColorExchange(FamilyPaletteEditor* editor, QObject* parent);

    /// Copies the selected slots, and puts what is on the clipboard into them.
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
