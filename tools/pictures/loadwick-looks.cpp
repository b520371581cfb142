// Takes a picture of each page in every look: light and dark, with standard and with more contrast,
// in the usual and in the largest text, from left to right and from right to left. The scale is
// that of QT_SCALE_FACTOR. Usage: loadwick-looks FOLDER
#include <array>
#include <filesystem>
#include <iostream>
#include <string>

#include <QGuiApplication>

#include "demo/window/EventWait.h"
#include "demo/window/WindowAppearance.h"
#include "pictures/Stage.h"
#include "pictures/WalkThrough.h"
#include "samples/SampleHistories.h"
#include "samples/SampleScans.h"
#include "shell/ApplicationSetup.h"
#include "text/Fatal.h"
#include "theme/DesktopWishes.h"

namespace {

using namespace Loadwick;

struct Look
{
    const char *name;
    Appearance::Scheme scheme;
    Appearance::Contrast contrast;
    double textScale = 1;
};

constexpr QSize size(960, 640);
constexpr std::array<Look, 5> looks{
    {{"1-light", Appearance::Light, Appearance::Standard},
     {"2-light-contrast", Appearance::Light, Appearance::More},
     {"3-dark", Appearance::Dark, Appearance::Standard},
     {"4-dark-contrast", Appearance::Dark, Appearance::More},
     {"5-large", Appearance::Light, Appearance::Standard, DesktopWishes::largestTextScale}}};

std::vector<Scene> scenes()
{
    const auto history = SampleHistories::ofSize(31, 5, 8);
    const auto report = SampleScans::heavy().report();
    return {{.page = AppPage::overview, .subject = "scan", .report = report},
            {.page = AppPage::trends, .subject = "history", .history = history},
            {.page = AppPage::compare, .subject = "history", .history = history}};
}

void save(QQuickWindow &window, const std::filesystem::path &name)
{
    const std::string path = name.string() + ".png";
    if (!window.grabWindow().save(QString::fromStdString(path)))
        fatalError("a picture could not be written: " + path);
    std::cout << path << '\n';
}

/// "<folder>/<page>-<direction>-<scale>-<look>.png" of the window as it shows now.
void takeLooks(QQuickWindow &window, const std::filesystem::path &folder, const std::string &page)
{
    const bool mirrored = QGuiApplication::layoutDirection() == Qt::RightToLeft;
    const int percent = static_cast<int>(window.devicePixelRatio() * 100);
    appearanceOf(window).setMotion(Appearance::Reduced);
    window.resize(size);
    for (const Look &look : looks) {
        appearanceOf(window).setScheme(look.scheme);
        appearanceOf(window).setContrast(look.contrast);
        appearanceOf(window).setTextScale(look.textScale);
        settle();
        save(window, folder / (page + (mirrored ? "-rtl-" : "-ltr-") + std::to_string(percent) +
                               "-" + look.name));
    }
}

void takeAll(const std::filesystem::path &folder)
{
    Stage stage;
    appearanceOf(stage.window()).setMotion(Appearance::Reduced);
    for (int pause = 0; pause < 4; ++pause)
        settle(); // the first page was already on its way
    for (const Scene &scene : scenes()) {
        stage.show(scene);
        takeLooks(stage.window(), folder, std::string(scene.page.rawValue()));
    }
    WalkThrough walkThrough;
    takeLooks(walkThrough.window(), folder, WalkThrough::name);
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    ApplicationSetup::prepare();
    QGuiApplication application(argc, argv);
    ApplicationSetup::apply(application);
    if (argc != 2) {
        std::cerr << "Name the folder to write the pictures into.\n";
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    std::filesystem::create_directories(folder);
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QGuiApplication::setLayoutDirection(direction);
        takeAll(folder);
    }
    return 0;
}
