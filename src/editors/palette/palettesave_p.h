#pragma once

#include "media/colortypes.h"

#include <QPointer>
#include <QStringList>

#include <array>
#include <vector>

namespace Zorv {

class Palettes;

/// Saves palettes of a collection to files. The user chooses the palettes and the target: one file
/// for a single palette; for several, its name plus their identifiers.
///
/// Colours are copied when the palettes are chosen, because the collection can die while the next
/// dialog is open.
class PaletteSave
{
public:
    /// `row` is the initial selection.
    PaletteSave(Palettes* palettes, int row);

    /// Asks, writes, and reports files that could not be written.
    void run();

private:
    struct Item
    {
        QString name;  ///< the identifier, as part of a file name
        QString path;
        RGBA colors[256];
    };

    bool choose();
    bool askForFile();
    bool mayReplace(const QString& asked) const;
    void write() const;

    QPointer<Palettes> m_palettes;
    int m_row;
    QString m_folder;
    std::vector<Item> m_items;
};

}  // namespace Zorv
