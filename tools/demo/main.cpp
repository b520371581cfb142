// Shows the program on a throw-away home with made-up data: in a window where there is a display,
// else as pictures in the folder that is its one argument.
#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "demo/ProcessOfItsOwn.h"
#include "demo/window/Demonstration.h"
#include "samples/Confinement.h"
#include "samples/ThrowAwayHome.h"

namespace {

bool isSet(const char *variable)
{
    const char *value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

} // namespace

int main(int argc, char **argv)
{
    using namespace Loadwick;

    if (argc != 2) {
        std::cerr << "usage: loadwick-demo FOLDER-FOR-PICTURES\n";
        return 2;
    }
    const std::filesystem::path pictures = std::filesystem::absolute(argv[1]);
    const ThrowAwayHome home;
    return runInProcessOfItsOwn([&]() -> int {
        Confinement::pinEnvironment(home.path());
        if (isSet("DISPLAY") || isSet("WAYLAND_DISPLAY"))
            Demonstration::show(argc, argv, home);
        return Demonstration::takePictures(argc, argv, home, pictures);
    });
}
