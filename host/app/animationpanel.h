#pragma once

#include <QListView>

namespace Family {
class FamilyDocument;
}

namespace App {

class AnimationRows;

/// The list of animations of one document, and what can be done with them. All
/// of it edits the text; the rows follow.
class AnimationPanel : public QListView
{
    Q_OBJECT

public:
    explicit AnimationPanel(QWidget* parent = nullptr);

    void setDocument(Family::FamilyDocument* document);

    /// The cursor stands there now: the animation of that line becomes the current row.
    void followCursor(int line);

    bool hasCurrent() const { return currentIndex().isValid(); }
    int count() const;

    /// A new animation at the end, with the next free number.
    void addNew();

    /// Acts on the current row, or on the selected ones; nothing without one.
    void duplicateCurrent();
    void removeSelected();
    void moveUp();
    void moveDown();

    void sortAll();

signals:
    /// The person wants to see a line, counted from 0: of an animation, whose
    /// identifier stands at `column` for a new one.
    void lineRequested(int line, int column, int length);

    /// Rows or the selection have changed.
    void stateChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;

private:
    void moveCurrent(int distance);
    void selectRows(int first, int count);
    void requestRow(int row);
    void requestIdentifier(int row);
    QVector<int> selectedPlaces() const;

    Family::FamilyDocument* m_document = nullptr;
    AnimationRows* m_rows;
};

}  // namespace App
