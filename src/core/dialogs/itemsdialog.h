#pragma once

#include "zorv_export.h"

#include <QDialog>
#include <QList>

/// A dialog for picking rows of a model; created by
/// `Zorv::Interface::itemsDialog()`.
class ZORV_EXPORT ItemsDialog : public QDialog
{
    Q_OBJECT

public:
    using QDialog::QDialog;

    /// The selected rows in ascending order.
    virtual QList<int> selected() const = 0;

    /// True if any row is selected.
    virtual bool hasSelection() const = 0;

    /// Detaches the dialog from its model, which may then be deleted.
    virtual void release() = 0;
};
