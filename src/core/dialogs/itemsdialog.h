#pragma once

#include "zorv_export.h"

#include <QDialog>
#include <QList>

/// A dialog in which rows of a model are picked; made by
/// `Zorv::Interface::itemsDialog()`.
class ZORV_EXPORT ItemsDialog : public QDialog
{
    Q_OBJECT

public:
    using QDialog::QDialog;

    /// The selected rows, ascending.
    virtual QList<int> selected() const = 0;

    /// True if any row is selected.
    virtual bool hasSelection() const = 0;

    /// Takes the dialog off its model, which can die from then on.
    virtual void release() = 0;
};
