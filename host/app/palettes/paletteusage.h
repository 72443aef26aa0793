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

/// Shows what uses the current palette and its slots: in a line below the grid, and in the tool
/// tips of its cells.
///
/// The number of sprites per palette is known at once. Slot use is counted only on request, because
/// that unpacks all sprites. Both counts stay valid until sprites or palettes change; selecting
/// another palette or other slots does not discard them.
class PaletteUsage : public QObject
{
    Q_OBJECT

public:
    /// Adds the line to the tools panel. The editor outlives this object.
    PaletteUsage(FamilyPaletteEditor* editor, QObject* parent);
    ~PaletteUsage() override;

    /// Counts with a progress dialog. Returns one line for each sprite that could not be counted.
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
    std::optional<QVector<int>> m_rows;            // number of sprites per palette
    std::optional<Operations::PaletteUseCount> m_count;
    QTimer m_soon;
};

}  // namespace App
