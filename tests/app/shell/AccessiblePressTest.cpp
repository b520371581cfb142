#include "shell/AccessiblePress.h"

#include <memory>

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {

class AccessiblePressTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pressIsAClick()
    {
        const auto button = make("Button { property int clicks: 0; onClicked: clicks++ }");
        press(*button);
        QCOMPARE(button->property("clicks").toInt(), 1);
    }

    void aDisabledButtonIsNotPressed()
    {
        const auto button =
            make("Button { enabled: false; property int clicks: 0; onClicked: clicks++ }");
        press(*button);
        QCOMPARE(button->property("clicks").toInt(), 0);
    }

    void aDisabledButtonIsReportedAsDisabled()
    {
        const auto button = make("Button { enabled: false }");
        QVERIFY(accessible(*button)->state().disabled);
        QVERIFY(!accessible(*button)->state().focusable);
        button->setProperty("enabled", true);
        QVERIFY(!accessible(*button)->state().disabled);
    }

    void pressTriggersTheAction()
    {
        const auto button =
            make("Button { property int count: 0; action: Action { onTriggered: count++ } }");
        press(*button);
        QCOMPARE(button->property("count").toInt(), 1);
    }

    void pressTogglesACheckBox()
    {
        const auto box = make("CheckBox { property int clicks: 0; onClicked: clicks++ }");
        press(*box);
        QVERIFY(box->property("checked").toBool());
        QCOMPARE(box->property("clicks").toInt(), 1);
    }

    void pressKeepsTheChosenOneOfAGroup()
    {
        const auto button = make("RadioButton { checked: true }");
        press(*button);
        QVERIFY(button->property("checked").toBool());
    }

    void offersPressOnce()
    {
        for (const char *type : {"Button {}", "ItemDelegate {}", "TabButton {}", "CheckBox {}"}) {
            const auto button = make(type);
            const QStringList names = accessible(*button)->actionInterface()->actionNames();
            QCOMPARE(names.count(QAccessibleActionInterface::pressAction()), 1);
        }
    }

private:
    std::unique_ptr<QObject> make(const QByteArray &qml)
    {
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick.Templates\n" + qml, QUrl());
        std::unique_ptr<QObject> made(component.create());
        if (!made)
            qFatal("%s", qPrintable(component.errorString()));
        return made;
    }

    static QAccessibleInterface *accessible(QObject &object)
    {
        return QAccessible::queryAccessibleInterface(&object);
    }

    static void press(QObject &object)
    {
        accessible(object)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }

    QQmlEngine m_engine;
};

const RegisteredTest<AccessiblePressTest> registered("AccessiblePress");

} // namespace Loadwick

#include "AccessiblePressTest.moc"
