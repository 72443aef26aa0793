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

/// A search and replace bar below the text.
///
/// It searches while the user types, starting at the cursor, and shows beside the field the number
/// of matches, that the search wrapped around, or what is wrong with an expression. Shortcuts of
/// actions added to the bar (`addAction()`) work in its fields.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    /// The editor outlives the bar.
    explicit FindBar(Zorv::CodeEditor* editor, QWidget* parent = nullptr);
    ~FindBar() override;

    /// Call when the editor shows another document, or none.
    void follow();

    /// @name The actions
    /// @{
    /// Opens the bar; searches for the selection if it is within one line.
    void openFind();
    void openReplace();

    /// Goes to the next or previous match. Opens the bar if it is closed, and does not move the
    /// focus.
    void findNext();
    void findPrevious();

    /// Finds the next occurrence of the selection, or of the word at the cursor.
    void findSelection();

    void replaceOne();
    void replaceAll();

    /// Closes the bar and focuses the text.
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
