#include "app/actions/actiontext.h"

#include <zorv/text/translator.h>

#include <QAction>
#include <QCoreApplication>

namespace App {

QString ActionText::label() const
{
    if (m_translator) {
        return m_translator->trText(m_id);
    }
    return m_source ? QCoreApplication::translate(m_context, m_source) : QString();
}

void ActionText::apply(QAction* action) const
{
    const QString text = label();
    if (text.isEmpty()) {
        return;
    }
    action->setText(text);
    const QString tip = m_translator ? m_translator->trToolTip(m_id) : QString();
    action->setToolTip(tip.isEmpty() ? plain(text) : tip);
    action->setStatusTip(tip);
    action->setWhatsThis(m_translator ? m_translator->trWhatIsThis(m_id) : QString());
}

QString ActionText::plain(QString text)
{
    for (int i = text.indexOf(QLatin1Char('&')); i >= 0; i = text.indexOf(QLatin1Char('&'), i)) {
        text.remove(i, 1);
        // "&&" is an escaped "&".
        i += i < text.size() && text[i] == QLatin1Char('&') ? 1 : 0;
    }
    if (text.endsWith(QLatin1String("..."))) {
        text.chop(3);
    }
    return text;
}

}  // namespace App
