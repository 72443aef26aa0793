#pragma once

#include <zorv/core/dialogs/dialogs.h>

namespace Cli {

/// Replaces all dialogs: prints their text to standard error and answers as a user who cancels.
/// Installs and uninstalls itself.
class CommandDialogs final : public Zorv::Dialogs
{
public:
    CommandDialogs();
    ~CommandDialogs() override;

    /// True if a question or message was shown that makes the command fail.
    bool wasShown() const { return m_shown; }

    Button question(const QString& title, const QString& text, Buttons buttons,
                    Button defaultButton) override;
    Button warning(const QString& title, const QString& text, Buttons buttons = Ok,
                   Button defaultButton = Ok) override;
    void information(const QString& title, const QString& text) override;
    void error(const QString& title, const QString& text) override;
    int choose(const QString& title, const QString& text, const QStringList& choices,
               int defaultChoice) override;
    std::optional<QString> askText(const QString& title, const QString& label,
                                   const QString& text) override;
    QString openFileName(QWidget* parent, const QString& caption, const QString& dir,
                         const QString& filter) override;
    QStringList openFileNames(QWidget* parent, const QString& caption, const QString& dir,
                              const QString& filter) override;
    QString saveFileName(QWidget* parent, const QString& caption, const QString& dir,
                         const QString& filter) override;
    QString existingFolder(QWidget* parent, const QString& caption, const QString& dir) override;
    int runTarget(QWidget* parent, QAbstractItemModel* model, unsigned row,
                  QRect* geometry) override;

private:
    void show(const QString& text);

    bool m_shown = false;
};

}  // namespace Cli
