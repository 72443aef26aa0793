#pragma once

#include "zorv_export.h"

#include <QList>
#include <QWidget>

class QAbstractItemModel;
class QListView;

/// What dialogs pick rows of a model in: a list of which several rows can be selected, and buttons
/// for all, none, and the others.
class ZORV_EXPORT ItemPicker : public QWidget
{
    Q_OBJECT

public:
    /// `row`, if there is one, is selected and scrolled to. The model is not owned, can be null,
    /// and may die.
    ItemPicker(QAbstractItemModel* model, int row, QWidget* parent = nullptr);

    /// The selected rows, ascending.
    QList<int> selected() const;

    /// Takes the list off its model.
    void release();

signals:
    /// Other rows are selected.
    void changed();

private:
    void addButton(QLayout* row, const QString& text, const char* name, void (ItemPicker::*slot)());
    void selectAll();
    void clear();
    void invert();

    QListView* m_list;
};
