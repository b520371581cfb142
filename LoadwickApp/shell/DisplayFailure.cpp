#include "shell/DisplayFailure.h"

#include <cstdio>
#include <cstdlib>

#include <QByteArray>
#include <QString>
#include <QtGlobal>

namespace Loadwick {
namespace {

QtMessageHandler previousHandler = nullptr;

QByteArray reason()
{
    return qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")
               ? QByteArray("no display answers.")
               : QByteArray("the platform that QT_QPA_PLATFORM names cannot be used.");
}

QByteArray setting(const char *variable)
{
    const QByteArray value = qgetenv(variable);
    return value.isEmpty() ? QByteArray() : QByteArray(" ") + variable + " is \"" + value + "\".";
}

void report(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type != QtFatalMsg) {
        previousHandler(type, context, message);
        return;
    }
    const QByteArray words = "Loadwick cannot open its window: " + reason() + setting("DISPLAY") +
                             setting("WAYLAND_DISPLAY") + setting("QT_QPA_PLATFORM") + "\n";
    std::fputs(words.constData(), stderr);
    std::_Exit(EXIT_FAILURE);
}

} // namespace

DisplayFailure::DisplayFailure()
{
    previousHandler = qInstallMessageHandler(&report);
}

DisplayFailure::~DisplayFailure()
{
    qInstallMessageHandler(previousHandler);
}

} // namespace Loadwick
