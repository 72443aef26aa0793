#include "editors/palette/paldlg.h"

#include "cache/palettes.h"
#include "cache/paletteuses.h"
#include "core/dialogs/itempicker_p.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using Zorv::Palettes;
using Zorv::Sprite;

PalDlg::PalDlg(QWidget* parent, QAbstractItemModel* model, int row)
    : QDialog(parent), m_model(model), m_picker(new ItemPicker(model, row)), m_mode(new QComboBox),
      m_reversed(new QCheckBox(tr("Reversed"))), m_note(new QLabel),
      m_box(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setWindowTitle(tr("Palette"));
    build();
    connect(m_picker, &ItemPicker::changed, this, &PalDlg::update);
    connect(m_mode, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &PalDlg::update);
    connect(m_box, &QDialogButtonBox::clicked, this, &PalDlg::clicked);
    if (model) {
        connect(model, &QObject::destroyed, this, [this] {
            m_model = nullptr;
            reject();
        });
    }
    update();
}

PalDlg::~PalDlg() = default;

void PalDlg::build()
{
    m_mode->setObjectName(QStringLiteral("pal"));
    m_mode->addItems({tr("Image's palette, if not already added"),
                      tr("Force the specified palette (adapt the image)"),
                      tr("Exchange with the specified palette")});
    m_reversed->setObjectName(QStringLiteral("reversed"));
    m_note->setObjectName(QStringLiteral("note"));
    m_note->setWordWrap(true);
    m_box->setObjectName(QStringLiteral("buttonBox"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_picker);
    layout->addWidget(m_mode);
    layout->addWidget(m_reversed);
    layout->addWidget(m_note);
    layout->addWidget(m_box);
}

PalDlg::Info PalDlg::getInfo() const
{
    const QList<int> rows = m_picker->selected();
    return {rows.isEmpty() ? 0 : rows.first(), Sprite::PaletteMode(m_mode->currentIndex() + 1),
            m_reversed->isChecked()};
}

void PalDlg::clicked(QAbstractButton* button)
{
    if (button == m_box->button(QDialogButtonBox::Ok)) {
        accept();
    } else {
        reject();
    }
}

/// An exchange also changes sprites that the user may not think of, so show how many.
void PalDlg::update()
{
    const Info info = getInfo();
    const bool needsRow = info.mode != Sprite::ImagePalette;
    const bool hasRow = !m_picker->selected().isEmpty();
    m_box->button(QDialogButtonBox::Ok)->setEnabled(hasRow || !needsRow);
    QString note;
    const auto* palettes = qobject_cast<const Palettes*>(m_model);
    if (needsRow && !hasRow) {
        note = tr("Select the palette in the list.");
    } else if (info.mode == Sprite::ReplacePalette && palettes) {
        note = tr("%n sprite(s) will show the colors of the image.", nullptr,
                  Zorv::paletteUses(*palettes).value(info.row));
    }
    m_note->setText(note);
}
