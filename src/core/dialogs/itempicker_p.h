#pragma once

#include "zorv_export.h"

#include <QList>
#include <QWidget>

class QAbstractItemModel;
class QListView;

/// A list for picking rows of a model in a dialog, with multiple selection and buttons for all,
/// none and invert.
class ZORV_EXPORT ItemPicker : public QWidget
{
    Q_OBJECT

public:
    /// Selects `row` (if valid) and scrolls to it. The model is not owned. It may be null or be
    /// destroyed.
    ItemPicker(QAbstractItemModel* model, int row, QWidget* parent = nullptr);

    /// The selected rows in ascending order.
    QList<int> selected() const;

    /// Detaches the list from its model.
    void release();

signals:
    /// The selection has changed.
    void changed();

private:
    void addButton(QLayout* row, const QString& text, const char* name, void (ItemPicker::*slot)());
    void selectAll();
    void clear();
    void invert();

    QListView* m_list;
};
