#include "core/extensionmanager.h"

#include <array>

namespace Zorv {

namespace {

const int TypeCount = Extension::User2 + 1;

// One list more than there are types: the last one is always empty and serves invalid types.
std::array<QList<Extension*>, TypeCount + 1>& lists()
{
    static std::array<QList<Extension*>, TypeCount + 1> all;
    return all;
}

bool isKnown(Extension::Type type)
{
    return int(type) >= 0 && int(type) < TypeCount;
}

}  // namespace

ExtensionManager::ExtensionManager(const QString&) {}

void ExtensionManager::add(Extension* extension)
{
    if (extension && isKnown(extension->type())) {
        list(extension->type()).append(extension);
    }
}

QList<Extension*>& ExtensionManager::list(Extension::Type type)
{
    return lists()[size_t(isKnown(type) ? int(type) : TypeCount)];
}

}  // namespace Zorv
