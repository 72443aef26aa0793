#pragma once

#include <QPointer>
#include <QVector>
#include <QWidget>

class QLabel;

namespace Family {
class SoundFile;
}  // namespace Family

namespace Zorv {
class RowList;
}

namespace App {

/// The sounds of the project in front: a list, and what the selected one is like.
class SoundPanel : public QWidget
{
    Q_OBJECT

public:
    explicit SoundPanel(QWidget* parent = nullptr);

    /// Null for none. A collection that dies is let go of.
    void setSounds(Family::SoundFile* sounds);
    Family::SoundFile* sounds() const;

    Zorv::RowList* list() const { return m_list; }
    int currentRow() const;

    /// The selected rows in their order.
    QVector<int> selectedRows() const;
    void setCurrentRow(int row);

signals:
    /// The current row, or anything in the collection.
    void changed();

    /// A double click on a sound, or Return.
    void soundActivated(int row);

private:
    void updateCurrent();
    QString currentText() const;

    QPointer<Family::SoundFile> m_sounds;
    Zorv::RowList* m_list;
    QLabel* m_text;
};

}  // namespace App
