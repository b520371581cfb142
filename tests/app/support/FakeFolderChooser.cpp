#include "support/FakeFolderChooser.h"

namespace Loadwick {

void FakeFolderChooser::open(Chosen chosen)
{
    ++openCount;
    if (answer)
        chosen(*answer);
}

} // namespace Loadwick
