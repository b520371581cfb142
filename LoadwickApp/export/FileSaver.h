#pragma once

#include <filesystem>
#include <functional>

#include <QString>
#include <QStringList>

namespace Loadwick {

/// Lets the user say where a file is to be saved. Belongs to the interface thread.
class FileSaver
{
public:
    struct Request
    {
        QString title;
        QString name;        ///< what is suggested, with its ending
        QStringList filters; ///< kinds of file, as "Words (*.ending)"; the first is the usual one
    };
    struct Place
    {
        std::filesystem::path file;
        bool mayReplace; ///< the user knows of the file that is there, if there is one
    };
    using Chosen = std::function<void(const Place &place)>;

    virtual ~FileSaver() = default;

    /// Asks the user and returns at once. `chosen` is called later on the interface thread; never
    /// when the user thinks better of it. Asking while the question stands asks nothing.
    virtual void open(const Request &request, Chosen chosen) = 0;
};

} // namespace Loadwick
