#pragma once

#include "media/soundsample.h"
#include "zorv_export.h"

#include <QDialog>
#include <QList>

class ItemPicker;
class QAbstractItemModel;
class QComboBox;

/// Asks which sounds of a list to resample, and to which form.
class ZORV_EXPORT ResampleDlg : public QDialog
{
    Q_OBJECT

public:
    /// `row` is the initial selection unless negative. The form starts as in `info`, where its
    /// values are among the choices. The model is not owned, and may die.
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
