#include "app/references/referencepanel.h"

#include "app/look/language.h"

#include <QDir>
#include <QPainter>

namespace App {

using Operations::NameUse;

namespace {

constexpr int UseRole = Qt::UserRole;

}  // namespace

ReferencePanel::ReferencePanel()
{
    setColumnCount(1);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    followLanguage(this, [this] { setAccessibleName(tr("Places that name something")); });
    connect(this, &QTreeWidget::itemActivated, this, &ReferencePanel::request);
}

void ReferencePanel::showUses(const QString& title, const QVector<NameUse>& uses,
                              const QString& gameFolder)
{
    clear();
    m_uses = uses;
    setHeaderLabel(title);
    setHeaderHidden(false);
    QTreeWidgetItem* file = nullptr;
    QString path;
    for (int i = 0; i < uses.size(); ++i) {
        const NameUse& use = uses.at(i);
        if (!file || use.path != path) {
            path = use.path;
            file = new QTreeWidgetItem(this, {QDir(gameFolder).relativeFilePath(path)});
            file->setData(0, UseRole, i);
            file->setExpanded(true);
        }
        const QString text =
            use.line == 0
                ? use.text
                : tr("%1: %2", "line number, text").arg(QString::number(use.line), use.text);
        auto* row = new QTreeWidgetItem(file, {text});
        row->setData(0, UseRole, i);
        row->setToolTip(0, use.isDefinition ? tr("Here it gets its name") : tr("Names it"));
        QFont font = row->font(0);
        font.setBold(use.isDefinition);
        row->setFont(0, font);
    }
    setCurrentItem(topLevelItem(0));
}

void ReferencePanel::forget()
{
    clear();
    m_uses.clear();
    setHeaderHidden(true);
}

QSize ReferencePanel::minimumSizeHint() const
{
    return {QTreeWidget::minimumSizeHint().width(), 3 * fontMetrics().height()};
}

void ReferencePanel::paintEvent(QPaintEvent* event)
{
    QTreeWidget::paintEvent(event);
    if (topLevelItemCount() == 0) {
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
        painter.drawText(viewport()->rect().adjusted(4, 2, -4, -2),
                         Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
                         tr("Put the cursor on a name in the text and choose Find references."));
    }
}

void ReferencePanel::request(const QTreeWidgetItem* item)
{
    const NameUse use = m_uses.value(item->data(0, UseRole).toInt());
    if (!use.path.isEmpty()) {
        emit useRequested(use);
    }
}

}  // namespace App
