#include "shell/ModalGround.h"

#include <QAccessible>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QTest>

#include "base/QmlObject.h"
#include "support/TestRegistry.h"
#include "theme/ApplicationStyle.h"

namespace Loadwick {

class ModalGroundTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        ApplicationStyle::addModulePath(m_engine);
        QQmlComponent component(&m_engine);
        component.setData(R"(
            import QtQuick
            import QtQuick.Templates
            import Loadwick
            ApplicationWindow {
                property alias modal: modal
                property alias tip: tip
                property int clicks: 0
                visible: true
                width: 300
                height: 200
                ModalGround {
                    anchors.fill: parent
                    Accessible.role: Accessible.Pane
                    PushButton { title: "behind"; onClicked: clicks++ }
                }
                Popup { id: modal; modal: true; PushButton { title: "before" } }
                Popup { id: tip; modal: false }
            }
        )",
                          QUrl());
        m_window.reset(qobject_cast<QQuickWindow *>(component.create()));
        QVERIFY2(m_window, qPrintable(component.errorString()));
    }

    void cleanup() { m_window.reset(); }

    void isAccessibleWithItsContent()
    {
        QVERIFY(finds(QStringLiteral("behind")));
        QCOMPARE(ground().parent(), QAccessible::queryAccessibleInterface(m_window.get()));
        QCOMPARE(ground().child(0)->parent(), &ground());
        QCOMPARE(ground().indexOfChild(ground().child(0)), 0);
        QCOMPARE(ground().rect().size(), QSize(300, 200));
    }

    void isEmptyWhileAModalSheetIsOpen()
    {
        call("modal", "open");
        QTRY_VERIFY(finds(QStringLiteral("before")));
        QVERIFY(!finds(QStringLiteral("behind")));
        QCOMPARE(ground().role(), QAccessible::Pane);
        QCOMPARE(ground().childAt(5, 5), nullptr);
        QCOMPARE(ground().focusChild(), nullptr);
        call("modal", "close");
        QTRY_VERIFY(finds(QStringLiteral("behind")));
    }

    void aKnownButtonIsNotPressedWhileCovered()
    {
        QAccessibleInterface *button = ground().child(0);
        call("modal", "open");
        button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(m_window->property("clicks").toInt(), 0);
        call("modal", "close");
        button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(m_window->property("clicks").toInt(), 1);
    }

    void aToolTipCoversNothing()
    {
        call("tip", "open");
        QVERIFY(finds(QStringLiteral("behind")));
    }

private:
    [[nodiscard]] QAccessibleInterface &ground() const
    {
        return *QAccessible::queryAccessibleInterface(m_window.get())->child(0);
    }

    void call(const char *popup, const char *method)
    {
        QVERIFY(QMetaObject::invokeMethod(m_window->property(popup).value<QObject *>(), method));
    }

    [[nodiscard]] bool finds(const QString &name) const
    {
        return findsBelow(QAccessible::queryAccessibleInterface(m_window.get()), name);
    }

    static bool findsBelow(QAccessibleInterface *parent, const QString &name)
    {
        for (int index = 0; index < parent->childCount(); ++index) {
            QAccessibleInterface *child = parent->child(index);
            if (child != nullptr && !child->state().invisible &&
                (child->text(QAccessible::Name) == name || findsBelow(child, name)))
                return true;
        }
        return false;
    }

    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
};

const RegisteredTest<ModalGroundTest> registered("ModalGround");

} // namespace Loadwick

#include "ModalGroundTest.moc"
