#pragma once

#include "cache/sprite.h"
#include "zorv_export.h"

#include <QDialog>

class ItemPicker;
class QAbstractButton;
class QAbstractItemModel;
class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QLabel;

/// Asks which palette a sprite gets with an image that has other colours than the sprite.
///
///     PalDlg dialog(window, sprites->palettes(), palette ? int(palette->index()) : -1);
///     if (dialog.exec() == QDialog::Accepted) {
///         const PalDlg::Info info = dialog.getInfo();
///         sprite->setImage(image, info.isReversed, info.mode, palettes->palette(info.row));
///     }
///
/// It closes as cancelled if the model dies. Main thread only.
class ZORV_EXPORT PalDlg : public QDialog
{
    Q_OBJECT

public:
    /// The user's choice.
    struct Info
    {
        int row = 0;  ///< row of the palette; the first of several, 0 for none
        Zorv::Sprite::PaletteMode mode = Zorv::Sprite::ImagePalette;
        bool isReversed = false;  ///< reverse the order of the image's colours first
    };

    /// Shows a list of palettes with one row selected; -1 for none. The model is not owned. If it
    /// is a `Zorv::Palettes`, the dialog also shows how many sprites an exchange changes.
    PalDlg(QWidget* parent, QAbstractItemModel* model, int row);
    ~PalDlg() override;

    /// The choice. OK is enabled if a palette is selected or none is needed.
    Info getInfo() const;

private slots:
    void clicked(QAbstractButton* button);

private:
    void build();
    void update();

    QAbstractItemModel* m_model;
    ItemPicker* m_picker;
    QComboBox* m_mode;
    QCheckBox* m_reversed;
    QLabel* m_note;
    QDialogButtonBox* m_box;
};
