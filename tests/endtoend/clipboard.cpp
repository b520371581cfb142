// Prints the text on the display's clipboard, as another program would paste it. Exits with 1 when
// there is none.
#include <QClipboard>
#include <QGuiApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    const QByteArray text = QGuiApplication::clipboard()->text().toUtf8();
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
    return text.isEmpty() ? 1 : 0;
}
