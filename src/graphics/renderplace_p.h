#pragma once

#include <QSize>
#include <QStackedWidget>

class QLabel;

namespace Zorv {

class RenderWidget;

/// Holds a `RenderWidget` and creates it when first shown, so GL is not started for users who draw
/// nothing. Until then, or without working GL, it shows a text instead.
class RenderPlace : public QStackedWidget
{
    Q_OBJECT

public:
    static constexpr QSize SmallestSize{80, 45};

    /// `name` is the object name of the render widget. The texts are named `name` with "_notice"
    /// and "_message" appended.
    explicit RenderPlace(const QString& name, QWidget* parent = nullptr);

    /// Null without working GL, and before the widget is first shown.
    RenderWidget* widget() const { return m_widget; }

    /// Shows a text instead of the widget; an empty text shows the widget.
    void setNotice(const QString& text);

    /// The text shown if GL does not work.
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
