#include "app/settings/showsettings.h"

#include "app/main/mainwindow.h"
#include "app/settings/settingsdialog.h"

namespace App {

void showSettings(MainWindow& window)
{
    auto* dialog = window.findChild<SettingsDialog*>();
    if (!dialog) {
        dialog = new SettingsDialog(window.registry(), &window);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        QObject::connect(dialog, &SettingsDialog::applied, &window, &MainWindow::reconfig);
        dialog->open();
    }
    dialog->raise();
    dialog->activateWindow();
}

}  // namespace App
