#include "editors/snipman/snipfield.h"

SnipField::SnipField(const QString& fieldName, const QString& fieldTitle)
    : name(fieldName), title(fieldTitle)
{
}

SnipField::~SnipField() = default;
