#include "core/dialogs/failures_p.h"

#include "core/dialogs/dialogs.h"

#include <QCoreApplication>

namespace Zorv {

namespace {

constexpr int ToldErrors = 10;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::Failures)
};

}  // namespace

QString shortList(const QStringList& lines)
{
    QStringList shown = lines.mid(0, ToldErrors);
    if (lines.size() > ToldErrors) {
        shown.append(Text::tr("... and %1 more.").arg(lines.size() - ToldErrors));
    }
    return shown.join(QLatin1Char('\n'));
}

void tellFailures(const QString& title, const QStringList& errors, const QString& last)
{
    if (!errors.isEmpty()) {
        const QString lines = shortList(errors);
        Dialogs::instance()->error(title,
                                   last.isEmpty() ? lines : lines + QLatin1Char('\n') + last);
    }
}

}  // namespace Zorv
