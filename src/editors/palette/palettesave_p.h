#pragma once

#include "media/colortypes.h"

#include <QPointer>
#include <QStringList>

#include <array>
#include <vector>

namespace Zorv {

class Palettes;

/// Palettes of a collection on their way to files. The person says which, and where to: a file for
/// one, its name with their identifiers behind it for several.
///
/// Colours are taken when the palettes are chosen: the collection may die behind the next dialog.
class PaletteSave
{
public:
    /// `row` is selected at first.
    PaletteSave(Palettes* palettes, int row);

    /// Asks, writes, and tells what was not written.
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
