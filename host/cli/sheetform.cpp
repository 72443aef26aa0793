#include "cli/sheetform.h"

#include "family/import/sheet.h"

#include <QRegularExpression>
#include <QStringList>

namespace Cli {

using Family::SheetCut;

namespace {

bool readPair(const QString& text, int* first, int* second)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,5})x([0-9]{1,5})$"));
    const QRegularExpressionMatch match = form.match(text);
    *first = match.captured(1).toInt();
    *second = match.captured(2).toInt();
    return qMin(*first, *second) > 0 && qMax(*first, *second) <= Family::Sheet::MaxSide;
}

bool readHow(const QString& text, SheetForm* form)
{
    const QString value = text.section(QLatin1Char('='), 1);
    const QString key = text.section(QLatin1Char('='), 0, 0);
    SheetCut& cut = form->cut;
    if (key == QLatin1String("cells")) {
        cut.how = SheetCut::BySize;
        return readPair(value, &cut.cell.rwidth(), &cut.cell.rheight());
    }
    if (key == QLatin1String("grid")) {
        cut.how = SheetCut::ByCount;
        return readPair(value, &cut.columns, &cut.rows);
    }
    form->hasFile = text == QLatin1String("json");
    cut.how = SheetCut::ByGaps;
    return form->hasFile || text == QLatin1String("gaps");
}

bool readMore(const QString& text, SheetCut* cut)
{
    if (text == QLatin1String("down")) {
        cut->isColumnsFirst = true;
        return true;
    }
    const QString key = text.section(QLatin1Char('='), 0, 0);
    int* const number = key == QLatin1String("edge")    ? &cut->edge
                        : key == QLatin1String("gap")   ? &cut->gap
                        : key == QLatin1String("count") ? &cut->count
                                                        : nullptr;
    bool isNumber = false;
    const int value = text.section(QLatin1Char('='), 1).toInt(&isNumber);
    if (number && isNumber && value >= 0 && value <= Family::Sheet::MaxFrames) {
        *number = qMin(value, key == QLatin1String("count") ? value : Family::Sheet::MaxSide);
        return true;
    }
    return false;
}

}  // namespace

bool readSheetForm(const QString& text, SheetForm* form)
{
    const QStringList parts = text.split(QLatin1Char(','));
    *form = {};
    bool isRead = readHow(parts.first(), form);
    const bool isGrid = !form->hasFile && form->cut.how != SheetCut::ByGaps;
    for (int i = 1; i < parts.size(); ++i) {
        isRead = isRead && isGrid && readMore(parts.at(i), &form->cut);
    }
    return isRead;
}

}  // namespace Cli
