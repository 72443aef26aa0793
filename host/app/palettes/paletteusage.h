#pragma once

#include "operations/media/paletteuses.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <optional>

class QLabel;

namespace Family {
class SpriteCollection;
}

namespace App {

class FamilyPaletteEditor;

/// What uses the current palette and its slots: a line below the grid, and the tips of the cells.
///
/// How many sprites have a palette is known at once. Slots are counted when the person asks, for
/// that unpacks all sprites. Both counts hold until sprites or palettes come, go or change: another
/// palette, or other slots, are chosen more often.
class PaletteUsage : public QObject
{
    Q_OBJECT

public:
    /// Places the line in the panel of the tools. The editor outlives it.
    PaletteUsage(FamilyPaletteEditor* editor, QObject* parent);
    ~PaletteUsage() override;

    /// Counts, with progress. Gives a line for each sprite that could not be counted.
    QStringList count();

public slots:
    void showLine();

private:
    void follow();
    void forget();
    QString line();
    QString noteOf(int slot) const;
    QString selectedNote(const Operations::PaletteUses& uses) const;
    const Operations::PaletteUses* current() const;

    FamilyPaletteEditor* m_editor;
    QPointer<QLabel> m_label;
    QPointer<Family::SpriteCollection> m_sprites;  // whose changes are followed
    std::optional<QVector<int>> m_rows;            // how many sprites have each palette
    std::optional<Operations::PaletteUseCount> m_count;
    QTimer m_soon;
};

}  // namespace App
