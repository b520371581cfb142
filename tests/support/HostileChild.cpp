#include "support/HostileChild.h"

#include <utility>

#include <unistd.h>

#include "posix/FileDescriptor.h"
#include "text/Fatal.h"

namespace Loadwick {

std::string hostileChildPath()
{
    return LOADWICK_HOSTILE_CHILD;
}

ProbeRunner::Launch hostileLaunch(std::vector<std::string> verbAndArguments)
{
    ProbeRunner::Launch launch;
    launch.cli = hostileChildPath();
    launch.repository = "/";
    launch.limits.timeoutSeconds = 0.3;
    launch.limits.killGraceSeconds = 0.2;
    launch.limits.readerGraceSeconds = 0.2;
    launch.arguments = std::move(verbAndArguments);
    return launch;
}

ChildProcess startHostileChild(std::vector<std::string> verbAndArguments,
                               std::shared_ptr<Shutdown> shutdown)
{
    Pipe output = Pipe::open();
    const ChildCommand command{hostileChildPath(), std::move(verbAndArguments), {}, std::nullopt};
    const ChildStreams streams{output.writeEnd.number(), FileDescriptor::none};
    ChildProcess child = ChildProcess::start(command, streams, std::move(shutdown));
    output.writeEnd.reset();
    char byte = 0;
    if (read(output.readEnd.number(), &byte, 1) != 1)
        fatalError("a test child printed nothing");
    return child;
}

double longestSeconds(const ProbeRunner::Launch &launch)
{
    return launch.limits.timeoutSeconds + launch.limits.killGraceSeconds +
           launch.limits.readerGraceSeconds + 1.5;
}

} // namespace Loadwick
