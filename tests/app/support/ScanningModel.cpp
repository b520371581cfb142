#include "support/ScanningModel.h"

namespace Loadwick {

ScanningModel::ScanningModel()
    : model({.probeRunner = probe,
             .instructionScanner = scanner,
             .historyStore = nullptr,
             .dispatcher = dispatcher,
             .now = [] { return std::chrono::sys_seconds(); }})
{}

void ScanningModel::choose()
{
    model.select(RepoSelection::fromUrl(folder.path()));
}

void ScanningModel::scan()
{
    choose();
    model.scan();
    finish();
}

} // namespace Loadwick
