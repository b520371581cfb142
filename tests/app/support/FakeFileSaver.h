#pragma once

#include <optional>

#include "dialogs/FileSaver.h"

namespace Loadwick {

/// Answers at once with the target that a test has set, or when the test calls `chosen`, or never.
class FakeFileSaver final : public FileSaver
{
public:
    /// Absent: the user has not answered yet, or cancels.
    std::optional<Target> answer;
    std::optional<Request> asked;
    Chosen chosen; ///< of the last question

    void open(const Request &request, Chosen whenChosen) override
    {
        asked = request;
        chosen = std::move(whenChosen);
        if (answer)
            chosen(*answer);
    }
};

} // namespace Loadwick
