#pragma once

#include "zorv_export.h"

#include <QColor>
#include <QString>
#include <QStringList>

#include <optional>

class QAbstractItemModel;
class QRect;
class QWidget;

namespace Zorv {

/// The one seam through which every message box and dialog of the library passes.
///
/// The default shows `QMessageBox` and `QFileDialog` on the host's main window.
/// A host without a display, or a test, derives and installs its own object.
/// Main thread only.
class ZORV_EXPORT Dialogs
{
public:
    enum Button { NoButton = 0, Ok = 1, Cancel = 2, Yes = 4, No = 8 };
    Q_DECLARE_FLAGS(Buttons, Button)

    virtual ~Dialogs();

    /// The object in use; never null.
    static Dialogs* instance();

    /// Installs an object, which stays the caller's; null brings the default
    /// back.
    static void setInstance(Dialogs* dialogs);

    /// Asks; gives the button that was pressed. Closing the box presses
    /// `No` or `Cancel` if there is one, else `defaultButton`.
    virtual Button question(const QString& title, const QString& text, Buttons buttons,
                            Button defaultButton);

    /// A warning with `buttons`; as `question()`.
    virtual Button warning(const QString& title, const QString& text, Buttons buttons = Ok,
                           Button defaultButton = Ok);

    /// Tells something, with one button.
    virtual void information(const QString& title, const QString& text);

    /// Tells a failure, with one button.
    virtual void error(const QString& title, const QString& text);

    /// Asks for one of several answers in words; gives its place in `choices`,
    /// -1 if the person gave up.
    virtual int choose(const QString& title, const QString& text, const QStringList& choices,
                       int defaultChoice);

    /// Asks for a line of text, which is `text` at first; nothing if the person gave up.
    virtual std::optional<QString> askText(const QString& title, const QString& label,
                                           const QString& text = {});

    /// Asks for a colour, which is `color` at first, with alpha; nothing if the person gave up.
    virtual std::optional<QColor> chooseColor(const QString& title, const QColor& color);

    /// Ask for a file; empty if the person gave up. `parent` null stands for
    /// the main window.
    virtual QString openFileName(QWidget* parent, const QString& caption, const QString& dir,
                                 const QString& filter);
    virtual QStringList openFileNames(QWidget* parent, const QString& caption, const QString& dir,
                                      const QString& filter);

    /// As above. A name that ends in none of the extensions of `filter` gets the
    /// first of them; the person is asked before a file of that name is replaced.
    virtual QString saveFileName(QWidget* parent, const QString& caption, const QString& dir,
                                 const QString& filter);

    /// Ask for an existing folder; empty if the person gave up.
    virtual QString existingFolder(QWidget* parent, const QString& caption, const QString& dir);

    /// Lets the person choose a row of `model`, the engines that can be started,
    /// with `row` selected at first; gives the row, -1 if the person gave up.
    /// `geometry` is where the dialog stood last, null for nowhere, and takes where
    /// it stood now. The default shows `RunDlg`.
    virtual int runTarget(QWidget* parent, QAbstractItemModel* model, unsigned row,
                          QRect* geometry);
};

Q_DECLARE_OPERATORS_FOR_FLAGS(Dialogs::Buttons)

/// As the static functions of `QFileDialog`, through `Dialogs`, with no
/// selected filter and no options.
ZORV_EXPORT QString getOpenFileName(QWidget* parent, const QString& caption, const QString& dir,
                                    const QString& filter);
ZORV_EXPORT QString getSaveFileName(QWidget* parent, const QString& caption, const QString& dir,
                                    const QString& filter);

/// As above; sorted with case if the global setting "sort_file_names" is true.
ZORV_EXPORT QStringList getOpenFileNames(QWidget* parent, const QString& caption,
                                         const QString& dir, const QString& filter);

}  // namespace Zorv
