#pragma once

#include "family/meaning/projectnames.h"

#include <QPointer>
#include <QWidget>

class QLabel;
class QListWidget;
class QTimer;

namespace Family {
class SoundFile;
}  // namespace Family

namespace Zorv {
class RowList;
}

namespace App {

/// The sounds of the project in front: a list, what the selected one is like, and the moves that
/// play it.
class SoundPanel : public QWidget
{
    Q_OBJECT

public:
    explicit SoundPanel(QWidget* parent = nullptr);

    /// Null for none. A collection that dies is let go of.
    void setSounds(Family::SoundFile* sounds);
    Family::SoundFile* sounds() const;

    /// The project whose moves are looked through; null for none, before it dies.
    void setProject(const Family::FamilyProject* project);

    Zorv::RowList* list() const { return m_list; }
    int currentRow() const;

    /// The selected rows in their order.
    QVector<int> selectedRows() const;
    void setCurrentRow(int row);

    /// The moves that play the sound, a row for each line.
    QListWidget* uses() const { return m_uses; }

    /// Looks for them again a moment later.
    void updateUsesSoon();

signals:
    /// The current row, or anything in the collection.
    void changed();

    /// A double click on a sound, or Return.
    void soundActivated(int row);

    /// The same on a move that plays it; the place is that of the numbers.
    void useActivated(const Family::NamePlace& place);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void updateCurrent();
    void updateUses();
    void activateUse(int row);
    QVector<Family::SoundUse> findUses() const;
    QString currentText() const;

    QPointer<Family::SoundFile> m_sounds;
    QPointer<const Family::FamilyProject> m_project;
    Zorv::RowList* m_list;
    QLabel* m_text;
    QLabel* m_usesTitle;
    QListWidget* m_uses;
    QTimer* m_timer;
};

}  // namespace App
