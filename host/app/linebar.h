#pragma once

#include <QWidget>

class QSpinBox;

namespace App {

/// A bar below the text that asks for a line. The return key goes there, escape
/// gives up; both close the bar.
class LineBar : public QWidget
{
    Q_OBJECT

public:
    explicit LineBar(QWidget* parent = nullptr);

    /// Shows the bar, with the present line, from 0.
    void ask(int line, int lineCount);

signals:
    /// From 0.
    void lineChosen(int line);
    void closed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QSpinBox* m_line;
};

}  // namespace App
