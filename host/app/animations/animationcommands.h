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

/// Commands for the animations of the current text, in the organizer. It lists them, follows the
/// text cursor, and moves it. All commands edit the text. They are disabled while the sprite editor
/// has borrowed the organizer.
class AnimationCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// Creates the organizer, which places its tools in the host's window. A child of the window.
    explicit AnimationCommands(const WindowServices& services);

    Zorv::OrganizerEditor* organizer() const { return m_organizer; }

    /// The organizer's list; null if the host created none.
    QAbstractItemView* list() const;

    /// True while the organizer shows animations.
    bool hasList() const;

    void showDocument(Family::FamilyDocument* document) override;
    void updateState() override;

    /// Selects the animation of that line.
    void followCursor(int line) override;
    QVector<PanelPlace> places() override;

    /// Removes the animations of the selected rows, if any.
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
