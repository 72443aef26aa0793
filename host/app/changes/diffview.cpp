#include "app/changes/diffview.h"

#include "app/look/codefont.h"
#include "app/look/theme.h"
#include "operations/textdiff.h"

#include <QSyntaxHighlighter>

namespace App {

namespace {

// Nobody reads a longer comparison, and filling the view would take long.
constexpr int MaxComparison = 400000;

/// Colours added and removed lines.
class DiffColours : public QSyntaxHighlighter
{
public:
    explicit DiffColours(QTextDocument* document) : QSyntaxHighlighter(document) {}

protected:
    void highlightBlock(const QString& line) override
    {
        if (line.startsWith(QLatin1Char('+'))) {
            setFormat(0, line.size(), Theme::colour(Theme::AddedText));
        } else if (line.startsWith(QLatin1Char('-'))) {
            setFormat(0, line.size(), Theme::colour(Theme::RemovedText));
        } else if (line.startsWith(QLatin1String("@@"))) {
            setFormat(0, line.size(), Theme::colour(Theme::PlaceText));
        }
    }
};

}  // namespace

DiffView::DiffView(QWidget* parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setLineWrapMode(NoWrap);
    setFont(codeFont());
    setAccessibleName(tr("Comparison of the file and the unsaved work"));
    new DiffColours(document());
}

QString DiffView::comparison(const QString& before, const QString& after, const QString& beforeName,
                             const QString& afterName)
{
    QString diff = Operations::unifiedDiff(before, after, beforeName, afterName);
    if (diff.size() > MaxComparison) {
        diff.truncate(MaxComparison);
        diff += QLatin1Char('\n') + tr("The rest is not shown.");
    }
    return diff;
}

}  // namespace App
