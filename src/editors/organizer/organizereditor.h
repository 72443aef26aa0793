#pragma once

#include "editors/framework/extraeditor.h"

#include <QVector>

#include <memory>

class QModelIndex;

namespace Zorv {

class OrganizableObject;
class OrganizerEditorPrivate;

/// The side panel for reordering a list: animations, sprites, sounds.
///
/// It publishes a list view, "org_list", and the actions for the slots below, "org_up" to
/// "org_auto", in all areas. It uses only `OrganizableObject`: an editor that comes to the front
/// just sets its list. Each user action is one undo step; moved rows keep their order and stay
/// selected. A row moved to the last place, or dropped after the last row, really ends there.
///
/// Lists may be long: each action causes one layout change in views, and all rows have one height.
/// Main thread only.
class ZORV_EXPORT OrganizerEditor : public ExtraEditor
{
    Q_OBJECT

public:
    /// Publishes its tools to the installed host, which must outlive the editor.
    explicit OrganizerEditor(QObject* parent = nullptr);
    ~OrganizerEditor() override;

    /// "organizer".
    QString name() const override;
    QString displayName() const override;
    void retranslate() override;

    /// Shows a list; null for none. The list is not owned, and may die while it is shown.
    void setObject(OrganizableObject* object);
    OrganizableObject* object() const;

    /// The row with the focus; -1 for none.
    int currentRow() const;

    /// The selected rows, ascending.
    QVector<int> selectedRows() const;

    /// Selects only one row and scrolls to it; -1 or an invalid row clears the selection.
    void setCurrentRow(int row);

public slots:
    /// Moves each selected row by some places. A row that reaches the end of the list, or another
    /// stopped row, stops there. Does nothing without a selection.
    void moveUp();
    void moveDown();
    void moveTenUp();
    void moveTenDown();
    void moveToTop();
    void moveToBottom();

    /// Sorts the whole list with `OrganizableObject::autoOrganize()`.
    void organize();

    /// Handles a double click on a row.
    void itemDblClick(const QModelIndex& index);

signals:
    /// A row was double-clicked, or activated with Enter.
    void rowActivated(int row);

    /// Another row has the focus, or the same row has moved; -1 for none.
    void currentRowChanged(int row);

    void selectionChanged();

    /// The user has moved the selected rows: by an action, by dragging, or by sorting.
    void selectionMoved();

    /// Whether there is a list to sort.
    void enabled(bool isEnabled);

    /// Whether the selected rows can move up or down.
    void upEnabled(bool isEnabled);
    void downEnabled(bool isEnabled);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::unique_ptr<OrganizerEditorPrivate> d;
};

}  // namespace Zorv
