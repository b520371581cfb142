#include "support/LayoutAudit.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {

/// Each test plants one fault, or something that only looks like one, in a window of its own.
class LayoutAuditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void acceptsATextThatFits()
    {
        show("Text { text: 'Tokens' }\n"
             "Text { y: 40; width: 80; text: 'Tokens of the whole session'; wrapMode: Text.Wrap }\n"
             "Button { y: 120; text: 'Scan'; Accessible.name: text }");
        QCOMPARE(LayoutAudit::faults(*m_window).join(u'\n'), QString());
    }

    void findsAFault_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("fault");
        const auto row = [](const char *name, const char *content, const char *fault) {
            QTest::newRow(name) << QByteArray(content) << QString::fromLatin1(fault);
        };
        row("too wide", "Text { width: 20; text: 'Tokens' }", "is larger than its item");
        row("too high", "Text { height: 5; text: 'Tokens' }", "is larger than its item");
        row("cut short", "Text { width: 20; text: 'Tokens'; elide: Text.ElideRight }",
            "is cut short without a tool tip");
        row("over the edge", "Text { x: 280; text: 'Tokens' }", "is cut off at a side");
        row("beside the window", "Text { x: 301; text: 'Tokens' }", "is beside the window");
        row("under a clipping edge",
            "Item { width: 20; height: 50; clip: true; Text { text: 'Tokens' } }",
            "is cut off at a side");
        row("over each other", "Text { text: 'Tokens' }\nText { x: 10; text: 'Share' }",
            "overlaps");
        row("at the other end",
            "Text { width: 200; text: 'Tokens'; horizontalAlignment: Text.AlignRight }\n"
            "Text { x: 180; text: 'Share' }",
            "overlaps");
    }

    void findsAFault()
    {
        QFETCH(const QByteArray, content);
        QFETCH(const QString, fault);
        show(content);
        const QStringList faults = LayoutAudit::faults(*m_window);
        QVERIFY2(faults.join(u' ').contains(fault), qPrintable(faults.join(u'\n')));
        QVERIFY(faults.join(u' ').contains(QStringLiteral("Tokens")));
    }

    void acceptsAnElidedTextWithAToolTip()
    {
        show("Text { width: 20; text: 'Tokens'; elide: Text.ElideRight\n"
             "ToolTip { contentItem: Item { } } }");
        QCOMPARE(LayoutAudit::faults(*m_window).join(u'\n'), QString());
    }

    void acceptsItemsThatAreScrolledAway()
    {
        show("Flickable { width: 300; height: 50; clip: true; contentHeight: 400\n"
             "Text { y: 45; text: 'Tokens' } Text { y: 300; text: 'Share' } }");
        QCOMPARE(LayoutAudit::faults(*m_window).join(u'\n'), QString());
    }

    void findsMisplacedItems_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("fault");
        QTest::newRow("within") << QByteArray("Row { Text { text: 'Tokens' } Text { text: '1' } }")
                                << QString();
        QTest::newRow("too wide") << QByteArray(
                                         "Row { width: 20; Text { width: 40; text: 'Tokens' } }")
                                  << QStringLiteral("extends beyond");
        QTest::newRow("a layout that is too wide")
            << QByteArray("Item { width: 20; height: 40; Row { width: 40; height: 40 } }")
            << QStringLiteral("extends beyond");
        QTest::newRow("over each other")
            << QByteArray("Row { spacing: -20; Text { text: 'Tokens' } Text { text: 'Share' } }")
            << QStringLiteral("is over its neighbour");
    }

    void findsMisplacedItems()
    {
        QFETCH(const QByteArray, content);
        QFETCH(const QString, fault);
        show(content);
        const QString found = LayoutAudit::misplacedItems(*m_window).join(u'\n');
        QVERIFY2(found.contains(fault) && found.isEmpty() == fault.isEmpty(), qPrintable(found));
    }

    void findsAControlWithoutAName()
    {
        show("Button { }");
        QVERIFY(LayoutAudit::unnamedControls(*m_window).join(u' ').contains(
            QStringLiteral("has the keyboard and no name")));
    }

    void findsASpokenItemWithoutAName()
    {
        show("Item { width: 20; height: 20; Accessible.role: Accessible.Graphic }");
        QVERIFY(LayoutAudit::unnamedControls(*m_window).join(u' ').contains(
            QStringLiteral("has no name")));
    }

private:
    void show(const QByteArray &content)
    {
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick\nimport QtQuick.Templates\n"
                          "ApplicationWindow { width: 300; height: 200; visible: true\n" +
                              content + "\n}",
                          QUrl());
        m_window.reset(qobject_cast<QQuickWindow *>(component.create()));
        QVERIFY2(m_window, qPrintable(component.errorString()));
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QVERIFY(!m_window->grabWindow().isNull());
    }

    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
};

const RegisteredTest<LayoutAuditTest> registered("LayoutAudit");

} // namespace Loadwick

#include "LayoutAuditTest.moc"
