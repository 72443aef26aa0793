#include "image/dialogs/resizefilters_p.h"

#include <QCoreApplication>

namespace {

/// The context of the texts of this file for translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(ResizeFilters)
};

}  // namespace

QComboBox* makeFilterBox()
{
    auto* box = new QComboBox;
    box->setObjectName(QStringLiteral("filter"));
    box->addItems({Text::tr("Nearest pixel"), Text::tr("Mixed colors"),
                   Text::tr("Scale2x, sharp edges"), Text::tr("hq2x, smooth edges")});
    return box;
}
