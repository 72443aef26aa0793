#include "app/settings/showsettings.h"

#include "app/settings/settingsdialog.h"

namespace App {

void showSettings(ActionRegistry* registry, QWidget* window, const std::function<void()>& applied)
{
    auto* dialog = window->findChild<SettingsDialog*>();
    if (!dialog) {
        dialog = new SettingsDialog(registry, window);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        QObject::connect(dialog, &SettingsDialog::applied, window, applied);
        dialog->open();
    }
    dialog->raise();
    dialog->activateWindow();
}

}  // namespace App
