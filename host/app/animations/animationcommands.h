#pragma once

#include <QObject>
#include <QPointer>

class QAbstractItemView;

namespace Family {
class FamilyDocument;
}

namespace Zorv {
class OrganizerEditor;
}

namespace App {

/// What can be done with the animations of the text in front, in the organizer: it shows
/// them, follows the cursor of the text, and leads to it. All of it edits the text.
class AnimationCommands : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Makes the organizer. The host of the library must know the window by then, in which
    /// the organizer places its tools; until then there are no animations here.
    void publish();

    /// Null before `publish()`.
    Zorv::OrganizerEditor* organizer() const { return m_organizer; }

    /// The list of the organizer, and null before.
    QAbstractItemView* list() const;

    void setDocument(Family::FamilyDocument* document);

    /// The cursor stands there now: the animation of that line becomes the current row.
    void followCursor(int line);

    bool hasCurrent() const;

    /// A new animation at the end, with the next free number.
    void addNew();

    /// Act on the current row, or on the selected ones; nothing without one.
    void duplicateCurrent();
    void removeSelected();

signals:
    /// The person wants to see a line, counted from 0: of an animation, whose
    /// identifier stands at `column` for a new one.
    void lineRequested(int line, int column, int length);

    /// The current row has changed.
    void stateChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void requestRow(int row);
    void requestIdentifier(int row);

    Family::FamilyDocument* m_document = nullptr;
    Zorv::OrganizerEditor* m_organizer = nullptr;
    QPointer<QAbstractItemView> m_list;
};

}  // namespace App
