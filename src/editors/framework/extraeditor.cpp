#include "editors/framework/extraeditor.h"

namespace Zorv {

QWidget* ExtraEditor::widget() const
{
    return nullptr;
}

void ExtraEditor::activate()
{
    m_active = true;
}

void ExtraEditor::deactivate()
{
    m_active = false;
}

bool ExtraEditor::isActive() const
{
    return m_active;
}

void ExtraEditor::reconfig() {}

void ExtraEditor::retranslate() {}

}  // namespace Zorv
