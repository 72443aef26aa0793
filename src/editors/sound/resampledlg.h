#pragma once

#include "media/soundsample.h"
#include "zorv_export.h"

#include <QDialog>
#include <QList>

class ItemPicker;
class QAbstractItemModel;
class QComboBox;

/// Asks for sounds of a list and the form that they get.
class ZORV_EXPORT ResampleDlg : public QDialog
{
    Q_OBJECT

public:
    /// `row`, if not negative, is selected at first; the form is that of `info` where it can be
    /// chosen. The model is not owned, and may die.
    ResampleDlg(QWidget* parent, QAbstractItemModel* sounds, int row, const Zorv::SampleInfo& info);
    ~ResampleDlg() override;

    /// The chosen form; its `frames` are 0.
    Zorv::SampleInfo info() const;

    /// The selected rows, ascending.
    QList<int> selected() const;

private:
    QComboBox* addBox(const char* name);

    ItemPicker* m_picker;
    QComboBox* m_rate;
    QComboBox* m_bits;
    QComboBox* m_channels;
};
