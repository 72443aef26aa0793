#pragma once

#include "zorv_export.h"

#include <QDialog>

class QListWidget;

/// Lets the person choose a text encoding, by its number of `Zorv::TextCodecs`.
///
/// It changes nothing: the caller asks for the answer when `exec()` has given
/// `QDialog::Accepted`. Main thread only.
class ZORV_EXPORT EncDlg : public QDialog
{
    Q_OBJECT

public:
    /// Lists all encodings and starts at `index`, out of range at none.
    EncDlg(QWidget* parent, int index);
    ~EncDlg() override;

    /// The number of the chosen encoding; -1 if none is.
    int index() const;

private:
    QListWidget* m_list;
};
