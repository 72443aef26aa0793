#pragma once

#include "animation/edits/alignment.h"
#include "zorv_export.h"

#include <QDialog>
#include <QPointer>

class QComboBox;
class QListView;
class QPushButton;
class QSpinBox;

namespace Zorv {
class Animations;
}

/// Moves or scales the offsets or contact boxes of all frames of the selected animations. Each
/// click on Apply is one undo step.
///
/// Nothing is written before Apply; meanwhile a stage can show a preview. The dialog closes when
/// the list of animations is destroyed. Main thread only.
class ZORV_EXPORT AnimAlign : public QDialog
{
    Q_OBJECT

public:
    /// Initially selects the animation `index`; -1 for none. Does not own the list.
    AnimAlign(Zorv::Animations* animations, int index, QWidget* parent = nullptr);
    ~AnimAlign() override;

    /// The content of the fields.
    Zorv::Alignment alignment() const;

    /// The indexes of the selected animations in ascending order.
    QVector<int> selected() const;

    /// True if the fields were changed since the dialog opened or since Apply: then a preview
    /// should be shown.
    bool hasPreview() const { return m_hasPreview; }

signals:
    /// The alignment or the selection has changed, or was applied. Never emitted in the middle of
    /// an edit of the text.
    void changed();

private slots:
    void on_operation_currentIndexChanged(int mode);
    void on_xVal_valueChanged(int value);
    void on_yVal_valueChanged(int value);
    void on_clearButton_clicked();
    void on_invertButton_clicked();
    void on_selectAllButton_clicked();
    void on_applyButton_clicked();

private:
    void build();
    void fieldChanged();
    void selectionChanged();

    QPointer<Zorv::Animations> m_animations;
    QListView* m_list;
    QComboBox* m_operation;
    QSpinBox* m_x;
    QSpinBox* m_y;
    QPushButton* m_apply;
    bool m_hasPreview = false;
    bool m_rowsGo = false;  // an edit of the text is in progress
};
