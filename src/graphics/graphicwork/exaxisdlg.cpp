#include "graphics/graphicwork/exaxisdlg.h"

#include <QFormLayout>
#include <QSpinBox>

namespace {

constexpr int Farthest = 999999;

QSpinBox* addField(QFormLayout* layout, const QString& label, const char* name)
{
    auto* field = new QSpinBox;
    field->setObjectName(QLatin1String(name));
    field->setRange(-Farthest, Farthest);
    layout->addRow(label, field);
    return field;
}

}  // namespace

ExAxisDlg::ExAxisDlg(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
{
    setWindowTitle(tr("Extra cross"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto* layout = new QFormLayout(this);
    m_x = addField(layout, tr("X:"), "xVal");
    m_y = addField(layout, tr("Y:"), "yVal");
    for (const QSpinBox* field : {m_x, m_y}) {
        connect(field, QOverload<int>::of(&QSpinBox::valueChanged), this, &ExAxisDlg::tellChange);
    }
}

ExAxisDlg::~ExAxisDlg() = default;

void ExAxisDlg::display(QPoint position)
{
    setPosition(position);
    show();
}

void ExAxisDlg::setPosition(QPoint position)
{
    m_tells = false;
    m_x->setValue(position.x());
    m_y->setValue(position.y());
    m_tells = true;
}

QPoint ExAxisDlg::position() const
{
    return {m_x->value(), m_y->value()};
}

void ExAxisDlg::reject()
{
    QDialog::reject();
    emit extraAxisClosed();
}

void ExAxisDlg::tellChange()
{
    if (m_tells) {
        emit changeAxis(position());
    }
}
