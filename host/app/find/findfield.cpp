#include "app/find/findfield.h"

#include <zorv/core/interface.h>

#include <QLineEdit>
#include <QSignalBlocker>

namespace App {

namespace {

constexpr int Width = 10;  // characters

}  // namespace

FindField::FindField(const QString& setting, QWidget* parent)
    : QComboBox(parent), m_setting(setting)
{
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    // The completer would append a text from the history while typing, and it would be searched
    // for.
    setCompleter(nullptr);
    setMinimumContentsLength(Width);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void FindField::setText(const QString& text)
{
    setEditText(text);
    lineEdit()->selectAll();
}

void FindField::remember()
{
    if (text().isEmpty()) {
        return;
    }
    Zorv::Interface* host = Zorv::Interface::instance();
    QStringList history = host->option(m_setting).toStringList();
    if (history.value(0) == text()) {
        return;
    }
    history.removeAll(text());
    history.prepend(text());
    host->setOption(m_setting, QStringList(history.mid(0, MaxCount)));
    readHistory();
}

void FindField::readHistory()
{
    const QSignalBlocker blocker(this);
    const QString present = text();
    const int cursor = lineEdit()->cursorPosition();
    clear();
    addItems(Zorv::Interface::instance()->option(m_setting).toStringList());
    setCurrentIndex(-1);
    setEditText(present);
    lineEdit()->setCursorPosition(cursor);
}

}  // namespace App
