#pragma once

#include <system_error>

#include <QCoreApplication>
#include <QString>

namespace Loadwick {

/// Why a file was not saved, in plain words.
struct SavingFailure
{
    /// The end of a sentence, with its full stop, and what to do where there is something to do.
    /// `std::errc::file_exists` stands for a file that was left alone. What has no words of ours
    /// has the system's.
    [[nodiscard]] static QString reason(const std::error_code &failure);

    Q_DECLARE_TR_FUNCTIONS(SavingFailure)
};

} // namespace Loadwick
