#include "app/assets/axisdialog.h"

#include "app/assets/axisplaces.h"
#include "app/assets/mediadialogs.h"
#include "app/assets/spritepanel.h"
#include "family/assets/familysprite.h"
#include "family/assets/spritecollection.h"

#include <zorv/image/spriteeditor.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPointer>
#include <QSpinBox>

#include <algorithm>

namespace App {

using Family::SpriteCollection;
using Operations::AxisBase;

AxisDialog::AxisDialog(const Family::FamilySprite& sprite, int count, QWidget* parent)
    : QDialog(parent), m_name(sprite.id().text()), m_size(sprite.size()), m_axis(sprite.axis()),
      m_base(new QComboBox), m_x(makeOffsetBox()), m_y(makeOffsetBox()), m_result(new QLabel)
{
    setWindowTitle(tr("Set axis"));
    m_base->addItems(axisPlaceNames() << tr("Where it is now"));
    m_base->setMaxVisibleItems(m_base->count());
    m_base->setCurrentIndex(int(AxisBase::Bottom));
    m_result->setTextFormat(Qt::PlainText);
    m_result->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto* layout = new QFormLayout(this);
    layout->addRow(new QLabel(tr("%n sprite(s)", nullptr, count)));
    layout->addRow(tr("&Place:"), m_base);
    layout->addRow(tr("To the &right:"), m_x);
    layout->addRow(tr("&Down:"), m_y);
    layout->addRow(m_result);
    layout->addRow(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    const auto changed = QOverload<int>::of(&QComboBox::currentIndexChanged);
    connect(m_base, changed, this, &AxisDialog::showResult);
    for (const QSpinBox* box : {m_x, m_y}) {
        connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, &AxisDialog::showResult);
    }
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    showResult();
}

AxisBase AxisDialog::base() const
{
    return AxisBase(m_base->currentIndex());
}

QPoint AxisDialog::offset() const
{
    return {m_x->value(), m_y->value()};
}

void AxisDialog::showResult()
{
    const bool isMoved = base() == AxisBase::Current;
    const QPoint axis = (isMoved ? m_axis : Operations::axisPlace(base(), m_size)) + offset();
    m_result->setText(tr("Sprite %1: the axis goes from %2,%3 to %4,%5.")
                          .arg(m_name, QString::number(m_axis.x()), QString::number(m_axis.y()),
                               QString::number(axis.x()), QString::number(axis.y())));
}

void setAxesOfSelected(const SpritePanel* panel, Zorv::SpriteEditor* canvas, QWidget* parent)
{
    const QPointer<SpriteCollection> sprites = panel->sprites();
    QVector<int> rows = panel->selectedRows();
    const QVector<Family::AssetId> ids = panel->selectedIds();
    if (rows.isEmpty()) {
        return;
    }
    const int shown = rows.contains(panel->currentRow()) ? panel->currentRow() : rows.first();
    AxisDialog dialog(*sprites->sprite(shown), rows.size(), parent);
    if (dialog.exec() != QDialog::Accepted || !sprites || panel->sprites() != sprites) {
        return;
    }
    // The file can be reloaded while the dialog is open: a row may hold another sprite now.
    const QVector<int> before = rows;
    const auto isAnother = [&](int row) {
        const Family::FamilySprite* sprite = sprites->sprite(row);
        return !sprite || sprite->id() != ids[before.indexOf(row)];
    };
    rows.erase(std::remove_if(rows.begin(), rows.end(), isAnother), rows.end());
    sprites->beginChange(AxisDialog::tr("Set axis"));
    const bool isOnCanvas = canvas->sprites() == sprites && rows.contains(canvas->spriteIndex());
    if (isOnCanvas) {
        canvas->saveImage();
    }
    // If the canvas cannot be saved, do not change its axis: the next save would restore the old
    // one. A message explains why.
    const bool isSaved = !isOnCanvas || !canvas->isCanvasModified();
    const Operations::MediaResult result =
        isSaved ? Operations::setAxes(sprites, rows, dialog.base(), dialog.offset())
                : Operations::MediaResult();
    if (!result.errors.isEmpty()) {
        sprites->editHistory().nameByFirstPart();
    }
    sprites->endChange();
    if (!isSaved) {
        return;
    }
    tellResult(AxisDialog::tr("Set axis"),
               AxisDialog::tr("The axis of %n sprite(s) is set.", nullptr, result.done), result);
}

}  // namespace App
