// What can be done with an instruction file, on the page of the real window.
#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QQuickItem>
#include <QTest>

#include "support/TestRegistry.h"
#include "support/VisualItems.h"
#include "support/WindowFixture.h"

namespace Loadwick {
namespace {

const auto showMenu = QAccessibleActionInterface::showMenuAction();
QRectF sceneRect(const QQuickItem &item)
{
    return item.mapRectToScene(item.boundingRect());
}

/// The words of a label that begin at its left edge.
QRectF wordsRect(const QQuickItem &label)
{
    return label.mapRectToScene(QRectF(QPointF(), QSizeF(label.implicitWidth(), label.height())));
}

const auto inRepository = QStringLiteral("Copy Path in Repository");

} // namespace

class FileActionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_shown = std::make_unique<WindowFixture>();
        m_shown->appearance().setMotion(Appearance::Reduced);
        m_shown->loadwick().window().resize(960, 640);
        const std::filesystem::path repository = m_shown->folder().path() / "webshop";
        const std::string inside = m_shown->folder().write("webshop/docs/style.md", "").string();
        const std::string outside = m_shown->folder().write("notes/CLAUDE.md", "").string();
        m_inside = QString::fromStdString(inside);
        m_outside = QString::fromStdString(outside);
        m_shown->scanner().answer = [inside, outside] {
            InstructionFileSet files;
            files.repositoryFiles = {InstructionFileEstimate::fromPath(inside, 4'000)};
            files.inheritedFiles = {InstructionFileEstimate::fromPath(outside, 400)};
            return files;
        };
        m_shown->scan(repository);
        QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
    }

    void cleanup() { m_shown.reset(); }

    void enterOpensTheFile_data()
    {
        QTest::addColumn<int>("place");
        QTest::newRow("list") << 0;
        QTest::newRow("largest") << 2;
        QTest::newRow("map") << -1;
    }

    void enterOpensTheFile()
    {
        QFETCH(const int, place);
        goTo(place);
        m_shown->press(Qt::Key_Return);
        m_shown->finishScan(); // runs what is asked in the background
        QCOMPARE(m_shown->desktop().opened, QList<QUrl>{QUrl::fromLocalFile(m_inside)});
        m_shown->press(Qt::Key_Enter);
        m_shown->finishScan();
        QCOMPARE(m_shown->desktop().opened.size(), 2);
    }

    void aDoubleClickOpensTheFile_data() { enterOpensTheFile_data(); }

    void aDoubleClickOpensTheFile()
    {
        QFETCH(const int, place);
        const QPoint point = pointOf(place);
        QTest::mouseClick(&m_shown->loadwick().window(), Qt::LeftButton, {}, point);
        m_shown->finishScan();
        QCOMPARE(m_shown->desktop().opened.size(), 0);
        QTest::mouseDClick(&m_shown->loadwick().window(), Qt::LeftButton, {}, point);
        m_shown->finishScan();
        QCOMPARE(m_shown->desktop().opened, QList<QUrl>{QUrl::fromLocalFile(m_inside)});
    }

    void keysAndTheRightButtonOpenTheMenu_data()
    {
        QTest::addColumn<int>("place");
        QTest::addColumn<QString>("by");
        const auto row = [](const char *by, int place) {
            QTest::addRow("%s at %d", by, place) << place << QString::fromLatin1(by);
        };
        for (const char *by : {"menu", "shift F10", "right button", "long press"})
            row(by, 0);
        row("menu", 2);
        row("menu", -1);
        row("right button", -1);
    }

    void keysAndTheRightButtonOpenTheMenu()
    {
        QFETCH(const int, place);
        QFETCH(const QString, by);
        openMenu(place, by);
        for (const char *title : {"Open", "Show in Folder", "Copy Path", "Copy Path in Repository"})
            QVERIFY2(m_shown->isPressable(QString::fromLatin1(title)), title);
        m_shown->pressButton(QStringLiteral("Open"));
        m_shown->finishScan();
        QCOMPARE(m_shown->desktop().opened, QList<QUrl>{QUrl::fromLocalFile(m_inside)});
    }

    void assistiveTechnologyOpensTheFileAndTheMenu_data() { enterOpensTheFile_data(); }

    void assistiveTechnologyOpensTheFileAndTheMenu()
    {
        QFETCH(const int, place);
        goTo(place);
        QAccessibleInterface *spoken =
            QAccessible::queryAccessibleInterface(m_shown->loadwick().window().activeFocusItem());
        QAccessibleActionInterface *actions = spoken->actionInterface();
        actions->doAction(QAccessibleActionInterface::pressAction());
        m_shown->finishScan();
        QCOMPARE(m_shown->desktop().opened, QList<QUrl>{QUrl::fromLocalFile(m_inside)});
        QVERIFY(actions->actionNames().contains(showMenu));
        actions->doAction(showMenu);
        m_shown->pressButton(QStringLiteral("Show in Folder"));
        m_shown->finishScan();
        QCOMPARE(m_shown->desktop().opened.last(),
                 QUrl::fromLocalFile(m_inside.left(m_inside.lastIndexOf(u'/'))));
    }

    void copiesThePaths()
    {
        openMenu(0, QStringLiteral("menu"));
        m_shown->pressButton(QStringLiteral("Copy Path"));
        QCOMPARE(QGuiApplication::clipboard()->text(), m_inside);
        QVERIFY(m_shown->shows(QStringLiteral("Copied")));
        openMenu(0, QStringLiteral("menu"));
        m_shown->pressButton(inRepository);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("docs/style.md"));
    }

    void aFileOutsideTheRepositoryHasNoPathInIt()
    {
        openMenu(1, QStringLiteral("menu"));
        QVERIFY(m_shown->isPressable(QStringLiteral("Copy Path")));
        QVERIFY(!m_shown->isPressable(inRepository));
        m_shown->pressButton(inRepository);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("kept"));
    }

    void saysNearTheFileWhyItDoesNotOpen()
    {
        const auto gone = QStringLiteral("This file is gone.");
        std::filesystem::remove(m_inside.toStdString());
        goTo(0);
        m_shown->press(Qt::Key_Return);
        QVERIFY(!m_shown->shows(gone));
        m_shown->finishScan();
        QVERIFY(m_shown->shows(gone));
        QCOMPARE(lastAnnouncement(), gone);
        const auto notes =
            visibleItems(m_shown->loadwick().window().contentItem(), QStringLiteral("fileNote"));
        QCOMPARE(notes.size(), 1);
        QQuickItem &row = rowOf(0);
        const QRectF note = sceneRect(*notes[0]->parentItem());
        QVERIFY(sceneRect(row).contains(note));
        QVERIFY(!wordsRect(*visibleItems(&row, QStringLiteral("size")).at(0)).intersects(note));
        QVERIFY(!sceneRect(*visibleItems(&row, QStringLiteral("share")).at(0)).intersects(note));
        QCOMPARE(m_shown->desktop().opened.size(), 0);
    }

private:
    /// A list by its number on the page, or -1 for the map.
    [[nodiscard]] QQuickItem &placeOf(int place) const
    {
        QQuickItem *page = m_shown->loadwick().window().contentItem();
        const QString name = place < 0 ? QStringLiteral("map") : QStringLiteral("list");
        const QList<QQuickItem *> found = visibleItems(page, name);
        const qsizetype index = std::max(0, place);
        if (found.size() <= index)
            qFatal("The page lacks a %s.", qPrintable(name));
        return *found[index];
    }

    [[nodiscard]] QString lastAnnouncement() const
    {
        const QQuickWindow &window = m_shown->loadwick().window();
        const auto *all = window.findChild<QQuickItem *>(QStringLiteral("announcements"));
        return all->childItems().constLast()->property("words").toString();
    }

    /// Has the keys reach its first file, which is then in view.
    void goTo(int place)
    {
        QQuickItem &item = placeOf(place);
        scrollTo(item);
        item.forceActiveFocus(Qt::TabFocusReason);
        if (place < 0)
            m_shown->press(Qt::Key_Home);
    }

    void scrollTo(const QQuickItem &item) const
    {
        (void)m_shown->loadwick().window().grabWindow(); // lays the page out
        QQuickItem *view = item.parentItem();
        while (!view->inherits("QQuickFlickable"))
            view = view->parentItem();
        const double y = item.mapToItem(view->parentItem(), QPointF()).y() - 100;
        view->setProperty("contentY", view->property("contentY").toDouble() + y);
        (void)m_shown->loadwick().window().grabWindow();
    }

    /// The first row of that list.
    [[nodiscard]] QQuickItem &rowOf(int place)
    {
        goTo(place);
        return *m_shown->loadwick().window().activeFocusItem();
    }

    [[nodiscard]] QPoint pointOf(int place)
    {
        QQuickItem &item = placeOf(place);
        scrollTo(item);
        return item.mapToScene(QPointF(60, 18)).toPoint();
    }

    void openMenu(int place, const QString &by)
    {
        QQuickWindow &window = m_shown->loadwick().window();
        if (by == QLatin1String("right button"))
            return QTest::mouseClick(&window, Qt::RightButton, {}, pointOf(place));
        if (by == QLatin1String("long press"))
            return pressForLong(pointOf(place));
        goTo(place);
        if (by == QLatin1String("menu"))
            m_shown->press(Qt::Key_Menu);
        else
            m_shown->press(Qt::Key_F10, Qt::ShiftModifier);
    }

    void pressForLong(const QPoint &point)
    {
        static QPointingDevice *finger = QTest::createTouchDevice();
        QQuickWindow &window = m_shown->loadwick().window();
        QTest::touchEvent(&window, finger).press(0, point, &window);
        QTRY_VERIFY(m_shown->shows(QStringLiteral("Open")));
        QTest::touchEvent(&window, finger).release(0, point, &window);
    }

    std::unique_ptr<WindowFixture> m_shown;
    QString m_inside;
    QString m_outside;
};

const RegisteredTest<FileActionsTest> registered("FileActions");

} // namespace Loadwick

#include "FileActionsTest.moc"
