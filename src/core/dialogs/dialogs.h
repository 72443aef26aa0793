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

/// Every message box and dialog of the library goes through this class.
///
/// The default shows `QMessageBox` and `QFileDialog` on the host's main window. A host without a
/// display, or a test, derives from it and installs its own object. Main thread only.
class ZORV_EXPORT Dialogs
{
public:
    enum Button { NoButton = 0, Ok = 1, Cancel = 2, Yes = 4, No = 8 };
    Q_DECLARE_FLAGS(Buttons, Button)

    virtual ~Dialogs();

    /// The installed object; never null.
    static Dialogs* instance();

    /// Installs an object, which the caller keeps owning. Null restores the default.
    static void setInstance(Dialogs* dialogs);

    /// Asks a question and returns the pressed button. Closing the box counts as `No` or `Cancel`
    /// if there is such a button, otherwise as `defaultButton`.
    virtual Button question(const QString& title, const QString& text, Buttons buttons,
                            Button defaultButton);

    /// Shows a warning with `buttons`, like `question()`.
    virtual Button warning(const QString& title, const QString& text, Buttons buttons = Ok,
                           Button defaultButton = Ok);

    /// Shows information with one button.
    virtual void information(const QString& title, const QString& text);

    /// Shows an error with one button.
    virtual void error(const QString& title, const QString& text);

    /// Lets the user choose one of several texts. Returns its index in `choices`, or -1 if
    /// cancelled.
    virtual int choose(const QString& title, const QString& text, const QStringList& choices,
                       int defaultChoice);

    /// Asks for a line of text, with `text` as the initial value. Empty optional if cancelled.
    virtual std::optional<QString> askText(const QString& title, const QString& label,
                                           const QString& text = {});

    /// Asks for a colour with alpha; `color` is the initial value. Empty optional if cancelled.
    virtual std::optional<QColor> chooseColor(const QString& title, const QColor& color);

    /// Ask for a file. Empty if cancelled. If `parent` is null, the main window is used.
    virtual QString openFileName(QWidget* parent, const QString& caption, const QString& dir,
                                 const QString& filter);
    virtual QStringList openFileNames(QWidget* parent, const QString& caption, const QString& dir,
                                      const QString& filter);

    /// The same for saving. If the name has none of the extensions of `filter`, the first one is
    /// appended. The user is asked before an existing file is replaced.
    virtual QString saveFileName(QWidget* parent, const QString& caption, const QString& dir,
                                 const QString& filter);

    /// Ask for an existing folder. Empty if cancelled.
    virtual QString existingFolder(QWidget* parent, const QString& caption, const QString& dir);

    /// Lets the user choose one of the engines in `model`. `row` is selected first. Returns the
    /// row, or -1 if cancelled. `geometry` is the previous position of the dialog (null if none)
    /// and receives the new one. The default shows `RunDlg`.
    virtual int runTarget(QWidget* parent, QAbstractItemModel* model, unsigned row,
                          QRect* geometry);
};

Q_DECLARE_OPERATORS_FOR_FLAGS(Dialogs::Buttons)

/// Like the static functions of `QFileDialog`, but through `Dialogs`, without a selected filter or
/// options.
ZORV_EXPORT QString getOpenFileName(QWidget* parent, const QString& caption, const QString& dir,
                                    const QString& filter);
ZORV_EXPORT QString getSaveFileName(QWidget* parent, const QString& caption, const QString& dir,
                                    const QString& filter);

/// The same; sorted case-sensitively if the global setting "sort_file_names" is true.
ZORV_EXPORT QStringList getOpenFileNames(QWidget* parent, const QString& caption,
                                         const QString& dir, const QString& filter);

}  // namespace Zorv
