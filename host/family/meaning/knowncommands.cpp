#include "family/meaning/knowncommands.h"

#include <QCoreApplication>

namespace Family {

namespace {

constexpr KnownCommand rows[] = {
    {"run", "forward", "F, F",
     QT_TRANSLATE_NOOP("Family", "It starts the run. Add it to '[commands]'.")},
    {"hop-back", "back", "B, B",
     QT_TRANSLATE_NOOP("Family", "It starts the hop back. Add it to '[commands]'.")},
};

template <class Fits>
const KnownCommand* find(Fits fits)
{
    for (const KnownCommand& row : rows) {
        if (fits(row)) {
            return &row;
        }
    }
    return nullptr;
}

}  // namespace

const KnownCommand* knownCommandOf(QLatin1String subGroup, QLatin1String key)
{
    return subGroup == QLatin1String("run")
               ? find([&](const KnownCommand& row) { return key == QLatin1String(row.key); })
               : nullptr;
}

const KnownCommand* knownCommand(const QString& name)
{
    return find([&](const KnownCommand& row) { return name == QLatin1String(row.name); });
}

}  // namespace Family
