#include "gui/look/Resources.h"

#include <QtGlobal>

// Q_INIT_RESOURCE declares a global function and so cannot be in a namespace.
static void registerBuiltInFiles()
{
    Q_INIT_RESOURCE(resources);
    Q_INIT_RESOURCE(translations);
    Q_INIT_RESOURCE(help);
    Q_INIT_RESOURCE(map);
}

namespace VELIX {

void initResources()
{
    registerBuiltInFiles();
}

} // namespace VELIX
