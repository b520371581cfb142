#include "FirstFrame.h"

#include <memory>

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QQuickWindow>

int main(int argc, char **argv)
{
    QQuickStyle::setStyle(QStringLiteral("Basic")); // the least of the styles
    QGuiApplication application(argc, argv);
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport QtQuick.Controls\n"
                      "ApplicationWindow { width: 1180; height: 780; visible: true\n"
                      "Label { anchors.centerIn: parent; text: \"Hello\" } }",
                      QUrl());
    const std::unique_ptr<QObject> root(component.create());
    auto *const window = qobject_cast<QQuickWindow *>(root.get());
    if (window == nullptr)
        return 1;
    Loadwick::reportFirstFrame(*window);
    return QGuiApplication::exec();
}
