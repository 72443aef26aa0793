#pragma once

#include "core/dialogs/dialogs.h"

#include <QList>
#include <QRect>

#include <functional>

/// Answers the library's dialogs by plan and writes down what was shown.
///
/// It installs itself and takes itself away. Answers are taken from the front
/// of the lists; a list that has run out gives what closing the dialog would.
class PlannedDialogs : public Zorv::Dialogs
{
public:
    /// One dialog that was shown.
    struct Shown
    {
        QString kind;  ///< "question", "warning", "information", "error", "choose", "askText", ...
        QString title;
        QString text;  ///< the filter, for a question for files
        Buttons buttons;
        Button defaultButton = NoButton;
        QStringList choices;
        QString folder;  ///< where a question for files begins
    };

    PlannedDialogs();
    ~PlannedDialogs() override;

    QList<Button> buttonAnswers;     ///< of question() and warning()
    QList<int> choiceAnswers;        ///< of choose()
    QStringList textAnswers;         ///< of askText()
    QList<QColor> colorAnswers;      ///< of chooseColor()
    QList<QStringList> fileAnswers;  ///< of every question for files and folders
    QList<int> targetAnswers;        ///< of runTarget()
    QRect targetGeometry;            ///< where that dialog stands; null to leave it
    QList<Shown> shown;

    /// Runs while a dialog is open, before its answer is taken.
    std::function<void(const Shown&)> whileOpen;

    /// How many dialogs of a kind were shown; of all kinds for an empty one.
    int count(const QString& kind = {}) const;

    /// The texts of all dialogs of a kind.
    QStringList texts(const QString& kind) const;

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
    std::optional<QColor> chooseColor(const QString& title, const QColor& color) override;
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
    void show(const Shown& dialog);
    Button takeButton(Buttons buttons, Button defaultButton);
    QStringList takeFiles(const char* kind, const QString& caption, const QString& dir,
                          const QString& filter);
};
