#include "app/controls/controlform.h"

#include "app/controls/controlbox.h"
#include "app/controls/controllayout.h"

#include <QAbstractSlider>
#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

namespace App {

namespace {

const QSize ButtonSize(16, 16);
constexpr int Margin = 4;
constexpr int Spacing = 4;
constexpr int Columns = 2;  // columns of fields with labels of equal width
constexpr char RankProperty[] = "rank";

int rankOf(const FormRow& row, const QString& name)
{
    const auto found = std::find_if(row.names.begin(), row.names.end(), [&name](const char* each) {
        return name == QLatin1String(each);
    });
    return found == row.names.end() ? -1 : int(found - row.names.begin());
}

}  // namespace

ControlForm::ControlForm(const QString& bar, QWidget* parent) : QWidget(parent)
{
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(Margin, Margin, Margin, Margin);
    rows->setSpacing(Spacing);
    for (const FormRow& row : formTable()) {
        if (bar == QLatin1String(row.bar)) {
            m_rows.push_back({&row, new QHBoxLayout});
            m_rows.back().layout->setSpacing(Spacing);
            rows->addLayout(m_rows.back().layout);
        }
    }
    rows->addStretch(1);
}

ControlForm::Row& ControlForm::rowOf(const QString& name, int* rank)
{
    for (Row& each : m_rows) {
        *rank = each.row ? rankOf(*each.row, name) : -1;
        if (*rank >= 0) {
            return each;
        }
    }
    *rank = 0;
    m_rows.push_back({nullptr, new QHBoxLayout});
    auto* rows = static_cast<QVBoxLayout*>(layout());
    rows->insertLayout(rows->count() - 1, m_rows.back().layout);
    return m_rows.back();
}

// Tools arrive in any order. Each widget stores its place in the row of the table ("rank"), and is
// inserted after all widgets with a lower or equal rank.
const FormRow* ControlForm::insert(const QString& name, QWidget* widget, int stretch)
{
    int rank = 0;
    const Row& found = rowOf(name, &rank);
    QHBoxLayout* row = found.layout;
    widget->setProperty(RankProperty, rank);
    int place = 0;
    while (place < row->count() && row->itemAt(place)->widget() &&
           row->itemAt(place)->widget()->property(RankProperty).toInt() <= rank) {
        ++place;
    }
    row->insertWidget(place, widget, stretch);
    // A row of buttons only is left-aligned.
    if (row->count() == 1 && stretch == 0) {
        row->addStretch(0);
    }
    return found.row;
}

QToolButton* ControlForm::addButton(QAction* action)
{
    auto* button = new QToolButton;
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setIconSize(ButtonSize);
    button->setDefaultAction(action);
    connect(action, &QObject::destroyed, button, &QObject::deleteLater);
    insert(action->objectName(), button, 0);
    return button;
}

void ControlForm::addWidget(const QString& name, QWidget* widget)
{
    const FormRow* row = insert(name, widget, 1);
    // A text alone in its row may need more than one line.
    const auto* box = qobject_cast<const ControlBox*>(widget);
    auto* text = box ? qobject_cast<QLabel*>(box->field()) : nullptr;
    if (text && row && row->names.size() == 1) {
        text->setWordWrap(true);
    }
    align();
}

bool ControlForm::isEmpty() const
{
    return std::all_of(m_rows.begin(), m_rows.end(),
                       [](const Row& row) { return row.layout->isEmpty(); });
}

/// Sliders are not aligned: they fill their row.
void ControlForm::align()
{
    std::array<int, 2 * Columns> widths{};
    const auto forLabels = [this](auto work) {
        for (const Row& row : m_rows) {
            int column = 0;
            for (int i = 0; i < row.layout->count(); ++i) {
                auto* box = qobject_cast<ControlBox*>(row.layout->itemAt(i)->widget());
                if (box && box->label() && column < Columns) {
                    const bool isSlider = qobject_cast<QAbstractSlider*>(box->field());
                    work(box->label(), isSlider ? Columns + column : column);
                    ++column;
                }
            }
        }
    };
    forLabels([&](QLabel* label, int column) {
        auto& width = widths[size_t(column)];
        width = std::max(width, label->sizeHint().width());
    });
    forLabels([&](QLabel* label, int column) { label->setMinimumWidth(widths[size_t(column)]); });
}

}  // namespace App
