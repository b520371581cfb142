#include "dialogs/PlainDialogTabs.h"

#include <algorithm>
#include <memory>

#include <QAccessible>
#include <QTest>

#include "export/DialogFileSaver.h"
#include "support/FolderDialogWindow.h"
#include "support/TestRegistry.h"

namespace Loadwick {

class PlainDialogTabsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theFolderDialogIsGoneRound_data() { directions(); }
    void theFolderDialogIsGoneRound();
    void theHighlightedLineIsWhereTheListHasTheKeyboard_data() { directions(); }
    void theHighlightedLineIsWhereTheListHasTheKeyboard();
    void theSaveDialogIsGoneRound_data() { directions(); }
    void theSaveDialogIsGoneRound();
    void theListLeadsToTheAnswerWhicheverButtonHadTheKeyboardBefore();
    void aPathThatIsTypedLeadsToTheList();
    void thePartOfALongPathThatHasTheKeyboardIsInSight_data() { directions(); }
    void thePartOfALongPathThatHasTheKeyboardIsInSight();
    void aListWithoutAHighlightedLineShowsThatItHasTheKeyboard();
    void anEmptyListSaysSo();

private:
    static void directions();
    void save();
    void step();
    /// What has the keyboard, by its words or the name that assistive technology hears; a list by
    /// "list".
    [[nodiscard]] QString focused() const;
    [[nodiscard]] bool showsFocus() const;
    /// From what has the keyboard until something has it for the second time; a blank after what
    /// does not show it.
    [[nodiscard]] QStringList round();

    std::unique_ptr<FolderDialogWindow> m_window;
    std::unique_ptr<DialogFileSaver> m_saver;
};

void PlainDialogTabsTest::init()
{
    m_window = std::make_unique<FolderDialogWindow>();
    m_saver = std::make_unique<DialogFileSaver>(m_window->folderUrl());
    m_saver->attach(m_window->engine(), m_window->window());
}

void PlainDialogTabsTest::cleanup()
{
    m_saver.reset();
    m_window.reset();
}

void PlainDialogTabsTest::directions()
{
    QTest::addColumn<bool>("isBack");
    QTest::newRow("Tab") << false;
    QTest::newRow("Shift and Tab") << true;
}

void PlainDialogTabsTest::save()
{
    m_saver->open({.title = QStringLiteral("Save the data"),
                   .name = QStringLiteral("figures.csv"),
                   .filters = {QStringLiteral("Comma-separated values (*.csv)")}},
                  [](const FileSaver::Place &) {});
    QTRY_COMPARE(focused(), QStringLiteral("File name"));
    QTRY_VERIFY(m_window->line("repository") != nullptr);
}

void PlainDialogTabsTest::step()
{
    QFETCH(const bool, isBack);
    m_window->press(isBack ? Qt::Key_Backtab : Qt::Key_Tab,
                    isBack ? Qt::ShiftModifier : Qt::NoModifier);
}

QString PlainDialogTabsTest::focused() const
{
    QQuickItem *item = m_window->window().activeFocusItem();
    if (item->objectName().endsWith(QLatin1String("ListView")))
        return QStringLiteral("list");
    const QString words = item->property("text").toString();
    return words.isEmpty() || item->inherits("QQuickTextInput")
               ? QAccessible::queryAccessibleInterface(item)->text(QAccessible::Name)
               : words;
}

bool PlainDialogTabsTest::showsFocus() const
{
    const QQuickItem *item = m_window->window().activeFocusItem();
    if (item->inherits("QQuickTextInput"))
        return item->property("cursorVisible").toBool();
    if (const auto *ring = item->findChild<QQuickItem *>(QStringLiteral("ring")))
        return ring->isVisible();
    return item->property("visualFocus").toBool();
}

QStringList PlainDialogTabsTest::round()
{
    constexpr int longestWay = 20;
    QStringList names;
    while (!names.contains(focused()) && names.size() < longestWay) {
        names += focused() + (showsFocus() ? QString() : QStringLiteral(" "));
        step();
    }
    return names;
}

void PlainDialogTabsTest::theFolderDialogIsGoneRound()
{
    QFETCH(const bool, isBack);
    m_window->open();
    QStringList expected{QStringLiteral("Choose"), QStringLiteral("Cancel"),
                         QStringLiteral("Folder above"), QStringLiteral("/")};
    const auto parts = QString::fromStdString(m_window->root().string()).split(QLatin1Char('/'));
    expected += parts.mid(1);
    if (isBack)
        std::reverse(expected.begin(), expected.end());
    expected.prepend(QStringLiteral("list"));
    QCOMPARE(round(), expected);
    QCOMPARE(focused(), QStringLiteral("list"));
}

void PlainDialogTabsTest::theHighlightedLineIsWhereTheListHasTheKeyboard()
{
    QFETCH(const bool, isBack);
    m_window->open();
    m_window->press(Qt::Key_Down);
    m_window->press(Qt::Key_Down);
    QCOMPARE(focused(), QStringLiteral("repository"));
    step();
    const QString parent = QString::fromStdString(m_window->root().filename().string());
    QCOMPARE(focused(), isBack ? parent : QStringLiteral("Choose"));
    const QStringList names = round();
    QVERIFY(names.contains(QStringLiteral("repository")));
    QVERIFY(!names.contains(QStringLiteral("bare")));
    QCOMPARE(m_window->highlighted(), QStringLiteral("repository"));
}

void PlainDialogTabsTest::theSaveDialogIsGoneRound()
{
    QFETCH(const bool, isBack);
    save();
    QStringList expected{QStringLiteral("Filter"), QStringLiteral("Save"), QStringLiteral("Cancel"),
                         QStringLiteral("Folder above"), QStringLiteral("/")};
    const auto parts = QString::fromStdString(m_window->root().string()).split(QLatin1Char('/'));
    expected += parts.mid(1);
    expected += QStringLiteral("list");
    if (isBack)
        std::reverse(expected.begin(), expected.end());
    expected.prepend(QStringLiteral("File name"));
    QCOMPARE(round(), expected);
    QCOMPARE(focused(), QStringLiteral("File name"));
}

void PlainDialogTabsTest::theListLeadsToTheAnswerWhicheverButtonHadTheKeyboardBefore()
{
    m_window->open();
    m_window->press(Qt::Key_Down);
    m_window->press(Qt::Key_Tab);
    m_window->press(Qt::Key_Tab);
    QCOMPARE(focused(), QStringLiteral("Cancel"));
    m_window->click(m_window->line("bare"));
    m_window->press(Qt::Key_Tab);
    QCOMPARE(focused(), QStringLiteral("Choose"));
}

void PlainDialogTabsTest::aPathThatIsTypedLeadsToTheList()
{
    m_window->open();
    m_window->press(Qt::Key_L, Qt::ControlModifier);
    QCOMPARE(focused(), QStringLiteral("Path"));
    m_window->press(Qt::Key_Tab);
    QCOMPARE(focused(), QStringLiteral("list"));
    QVERIFY(m_window->findNamed(QStringLiteral("Path")) == nullptr);
}

void PlainDialogTabsTest::thePartOfALongPathThatHasTheKeyboardIsInSight()
{
    const std::string name(40, 'n');
    const std::filesystem::path folder = m_window->root() / name / name / name / "end";
    std::filesystem::create_directories(folder);
    m_window->open();
    m_window->enterPath(folder.string());
    QTRY_VERIFY(m_window->findNamed(QStringLiteral("No folders to show")) != nullptr);
    int parts = 0;
    for (int count = 0; count < 12; ++count, step()) {
        const QQuickItem *part = m_window->window().activeFocusItem();
        if (!part->property("folderName").isValid())
            continue;
        ++parts;
        const QQuickItem *path = part->parentItem()->parentItem();
        // The path stands at whole pixels.
        const QRectF sight = path->boundingRect().adjusted(-1, 0, 1, 0);
        QVERIFY2(sight.contains(part->mapRectToItem(path, part->boundingRect())),
                 qPrintable(focused()));
    }
    QCOMPARE(parts, 7);
}

void PlainDialogTabsTest::aListWithoutAHighlightedLineShowsThatItHasTheKeyboard()
{
    m_window->open();
    QVERIFY(showsFocus());
    const auto *list = m_window->window().activeFocusItem();
    const auto *ring = list->findChild<QQuickItem *>(QStringLiteral("ring"));
    m_window->press(Qt::Key_Tab);
    QVERIFY(!ring->isVisible());
}

void PlainDialogTabsTest::anEmptyListSaysSo()
{
    m_window->open();
    QVERIFY(m_window->findNamed(QStringLiteral("No folders to show")) == nullptr);
    m_window->doubleClick(m_window->line("bare"));
    QTRY_VERIFY(m_window->findNamed(QStringLiteral("No folders to show")) != nullptr);
}

const RegisteredTest<PlainDialogTabsTest> registered("PlainDialogTabs");

} // namespace Loadwick

#include "PlainDialogTabsTest.moc"
