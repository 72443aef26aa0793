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

/// The sounds of the current project: a list, information about the selected sound, and the moves
/// that play it.
class SoundPanel : public QWidget
{
    Q_OBJECT

public:
    explicit SoundPanel(QWidget* parent = nullptr);

    /// Null for none. The panel releases a collection when it is destroyed.
    void setSounds(Family::SoundFile* sounds);
    Family::SoundFile* sounds() const;

    /// The project whose moves are searched. Set null before the project is destroyed.
    void setProject(const Family::FamilyProject* project);

    Zorv::RowList* list() const { return m_list; }
    int currentRow() const;

    /// The selected rows, in order.
    QVector<int> selectedRows() const;
    void setCurrentRow(int row);

    /// The moves that play the sound, one row per line.
    QListWidget* uses() const { return m_uses; }

    /// Searches for them again after a short delay.
    void updateUsesSoon();

signals:
    /// The current row or the collection changed.
    void changed();

    /// Double click on a sound, or Return.
    void soundActivated(int row);

    /// The same on a move that plays the sound; `place` is the place of the sound's numbers.
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
