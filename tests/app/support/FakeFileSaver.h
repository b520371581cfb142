#pragma once

#include <optional>

#include "dialogs/FileSaver.h"

namespace Loadwick {

/// Answers at once with the target that a test has set, or never.
class FakeFileSaver final : public FileSaver
{
public:
    /// Absent: the user cancels.
    std::optional<Target> answer;
    std::optional<Request> asked;

    void open(const Request &request, Chosen chosen) override
    {
        asked = request;
        if (answer)
            chosen(*answer);
    }
};

} // namespace Loadwick
