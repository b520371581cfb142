#include "dialogs/DialogLook.h"

#include <memory>

#include <QApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QTest>
#include <QWidget>

#include "support/TestRegistry.h"
#include "theme/Appearance.h"
#include "theme/ApplicationStyle.h"

namespace Loadwick {

/// A widget without a size, over a window in the colours of AppTheme.
class DialogLookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void isLightOrDarkWithTheWindow();
    void usesTheWindowsFontSize();
    void leavesTheDesktopsPaletteAlone();
    void isANoOpWithoutAnEngine();

private:
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    std::unique_ptr<QWidget> m_dialog;
    Appearance *m_appearance = nullptr; ///< the engine's
};

void DialogLookTest::init()
{
    m_engine = std::make_unique<QQmlEngine>();
    ApplicationStyle::addModulePath(*m_engine);
    QQmlComponent window(m_engine.get());
    window.setData("import QtQuick\nWindow {}", {});
    m_window.reset(qobject_cast<QQuickWindow *>(window.create()));
    m_dialog = std::make_unique<QWidget>();
    m_dialog->show();
    DialogLook::follow(*m_window, *m_dialog);
    const int type = qmlTypeId("Loadwick", 1, 0, "Appearance");
    m_appearance = m_engine->singletonInstance<Appearance *>(type);
    m_appearance->setScheme(Appearance::Light);
}

void DialogLookTest::cleanup()
{
    m_dialog.reset();
    m_window.reset();
    m_engine.reset();
}

void DialogLookTest::isLightOrDarkWithTheWindow()
{
    QVERIFY(m_dialog->palette().window().color().lightness() > 200);
    QVERIFY(m_dialog->palette().text().color().lightness() < 50);
    m_appearance->setScheme(Appearance::Dark);
    QVERIFY(m_dialog->palette().window().color().lightness() < 50);
    QVERIFY(m_dialog->palette().text().color().lightness() > 200);
}

void DialogLookTest::usesTheWindowsFontSize()
{
    QCOMPARE(m_dialog->font().pixelSize(), 13);
    m_appearance->setTextScale(1.5);
    QCOMPARE(m_dialog->font().pixelSize(), 20);
}

void DialogLookTest::leavesTheDesktopsPaletteAlone()
{
    const QPalette desktop = QGuiApplication::palette();
    m_appearance->setScheme(Appearance::Dark);
    QCOMPARE(QGuiApplication::palette(), desktop);
}

void DialogLookTest::isANoOpWithoutAnEngine()
{
    const QPalette before = m_dialog->palette();
    QQuickWindow bare;
    DialogLook::follow(bare, *m_dialog);
    QCOMPARE(m_dialog->palette(), before);
}

const RegisteredTest<DialogLookTest> registered("DialogLook");

} // namespace Loadwick

#include "DialogLookTest.moc"
