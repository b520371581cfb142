#pragma once

#include <memory>

#include "model/ScanModel.h"
#include "samples/TemporaryFolder.h"
#include "support/ScanFakes.h"
#include "support/SteppingDispatcher.h"

namespace Loadwick {

/// A scan model over fakes, with an empty folder to scan. Its scans proceed when a test says so.
class ScanningModel
{
    /// A pending scan and the dispatcher own each other, so pending work runs at the end.
    struct Rest
    {
        std::shared_ptr<SteppingDispatcher> dispatcher;
        ~Rest() { dispatcher->runAll(); }
    };

public:
    ScanningModel();

    std::shared_ptr<FakeProbe> probe = std::make_shared<FakeProbe>();
    std::shared_ptr<FakeInstructionScanner> scanner = std::make_shared<FakeInstructionScanner>();
    std::shared_ptr<SteppingDispatcher> dispatcher = std::make_shared<SteppingDispatcher>();
    TemporaryFolder folder;
    Rest rest{dispatcher}; ///< destroyed after the model, which gets no more calls
    ScanModel model;

    void choose();
    /// Completes the running scan.
    void finish() { dispatcher->runAll(); }
    /// One whole scan of the folder.
    void scan();
};

} // namespace Loadwick
