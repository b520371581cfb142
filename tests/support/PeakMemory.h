#pragma once

#include <cstddef>

namespace Loadwick {

/// The greatest resident memory of this process between its making and a question, less what was
/// resident at its making. Linux only; sanitizers hold freed memory back and spoil the figure.
class PeakMemory
{
public:
    PeakMemory();

    [[nodiscard]] std::size_t growthInBytes() const;

private:
    std::size_t m_atStart;
};

} // namespace Loadwick
