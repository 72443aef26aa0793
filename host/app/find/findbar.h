#pragma once

#include <QVector>
#include <QWidget>

class QHBoxLayout;
class QLabel;
class QToolButton;

namespace Zorv {
class CodeEditor;
}

namespace App {

class FindField;
class FindSearch;

/// A bar below the text in which a person looks for something and replaces it.
///
/// It finds while the person types, from where the cursor was, and tells beside the field what
/// there is to tell: the number of matches, that the end of the text was passed, what is wrong
/// with an expression. The keys of actions that are added to the bar (`addAction()`) work in
/// its fields.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    /// The editor outlives the bar.
    explicit FindBar(Zorv::CodeEditor* editor, QWidget* parent = nullptr);
    ~FindBar() override;

    /// The editor shows another document, or none any more.
    void follow();

    /// @name The actions
    /// @{
    /// Opens the bar, with the selection if that is a part of one line.
    void openFind();
    void openReplace();

    /// Goes to the next match or the one before. Opens the bar if it is closed, and leaves the
    /// keyboard where it is.
    void findNext();
    void findPrevious();

    /// The next place of the selection, or of the word at the cursor.
    void findSelection();

    void replaceOne();
    void replaceAll();

    /// Closes the bar; the keyboard goes to the text.
    void closeBar();
    /// @}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Switch
    {
        QToolButton* button;
        int option;  ///< of `FindPattern`
        int key;
    };

    QHBoxLayout* makeFindButtons();
    QHBoxLayout* makeReplaceButtons();
    void showReplaceRow(bool isShown);
    QToolButton* makeButton(const char* name, const char* picture, void (FindBar::*slot)());
    QToolButton* makeSwitch(const char* name, int option, int key);
    void giveTexts();

    void open(bool withReplace);
    void bringUp(bool withReplace);
    bool isReadyToGo();
    void takeText(const QString& text);
    QString selectedText() const;
    int options() const;
    void patternChanged();
    void showState();
    bool handleKey(const QWidget* widget, int key, bool isPressed);
    bool handleReturn(const QWidget* widget, bool isShifted, bool isPressed);

    Zorv::CodeEditor* m_editor;
    FindSearch* m_search;
    FindField* m_field;
    FindField* m_with;
    QLabel* m_label;
    QLabel* m_withLabel;
    QLabel* m_state;
    QVector<Switch> m_switches;
};

}  // namespace App
