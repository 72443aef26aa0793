#include "app/picture/screenshot.h"

#include "app/main/mainwindow.h"
#include "app/picture/picturescene.h"
#include "app/session/gamesession.h"

#include <zorv/core/safefile.h>

#include <QApplication>
#include <QPainter>
#include <QPixmap>

namespace App {

namespace {

// In pictures of larger windows, text is too small to read.
const QSize PictureSize(1280, 800);

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(App::Screenshot)
};

/// The window with its popups, which are windows of their own.
QPixmap pictureOf(MainWindow* window)
{
    QPixmap picture = window->grab();
    QPainter painter(&picture);
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget* widget : all) {
        if (widget->isVisible() && widget->windowType() == Qt::Popup) {
            painter.drawPixmap(window->mapFromGlobal(widget->pos()), widget->grab());
        }
    }
    return picture;
}

}  // namespace

bool drawWindow(MainWindow* window, const PictureRequest& request, QString* error)
{
    window->resize(PictureSize);
    window->show();
    if (!request.game.isEmpty() && !window->openPath(request.game)) {
        *error = Text::tr("There is no picture without the game.");
        return false;
    }
    if (window->session()->game()) {
        arrangeScene(window, request.scene);
    }
    settleWindow();
    Zorv::SafeFile file(request.file);
    const bool isWritten =
        file.open(QIODevice::WriteOnly) && pictureOf(window).save(&file, "PNG") && file.commit();
    *error = file.failure();
    return isWritten;
}

}  // namespace App
