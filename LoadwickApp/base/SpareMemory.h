#pragma once

#include <memory>

#include <QTimer>

#include "model/TaskDispatcher.h"

namespace Loadwick {

/// The memory that was freed but that the C library keeps for later: small blocks, which of a
/// page's pictures add up to tens of megabytes, of a history's text to hundreds. Belongs to one
/// thread.
class SpareMemory
{
public:
    explicit SpareMemory(std::shared_ptr<TaskDispatcher> dispatcher);

    /// Gives it back in the background, once a page that has just been asked for is at rest.
    void giveBackSoon() { m_rest.start(); }

    /// Returns it to the system, as far as the C library can, which takes milliseconds.
    static void giveBack() noexcept;

private:
    QTimer m_rest;
};

} // namespace Loadwick
