#pragma once

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <QtTest>

#include <functional>

/// Calls a function with the next modal dialog, as soon as that takes keys.
inline void whenModal(const std::function<void(QDialog*)>& drive)
{
    QTimer::singleShot(0, qApp, [drive] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog) {
            whenModal(drive);
            return;
        }
        dialog->activateWindow();
        const auto takesKeys = [dialog] {
            return dialog->isAncestorOf(QApplication::focusWidget());
        };
        if (QTest::qWaitFor(takesKeys)) {
            drive(dialog);
        }
        // A check that failed in between must not leave the test waiting for ever.
        if (dialog == QApplication::activeModalWidget()) {
            QTest::qFail("the dialog is still open", __FILE__, __LINE__);
            dialog->reject();
        }
    });
}

/// Types into whatever has the focus: each text, its lines with Return between, and Tab
/// behind all but the last.
inline void typeFields(const QStringList& texts)
{
    for (int i = 0; i < texts.size(); ++i) {
        if (i > 0) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        const QStringList lines = texts[i].split(QLatin1Char('\n'));
        for (int line = 0; line < lines.size(); ++line) {
            if (line > 0) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            }
            QTest::keyClicks(QApplication::focusWidget(), lines[line]);
        }
    }
}
