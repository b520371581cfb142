#pragma once

#include <filesystem>
#include <functional>
#include <memory>

#include <QString>
#include <QStringList>

class QUrl;
class QWindow;

namespace Loadwick {

/// Lets the user say where to save a file. Belongs to the interface thread.
class FileSaver
{
public:
    struct Request
    {
        QString title;
        QString name;        ///< suggested, with its ending
        QStringList filters; ///< kinds of file, as "Words (*.ending)"; the first is the usual one
    };
    struct Target
    {
        std::filesystem::path file;
        bool mayReplace; ///< the user has agreed to replace a file that exists
    };
    using Chosen = std::function<void(const Target &target)>;

    virtual ~FileSaver() = default;

    /// The window to be modal to; set it before the first question. It outlives this object's use.
    virtual void attach(QWindow &) {}

    /// Asks the user and returns at once. `chosen` is called later on the interface thread; never
    /// when the user cancels. Does nothing while an earlier question is open.
    virtual void open(const Request &request, Chosen chosen) = 0;
};

/// Asks with a FileDialog. It first shows `startFolder`, later the folder it showed last.
[[nodiscard]] std::unique_ptr<FileSaver> platformFileSaver(const QUrl &startFolder);

} // namespace Loadwick
