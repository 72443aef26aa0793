#pragma once

#include <zorv/core/dialogs/dialogs.h>

namespace App {

/// The dialogs of the window: a few choices are buttons, many are a list. Installs itself, and
/// removes itself.
class WindowDialogs : public Zorv::Dialogs
{
public:
    WindowDialogs();
    ~WindowDialogs() override;

    int choose(const QString& title, const QString& text, const QStringList& choices,
               int defaultChoice) override;
};

}  // namespace App
