#include "animation/dialogs/animalign.h"

#include "code/codedoc/animations.h"
#include "core/dialogs/dialogs.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QItemSelectionModel>
#include <QListView>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

using Zorv::Alignment;
using Zorv::Animations;

namespace {

constexpr int Least = -32768;
constexpr int Most = 32767;
constexpr int WholePercent = 100;

QSpinBox* makeField(const char* name)
{
    auto* field = new QSpinBox;
    field->setObjectName(QLatin1String(name));
    field->setRange(Least, Most);
    return field;
}

QPushButton* makeButton(const QString& text, const char* name)
{
    auto* button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    return button;
}

}  // namespace

AnimAlign::AnimAlign(Animations* animations, int index, QWidget* parent)
    : QDialog(parent), m_animations(animations), m_list(new QListView), m_operation(new QComboBox),
      m_x(makeField("xVal")), m_y(makeField("yVal")),
      m_apply(makeButton(tr("Apply"), "applyButton"))
{
    setWindowTitle(tr("Alignment tool"));
    // Must be connected before the selection model, which deselects rows in the middle of an edit
    // of the text.
    connect(animations, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this] { m_rowsGo = true; });
    connect(animations, &QAbstractItemModel::rowsRemoved, this, [this] { m_rowsGo = false; });
    build();
    const QModelIndex current = animations->index(index);
    m_list->selectionModel()->setCurrentIndex(current, QItemSelectionModel::ClearAndSelect);
    m_list->scrollTo(current);
    QMetaObject::connectSlotsByName(this);
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &AnimAlign::selectionChanged);
    connect(animations, &QObject::destroyed, this, &QDialog::reject);
    selectionChanged();
}

AnimAlign::~AnimAlign() = default;

void AnimAlign::build()
{
    m_list->setObjectName(QStringLiteral("list"));
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setModel(m_animations);
    m_operation->setObjectName(QStringLiteral("operation"));
    for (int mode = 0; mode < Alignment::ModeCount; ++mode) {
        m_operation->addItem(Zorv::alignmentText(Alignment::Mode(mode)));
    }

    auto* choices = new QHBoxLayout;
    choices->addWidget(makeButton(tr("Clear selection"), "clearButton"));
    choices->addWidget(makeButton(tr("Invert selection"), "invertButton"));
    choices->addWidget(makeButton(tr("Select all"), "selectAllButton"));

    auto* fields = new QFormLayout;
    fields->addRow(tr("Operation:"), m_operation);
    fields->addRow(tr("X:"), m_x);
    fields->addRow(tr("Y:"), m_y);

    auto* buttons = new QDialogButtonBox;
    QPushButton* close = makeButton(tr("Close"), "closeButton");
    buttons->addButton(m_apply, QDialogButtonBox::ApplyRole);
    buttons->addButton(close, QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    layout->addLayout(choices);
    layout->addLayout(fields);
    layout->addWidget(buttons);
}

Alignment AnimAlign::alignment() const
{
    return {Alignment::Mode(m_operation->currentIndex()), m_x->value(), m_y->value()};
}

QVector<int> AnimAlign::selected() const
{
    QVector<int> rows;
    const QModelIndexList indexes = m_list->selectionModel()->selectedIndexes();
    for (const QModelIndex& index : indexes) {
        rows.append(index.row());
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

/// Percentages start at 100, distances at 0.
void AnimAlign::on_operation_currentIndexChanged(int mode)
{
    const bool isScale = mode == Alignment::ScaleBoxes;
    for (QSpinBox* field : {m_x, m_y}) {
        const QSignalBlocker blocker(field);
        const bool wasScale = field->minimum() == 0;
        field->setRange(isScale ? 0 : Least, Most);
        field->setSuffix(isScale ? QStringLiteral(" %") : QString());
        if (wasScale != isScale) {
            field->setValue(isScale ? WholePercent : 0);
        }
    }
    fieldChanged();
}

void AnimAlign::on_xVal_valueChanged(int)
{
    fieldChanged();
}

void AnimAlign::on_yVal_valueChanged(int)
{
    fieldChanged();
}

void AnimAlign::fieldChanged()
{
    m_hasPreview = true;
    emit changed();
}

void AnimAlign::selectionChanged()
{
    m_apply->setEnabled(m_list->selectionModel()->hasSelection());
    if (m_rowsGo) {
        QTimer::singleShot(0, this, &AnimAlign::changed);
    } else {
        emit changed();
    }
}

void AnimAlign::on_clearButton_clicked()
{
    m_list->clearSelection();
}

void AnimAlign::on_invertButton_clicked()
{
    const int last = m_animations ? m_animations->count() - 1 : -1;
    if (last >= 0) {
        const QItemSelection all(m_animations->index(0), m_animations->index(last));
        m_list->selectionModel()->select(all, QItemSelectionModel::Toggle);
    }
}

void AnimAlign::on_selectAllButton_clicked()
{
    m_list->selectAll();
}

void AnimAlign::on_applyButton_clicked()
{
    if (!m_animations) {
        return;
    }
    m_hasPreview = false;
    const int refused = Zorv::align(m_animations, selected(), alignment()).refused;
    emit changed();
    if (refused > 0) {
        Zorv::Dialogs::instance()->warning(
            windowTitle(),
            tr("%n number(s) would leave the range of the text, and stay as they were.", nullptr,
               refused));
    }
}
