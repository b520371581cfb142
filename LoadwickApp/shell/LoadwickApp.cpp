#include "shell/LoadwickApp.h"

#include <cstdio>
#include <cstdlib>
#include <future>
#include <optional>
#include <utility>

#include <QApplication>
#include <QByteArray>
#include <QString>
#include <QStringList>

#include "desktop/SingleInstance.h"
#include "desktop/WindowActivation.h"
#include "shell/ApplicationSetup.h"
#include "shell/ProgramEnd.h"
#include "theme/ApplicationStyle.h"

namespace Loadwick::LoadwickApp {
namespace {

QtMessageHandler previousHandler = nullptr;

QByteArray displayFailureReason()
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

void reportDisplayFailure(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type != QtFatalMsg) {
        previousHandler(type, context, message);
        return;
    }
    const QByteArray words = "Loadwick cannot open its window: " + displayFailureReason() +
                             setting("DISPLAY") + setting("WAYLAND_DISPLAY") +
                             setting("QT_QPA_PLATFORM") + "\n";
    std::fputs(words.constData(), stderr);
    std::_Exit(EXIT_FAILURE);
}

/// While it exists, a display that does not answer, or a platform unknown to Qt, ends the program
/// with status 1 and one line on standard error. Qt itself would abort, and say that the
/// installation is broken.
class DisplayFailure final
{
public:
    DisplayFailure() { previousHandler = qInstallMessageHandler(&reportDisplayFailure); }
    ~DisplayFailure() { qInstallMessageHandler(previousHandler); }
    DisplayFailure(const DisplayFailure &) = delete;
    DisplayFailure &operator=(const DisplayFailure &) = delete;
};

int runWindow(int argc, char **argv, const MakeCollaborators &make,
              const std::shared_ptr<Shutdown> &shutdown)
{
    const QByteArray launchToken = SingleInstance::launchToken();
    std::optional<DisplayFailure> displayFailure(std::in_place);
    QApplication application(argc, argv);
    displayFailure.reset();
    const std::future<QStringList> fonts = ApplicationStyle::readFonts();
    ApplicationSetup::apply();
    LoadwickWindow::Collaborators collaborators = make(shutdown);
    const SingleInstance instance(collaborators.dataFolder, launchToken);
    if (instance.isAnswered()) {
        std::puts("Loadwick is open already: its window was asked to come to the front.");
        std::fflush(stdout); // the exit does not flush
        return 0;
    }
    LoadwickWindow loadwick(std::move(collaborators));
    QObject::connect(&instance, &SingleInstance::windowWanted, &loadwick.window(),
                     [&window = loadwick.window()](const QByteArray &token) {
                         WindowActivation::bringToFront(window, token);
                     });
    loadwick.show();
    const int status = QApplication::exec();
    // The clean-up after this line (a copied summary goes to the desktop's clipboard) may hang.
    ProgramEnd::begin(shutdown, status);
    loadwick.model().finishHistory(); // for as long as the end may take
    return status;
}

} // namespace

void run(int argc, char **argv, const MakeCollaborators &make)
{
    const auto shutdown = std::make_shared<Shutdown>(std::make_unique<DeathWatch>());
    ProgramEnd::followSignals(shutdown);
    ApplicationSetup::prepare();
    const int status = runWindow(argc, argv, make, shutdown);
    ProgramEnd::leave(*shutdown, status);
}

} // namespace Loadwick::LoadwickApp
