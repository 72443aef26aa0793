#pragma once

#include "core/dialogs/itemsdialog.h"

class ItemPicker;
class QAbstractItemModel;

/// The default picking dialog: a list with buttons for all, none and invert.
class ZORV_EXPORT ItemsDlg : public ItemsDialog
{
    Q_OBJECT

public:
    /// Selects `row` (if not negative) and scrolls to it. The model is not owned.
    ItemsDlg(QWidget* parent, const QString& title, QAbstractItemModel* model, int row);
    ~ItemsDlg() override;

    QList<int> selected() const override;
    bool hasSelection() const override;
    void release() override;

private:
    ItemPicker* m_picker;
};
