#include "editors/import/importreport_p.h"

#include <QCoreApplication>

namespace Zorv {

namespace {

/// Gives the texts of this file a translation context.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::ImportReport)
};

}  // namespace

QStringList importLines(const ImportCounts& counts)
{
    QStringList lines;
    const auto add = [&lines](int count, const QString& text) {
        lines += count > 0 ? QStringList(text) : QStringList();
    };
    add(counts.replaced,
        Text::tr("%n of them took the place of another one.", nullptr, counts.replaced));
    add(counts.skipped,
        Text::tr("%n were skipped: their names are there already.", nullptr, counts.skipped));
    add(counts.refused, Text::tr("%n could not be imported.", nullptr, counts.refused));
    return lines;
}

}  // namespace Zorv
