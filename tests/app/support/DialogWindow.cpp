#include "support/DialogWindow.h"

#include <QAccessible>
#include <QTest>

#include "support/VisualItems.h"
#include "theme/ApplicationStyle.h"

namespace Loadwick {
namespace {

QPoint middleOf(const QQuickItem *item)
{
    return item == nullptr ? QPoint()
                           : item->mapRectToScene(item->boundingRect()).center().toPoint();
}

} // namespace

DialogWindow::DialogWindow()
{
    ApplicationStyle::addModulePath(m_engine);
    m_window.resize(800, 600);
    m_window.show();
    m_window.requestActivate();
    if (!QTest::qWaitForWindowActive(&m_window))
        qFatal("the window takes no keys");
}

QUrl DialogWindow::folderUrl() const
{
    return QUrl::fromLocalFile(QString::fromStdString(m_folder.path().string()));
}

void DialogWindow::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&m_window, key, modifiers);
}

void DialogWindow::type(const QByteArray &text)
{
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    for (const char letter : text)
        QTest::keyClick(&m_window, letter);
    QCOMPARE(m_window.activeFocusItem()->property("text").toString(), QString::fromUtf8(text));
}

QQuickItem *DialogWindow::find(const char *property, const QString &text) const
{
    for (QQuickItem *item : shownItems(*m_window.contentItem()))
        if (item->inherits("QQuickControl") || item->inherits("QQuickTextField"))
            if (item->property(property).toString() == text)
                return item;
    return nullptr;
}

QQuickItem *DialogWindow::findNamed(const QString &name) const
{
    for (QQuickItem *item : shownItems(*m_window.contentItem())) {
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(item);
        if (accessible != nullptr && accessible->text(QAccessible::Name) == name)
            return item;
    }
    return nullptr;
}

void DialogWindow::click(const QQuickItem *item)
{
    QVERIFY(item != nullptr);
    (void)m_window.grabWindow(); // a list places its lines when it is drawn
    QTest::mouseClick(&m_window, Qt::LeftButton, {}, middleOf(item));
}

void DialogWindow::doubleClick(const QQuickItem *item)
{
    QVERIFY(item != nullptr);
    (void)m_window.grabWindow(); // a list places its lines when it is drawn
    QTest::mouseDClick(&m_window, Qt::LeftButton, {}, middleOf(item));
}

QString DialogWindow::focusedName() const
{
    const QQuickItem *item = m_window.activeFocusItem();
    return item == nullptr ? QString() : item->objectName();
}

} // namespace Loadwick
