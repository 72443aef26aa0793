#include "app/assets/axisplaces.h"

#include <QCoreApplication>
#include <QSpinBox>

#include <limits>

namespace App {

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(App::AxisPlaces)
};

const char* const places[] = {
    QT_TRANSLATE_NOOP("App::AxisPlaces", "Top left corner"),
    QT_TRANSLATE_NOOP("App::AxisPlaces", "Middle of the top edge"),
    QT_TRANSLATE_NOOP("App::AxisPlaces", "Top right corner"),
    QT_TRANSLATE_NOOP("App::AxisPlaces", "Middle of the left edge"),
    QT_TRANSLATE_NOOP("App::AxisPlaces", "Middle"),
    QT_TRANSLATE_NOOP("App::AxisPlaces", "Middle of the right edge"),
    QT_TRANSLATE_NOOP("App::AxisPlaces", "Bottom left corner"),
    QT_TRANSLATE_NOOP("App::AxisPlaces", "Middle of the bottom edge"),
    QT_TRANSLATE_NOOP("App::AxisPlaces", "Bottom right corner"),
};

}  // namespace

QStringList axisPlaceNames()
{
    QStringList names;
    for (const char* place : places) {
        names.append(Text::tr(place));
    }
    return names;
}

QSpinBox* makeOffsetBox()
{
    using Limits = std::numeric_limits<qint16>;
    auto* box = new QSpinBox;
    box->setRange(Limits::min(), Limits::max());
    box->setSuffix(Text::tr(" pixels"));
    return box;
}

}  // namespace App
