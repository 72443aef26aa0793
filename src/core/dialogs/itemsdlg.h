#pragma once

#include "core/dialogs/itemsdialog.h"

class ItemPicker;
class QAbstractItemModel;

/// The library's own picking dialog: a list with buttons that select all rows,
/// select none, and invert the selection.
class ZORV_EXPORT ItemsDlg : public ItemsDialog
{
    Q_OBJECT

public:
    /// `row`, if not negative, is selected and scrolled to. The model is not owned.
    ItemsDlg(QWidget* parent, const QString& title, QAbstractItemModel* model, int row);
    ~ItemsDlg() override;

    QList<int> selected() const override;
    bool hasSelection() const override;
    void release() override;

private:
    ItemPicker* m_picker;
};
