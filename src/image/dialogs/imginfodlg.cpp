#include "image/dialogs/imginfodlg.h"

#include "core/dialogs/dialogbuttons_p.h"
#include "image/canvas/imagecanvas.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSpinBox>

#include <limits>

namespace {

constexpr int MostNumber = std::numeric_limits<quint16>::max();
constexpr int LeastPlace = std::numeric_limits<qint16>::min();
constexpr int MostPlace = std::numeric_limits<qint16>::max();
constexpr int ShownUses = 5;

enum Form { Indexed, TrueColor };

QSpinBox* makeField(const char* name, int least, int most, int value)
{
    auto* field = new QSpinBox;
    field->setObjectName(QLatin1String(name));
    field->setRange(least, most);
    field->setValue(value);
    return field;
}

QHBoxLayout* sideBySide(QWidget* first, QWidget* second)
{
    auto* row = new QHBoxLayout;
    row->addWidget(first);
    row->addWidget(second);
    return row;
}

QLabel* makeLabel(const char* name, const QString& text)
{
    auto* label = new QLabel(text);
    label->setObjectName(QLatin1String(name));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

}  // namespace

ImgInfoDlg::ImgInfoDlg(QWidget* parent, const Facts& facts)
    : QDialog(parent), m_facts(facts), m_x(makeField("x", LeastPlace, MostPlace, facts.axis.x())),
      m_y(makeField("y", LeastPlace, MostPlace, facts.axis.y())),
      m_width(makeField("width", 1, Zorv::ImageCanvas::MaxSide, facts.size.width())),
      m_height(makeField("height", 1, Zorv::ImageCanvas::MaxSide, facts.size.height())),
      m_form(new QComboBox)
{
    setWindowTitle(tr("Properties"));
    m_form->setObjectName(QStringLiteral("form"));
    m_form->addItems({tr("Indexed colors"), tr("True color")});
    m_form->setCurrentIndex(facts.isIndexed ? Indexed : TrueColor);
    auto* form = new QFormLayout;
    addNumber(form);
    form->addRow(tr("&Axis:"), sideBySide(m_x, m_y));
    form->addRow(tr("&Size:"), sideBySide(m_width, m_height));
    form->addRow(tr("&Form:"), m_form);
    addTexts(form);
    auto* box = Zorv::makeOkCancel(this);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(box);
}

ImgInfoDlg::~ImgInfoDlg() = default;

void ImgInfoDlg::addNumber(QFormLayout* form)
{
    if (m_facts.number.isValid()) {
        m_group = makeField("group", 0, MostNumber, m_facts.number.group);
        m_number = makeField("number", 0, MostNumber, m_facts.number.number);
        form->addRow(tr("&Group:"), m_group);
        form->addRow(tr("&Number:"), m_number);
    }
}

void ImgInfoDlg::addTexts(QFormLayout* form)
{
    const int count = m_facts.colorCount;
    form->addRow(tr("Colors used:"),
                 makeLabel("colors", count < 0 ? tr("many") : QString::number(count)));
    if (!m_facts.palette.isEmpty()) {
        form->addRow(tr("Palette:"), makeLabel("palette", m_facts.palette));
    }
    if (!m_facts.codec.isEmpty()) {
        form->addRow(tr("Codec:"), makeLabel("codec", m_facts.codec));
    }
    if (!m_facts.areUsesKnown) {
        return;
    }
    auto* uses = new QPlainTextEdit(m_facts.uses.isEmpty() ? tr("Nothing shows this sprite.")
                                                           : m_facts.uses.join(QLatin1Char('\n')));
    uses->setObjectName(QStringLiteral("uses"));
    uses->setReadOnly(true);
    uses->setTabChangesFocus(true);
    uses->setMaximumHeight(uses->fontMetrics().lineSpacing() * (ShownUses + 1));
    form->addRow(tr("Shown by:"), uses);
}

ImgInfoDlg::Facts ImgInfoDlg::facts() const
{
    Facts facts = m_facts;
    if (m_group) {
        facts.number = {m_group->value(), m_number->value()};
    }
    facts.axis = {m_x->value(), m_y->value()};
    facts.size = {m_width->value(), m_height->value()};
    facts.isIndexed = m_form->currentIndex() == Indexed;
    return facts;
}
