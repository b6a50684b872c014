#include "resources/Resources.h"

#include <QtGlobal>

// Outside any namespace, as the resource compiler names its initialiser.
static void InitSeisplotResources() {
    Q_INIT_RESOURCE(seisplot_resources);
}

namespace seisplot {

void InitLibraryResources() {
    static const bool done = (InitSeisplotResources(), true);
    (void)done;
}

} // namespace seisplot
