#include "support/BreakdownWindow.h"

#include <functional>

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include "theme/ApplicationStyle.h"

namespace Loadwick {
namespace {

constexpr char page[] = R"(
import QtQuick
import QtQuick.Templates
import Loadwick

ApplicationWindow {
    id: window

    required property BreakdownPresenter breakdown
    required property int motion

    height: 600
    visible: true

    Binding { target: Appearance; property: "motion"; value: window.motion }
    Flickable {
        id: page

        objectName: "page"
        anchors.fill: parent
        contentHeight: card.height

        BreakdownSection {
            id: card

            objectName: "card"
            width: page.width
            height: implicitHeight
            breakdown: window.breakdown
            viewport: page
        }
    }
}
)";

using Visit = std::function<void(QQuickItem &)>;

void visitShown(QQuickItem &item, const Visit &visit)
{
    if (!item.isVisible())
        return;
    visit(item);
    for (QQuickItem *child : item.childItems())
        visitShown(*child, visit);
}

} // namespace

BreakdownWindow::BreakdownWindow(const ScanReport &report, int width, Appearance::Motion motion)
    : m_breakdown(std::make_unique<BreakdownPresenter>(TextLocale())),
      m_engine(std::make_unique<QQmlEngine>())
{
    ApplicationStyle::addModulePath(*m_engine);
    m_breakdown->show(report);
    QQmlComponent component(m_engine.get());
    component.setData(page, QUrl());
    m_window.reset(qobject_cast<QQuickWindow *>(component.createWithInitialProperties(
        {{QStringLiteral("breakdown"), QVariant::fromValue(m_breakdown.get())},
         {QStringLiteral("motion"), int(motion)},
         {QStringLiteral("width"), width}})));
    if (!m_window)
        qFatal("%s", qPrintable(component.errorString()));
    m_window->requestActivate();
    if (!QTest::qWaitForWindowActive(m_window.get()))
        qFatal("The window does not become active.");
    pointAt({1, 1});
    settle();
}

BreakdownWindow::~BreakdownWindow() = default;

void BreakdownWindow::settle()
{
    (void)m_window->grabWindow();
}

void BreakdownWindow::press(Qt::Key key)
{
    QTest::keyClick(m_window.get(), key);
}

void BreakdownWindow::pointAt(const QPointF &scenePoint)
{
    QTest::mouseMove(m_window.get(), scenePoint.toPoint());
}

QList<QQuickItem *> BreakdownWindow::items(const QString &name) const
{
    QList<QQuickItem *> found;
    visitShown(*m_window->contentItem(), [&](QQuickItem &item) {
        if (item.objectName() == name)
            found.append(&item);
    });
    return found;
}

QQuickItem &BreakdownWindow::item(const QString &name) const
{
    const QList<QQuickItem *> found = items(name);
    if (found.isEmpty())
        qFatal("Nothing is shown that is called \"%s\".", qPrintable(name));
    return *found.first();
}

QList<QQuickItem *> BreakdownWindow::labels() const
{
    QList<QQuickItem *> found;
    visitShown(*m_window->contentItem(), [&](QQuickItem &item) {
        if (item.inherits("QQuickText") && !item.property("text").toString().isEmpty())
            found.append(&item);
    });
    return found;
}

QStringList BreakdownWindow::texts() const
{
    QStringList texts;
    for (const QQuickItem *label : labels())
        texts.append(label->property("text").toString());
    return texts;
}

} // namespace Loadwick
