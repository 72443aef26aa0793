#pragma once

#include "editors/framework/extraeditor.h"

#include <QVector>

#include <memory>

class QModelIndex;

namespace Zorv {

class OrganizableObject;
class OrganizerEditorPrivate;

/// The side panel in which a person rearranges a list: animations, sprites, sounds.
///
/// It publishes a list view, "org_list", and the actions of the slots below, "org_up" to
/// "org_auto", for all areas. It works on `OrganizableObject` alone, so an editor that comes
/// forward gives its list, and nothing more. What one act of the person moves is one step of
/// undo; moved rows keep their order and stay selected. A row that is brought to the last
/// place, or dropped behind the last row, ends there.
///
/// Lists may be long: views get one change of layout for each act, and rows of one height.
/// Main thread only.
class ZORV_EXPORT OrganizerEditor : public ExtraEditor
{
    Q_OBJECT

public:
    /// Publishes the tools to the installed host, which must outlive the editor.
    explicit OrganizerEditor(QObject* parent = nullptr);
    ~OrganizerEditor() override;

    /// "organizer".
    QString name() const override;
    QString displayName() const override;
    void retranslate() override;

    /// Shows a list, or with null none. It is not owned, and may die while it is shown.
    void setObject(OrganizableObject* object);
    OrganizableObject* object() const;

    /// The row with the focus; -1 without one.
    int currentRow() const;

    /// The selected rows, ascending.
    QVector<int> selectedRows() const;

    /// Selects one row alone and brings it into view; -1, or a row that is not there, selects
    /// nothing.
    void setCurrentRow(int row);

public slots:
    /// Move each selected row by so many places; one that comes to the end of the list, or to
    /// one that has, stops there. Nothing without a selection.
    void moveUp();
    void moveDown();
    void moveTenUp();
    void moveTenDown();
    void moveToTop();
    void moveToBottom();

    /// Sorts the whole list, by `OrganizableObject::autoOrganize()`.
    void organize();

    /// A double click on a row.
    void itemDblClick(const QModelIndex& index);

signals:
    /// A row was double clicked, or chosen by Enter.
    void rowActivated(int row);

    /// Another row has the focus, or the same one stands elsewhere; -1 for none.
    void currentRowChanged(int row);

    void selectionChanged();

    /// The person has moved the selected rows: by an action, by dragging, by sorting.
    void selectionMoved();

    /// There is a list that could be sorted.
    void enabled(bool isEnabled);

    /// The selected rows could go up, or down.
    void upEnabled(bool isEnabled);
    void downEnabled(bool isEnabled);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::unique_ptr<OrganizerEditorPrivate> d;
};

}  // namespace Zorv
