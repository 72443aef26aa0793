#include "editors/framework/extraeditor.h"

namespace Zorv {

QWidget* ExtraEditor::widget() const
{
    return nullptr;
}

void ExtraEditor::activate() {}

void ExtraEditor::deactivate() {}

void ExtraEditor::reconfig() {}

void ExtraEditor::retranslate() {}

}  // namespace Zorv
