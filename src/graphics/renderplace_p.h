#pragma once

#include <QSize>
#include <QStackedWidget>

class QLabel;

namespace Zorv {

class RenderWidget;

/// Where a `RenderWidget` stands, which is made when it is seen first: whoever has nothing to draw
/// pays for no GL. What stands there instead is a text.
class RenderPlace : public QStackedWidget
{
    Q_OBJECT

public:
    static constexpr QSize SmallestSize{80, 45};

    /// `name` is that of the render widget; the texts are `name` with "_notice" and "_message".
    explicit RenderPlace(const QString& name, QWidget* parent = nullptr);

    /// Null without usable GL, and before it was shown.
    RenderWidget* widget() const { return m_widget; }

    /// Shows a text in place of the widget; an empty one shows the widget.
    void setNotice(const QString& text);

    /// What stands there on a display whose GL does not work.
    void setUnusableText(const QString& text);

    QSize minimumSizeHint() const override;

signals:
    void widgetMade();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QLabel* makeText(const QString& name);
    void ensureWidget();
    void showPage();

    QString m_name;
    QLabel* m_notice;
    QLabel* m_unusable;
    RenderWidget* m_widget = nullptr;
};

}  // namespace Zorv
