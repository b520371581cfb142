#pragma once

#include <optional>

#include "desktop/NoticeBoard.h"

namespace Loadwick {

/// A board that a test can read.
class FakeNoticeBoard final : public NoticeBoard
{
    Q_OBJECT

public:
    std::optional<Notice> shown; ///< absent once it is withdrawn
    int showCount = 0;

    void show(const Notice &notice) override
    {
        shown = notice;
        ++showCount;
    }
    void withdraw() override { shown.reset(); }
};

} // namespace Loadwick
