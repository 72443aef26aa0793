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

/// Moves or scales offsets or contact boxes of all frames of the animations that the person
/// selects, as often as they press Apply, each time as one step of undo.
///
/// Nothing is written before that; a stage can show meanwhile what would be. It closes when the
/// list of animations dies. Main thread only.
class ZORV_EXPORT AnimAlign : public QDialog
{
    Q_OBJECT

public:
    /// With the animation `index` selected, none for -1. The list is not owned.
    AnimAlign(Zorv::Animations* animations, int index, QWidget* parent = nullptr);
    ~AnimAlign() override;

    /// What the fields say.
    Zorv::Alignment alignment() const;

    /// The places of the selected animations, from the first on.
    QVector<int> selected() const;

    /// True if the fields were changed since they were applied, or since the dialog came: what they
    /// say is to be seen then.
    bool hasPreview() const { return m_hasPreview; }

signals:
    /// Another alignment, another selection, or it has been applied. Never in the middle of an edit
    /// of the text.
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
    bool m_rowsGo = false;  // and the text is not at rest
};
