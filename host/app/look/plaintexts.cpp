#include "app/look/plaintexts.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QTabBar>
#include <QTextDocument>
#include <QToolTip>

namespace App {

namespace {

QString tipAt(const QWidget* widget, const QPoint& place)
{
    if (const auto* tabs = qobject_cast<const QTabBar*>(widget)) {
        return tabs->tabToolTip(tabs->tabAt(place));
    }
    const auto* view = qobject_cast<const QAbstractItemView*>(widget->parentWidget());
    return view && view->viewport() == widget
               ? view->indexAt(place).data(Qt::ToolTipRole).toString()
               : widget->toolTip();
}

bool showPlain(QWidget* widget, const QHelpEvent* help)
{
    const QString tip = tipAt(widget, help->pos());
    const bool looksRich = Qt::mightBeRichText(tip);
    if (looksRich) {
        // QToolTip detects rich text by itself. Escaping is the only way to show markup literally.
        QToolTip::showText(help->globalPos(),
                           QLatin1String("<qt>") + tip.toHtmlEscaped() + QLatin1String("</qt>"),
                           widget);
    }
    return looksRich;
}

}  // namespace

PlainTexts::PlainTexts(QObject* parent) : QObject(parent)
{
    QApplication::instance()->installEventFilter(this);
}

bool PlainTexts::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ToolTip && watched->isWidgetType()) {
        return showPlain(static_cast<QWidget*>(watched), static_cast<QHelpEvent*>(event));
    }
    // The widget that shows a tool tip is also a QLabel.
    auto* label = event->type() == QEvent::Show ? qobject_cast<QLabel*>(watched) : nullptr;
    if (label && label->textFormat() == Qt::AutoText && !label->inherits("QTipLabel")) {
        label->setTextFormat(Qt::PlainText);
    }
    return false;
}

}  // namespace App
