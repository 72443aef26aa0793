#pragma once

#include "cache/spritenumber.h"
#include "zorv_export.h"

#include <QDialog>
#include <QPoint>
#include <QSize>
#include <QStringList>

class QComboBox;
class QFormLayout;
class QSpinBox;

/// Shows the properties of a sprite, and edits some of them: its number, axis, size and pixel
/// format.
class ZORV_EXPORT ImgInfoDlg : public QDialog
{
    Q_OBJECT

public:
    struct Facts
    {
        Zorv::SpriteNumber number;  ///< invalid for a sprite without one
        QPoint axis;                ///< in pixels from the top left corner
        QSize size;
        bool isIndexed = true;
        int colorCount = 0;  ///< distinct colours used by pixels; -1 if too many to count
        QString codec;       ///< how the pixels are stored; empty for unknown
        QString palette;     ///< its identifier; empty for none
        QStringList uses;    ///< the places that show the sprite, one line each
        bool areUsesKnown = false;
    };

    ImgInfoDlg(QWidget* parent, const Facts& facts);
    ~ImgInfoDlg() override;

    /// The facts with the changes of the user.
    Facts facts() const;

private:
    void addNumber(QFormLayout* form);
    void addTexts(QFormLayout* form);

    Facts m_facts;
    QSpinBox* m_group = nullptr;
    QSpinBox* m_number = nullptr;
    QSpinBox* m_x;
    QSpinBox* m_y;
    QSpinBox* m_width;
    QSpinBox* m_height;
    QComboBox* m_form;
};
