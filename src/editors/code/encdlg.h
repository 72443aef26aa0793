#pragma once

#include "zorv_export.h"

#include <QDialog>

class QListWidget;

/// Lets the user choose a text encoding, by its number in `Zorv::TextCodecs`.
///
/// It changes nothing: the caller reads `index()` after `exec()` has returned
/// `QDialog::Accepted`. Main thread only.
class ZORV_EXPORT EncDlg : public QDialog
{
    Q_OBJECT

public:
    /// Lists all encodings and selects `index`; none if it is out of range.
    EncDlg(QWidget* parent, int index);
    ~EncDlg() override;

    /// The number of the chosen encoding; -1 if none is chosen.
    int index() const;

private:
    QListWidget* m_list;
};
