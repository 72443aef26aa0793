#pragma once

#include "app/window/part.h"

#include <QObject>
#include <QPointer>

class QAbstractItemView;

namespace Zorv {
class OrganizerEditor;
}

namespace App {

struct WindowServices;

/// What can be done with the animations of the text in front, in the organizer: it shows
/// them, follows the cursor of the text, and leads to it. All of it edits the text. While the
/// organizer is lent to the editor of sprites, nothing can be done.
class AnimationCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// Makes the organizer, which places its tools in the window of the host. Lives as a child of
    /// the window.
    explicit AnimationCommands(const WindowServices& services);

    Zorv::OrganizerEditor* organizer() const { return m_organizer; }

    /// The list of the organizer; null if the host has made none.
    QAbstractItemView* list() const;

    /// True while the organizer shows animations.
    bool hasList() const;

    void showDocument(Family::FamilyDocument* document) override;
    void updateState() override;

    /// The animation of that line becomes the current row.
    void followCursor(int line) override;
    QVector<PanelPlace> places() override;

    /// Removes the animations of the selected rows; nothing without one.
    void removeSelected();

private:
    void showAnimations();
    bool hasCurrent() const;
    void requestRow(int row);

    const WindowServices& m_services;
    Family::FamilyDocument* m_document = nullptr;
    Zorv::OrganizerEditor* m_organizer;
    QPointer<QAbstractItemView> m_list;
};

}  // namespace App
