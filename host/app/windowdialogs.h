#pragma once

#include "core/dialogs/dialogs.h"

namespace App {

/// The dialogs of the window: a few choices are buttons, many are a list.
/// Installs itself, and takes itself away.
class WindowDialogs : public Zorv::Dialogs
{
public:
    WindowDialogs();
    ~WindowDialogs() override;

    int choose(const QString& title, const QString& text, const QStringList& choices,
               int defaultChoice) override;
};

/// Stands in where nobody can answer: texts go to standard error, questions are
/// answered as by closing them. Installs itself, and takes itself away.
class SilentDialogs : public Zorv::Dialogs
{
public:
    SilentDialogs();
    ~SilentDialogs() override;

    Button question(const QString& title, const QString& text, Buttons buttons,
                    Button defaultButton) override;
    Button warning(const QString& title, const QString& text, Buttons buttons,
                   Button defaultButton) override;
    void information(const QString& title, const QString& text) override;
    void error(const QString& title, const QString& text) override;
    int choose(const QString& title, const QString& text, const QStringList& choices,
               int defaultChoice) override;
    QString openFileName(QWidget* parent, const QString& caption, const QString& dir,
                         const QString& filter) override;
    QStringList openFileNames(QWidget* parent, const QString& caption, const QString& dir,
                              const QString& filter) override;
    QString saveFileName(QWidget* parent, const QString& caption, const QString& dir,
                         const QString& filter) override;
    QString existingFolder(QWidget* parent, const QString& caption, const QString& dir) override;
};

}  // namespace App
