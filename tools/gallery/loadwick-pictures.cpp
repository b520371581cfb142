// Writes gallery-light.png and gallery-dark.png into the folder named by the only argument.
#include "GalleryView.h"

#include "theme/ApplicationStyle.h"

#include <QDir>
#include <QGuiApplication>

#include <iostream>

namespace {

bool writePicture(Loadwick::Appearance::Scheme scheme, const QString &file)
{
    Loadwick::GalleryView gallery(scheme);
    const bool written = gallery.picture().save(file);
    (written ? std::cout : std::cerr)
        << (written ? "" : "Could not write ") << qPrintable(file) << '\n';
    return written;
}

} // namespace

int main(int argc, char *argv[])
{
    using namespace Loadwick;

    ApplicationStyle::prepare();
    QGuiApplication application(argc, argv);
    ApplicationStyle::applyFont(application);
    if (argc != 2) {
        std::cerr << "Name the folder to write the pictures into.\n";
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const bool light =
        writePicture(Appearance::Light, folder.filePath(QStringLiteral("gallery-light.png")));
    const bool dark =
        writePicture(Appearance::Dark, folder.filePath(QStringLiteral("gallery-dark.png")));
    return light && dark ? 0 : 1;
}
