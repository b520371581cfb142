// The pages as a screen reader and the clipboard get them, in the real window.
#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

#include "samples/SampleHistories.h"
#include "samples/SampleScans.h"
#include "shell/ContentPresenter.h"
#include "support/TestRegistry.h"
#include "support/VisualItems.h"
#include "support/WindowFixture.h"

namespace Loadwick {
namespace {

constexpr qsizetype listCount = 11; // breakdown, four of files, runs, leaderboard, cards, combined

QString nameOf(QObject *item)
{
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(item);
    return accessible == nullptr ? QString() : accessible->text(QAccessible::Name);
}

bool isList(const QQuickItem &item)
{
    return item.property("markedIndex").isValid() && item.property("count").toInt() > 0;
}

/// The words that a row shows: those of its labels, and those that it paints.
QStringList shownWords(const QQuickItem &row)
{
    QStringList texts{row.property("name").toString(), row.property("value").toString()};
    for (const QQuickItem *item : shownItems(row))
        texts << item->property("text").toString();
    return texts.join(u' ').remove(QChar(0x200E)).split(u' ', Qt::SkipEmptyParts);
}

} // namespace

class SpokenPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }
    void aFocusedRowSaysEverythingThatItShows();
    void everyListCopiesWhatItsRowSays();

private:
    [[nodiscard]] QQuickWindow &window() { return m_window->loadwick().window(); }
    void show(int page);
    /// The lists of all pages; `visit` runs while the list's page is shown and its first row has
    /// the focus.
    void visitLists(const std::function<void(QQuickItem &list, QQuickItem &row)> &visit);

    std::unique_ptr<WindowFixture> m_window;
};

void SpokenPagesTest::init()
{
    m_window = std::make_unique<WindowFixture>();
    m_window->appearance().setMotion(Appearance::Reduced); // pages are there at once
    ScanModel &model = m_window->loadwick().model();
    model.history().set(SampleHistories::ofSize(31, 5, 3));
    model.state().set(ScanState::result(SampleScans::excessive().report()));
}

void SpokenPagesTest::show(int page)
{
    m_window->loadwick().content().setPageIndex(page);
    QVERIFY(!window().grabWindow().isNull()); // lays out
}

void SpokenPagesTest::visitLists(
    const std::function<void(QQuickItem &list, QQuickItem &row)> &visit)
{
    qsizetype visited = 0;
    for (int page = 0; page < 3; ++page) {
        show(page);
        QList<QQuickItem *> lists = shownItems(*window().contentItem());
        lists.removeIf([](const QQuickItem *item) { return !isList(*item); });
        for (QQuickItem *list : lists) {
            list->forceActiveFocus(Qt::TabFocusReason);
            visit(*list, *window().activeFocusItem());
            ++visited;
        }
    }
    QVERIFY2(visited >= listCount, qPrintable(QString::number(visited)));
}

void SpokenPagesTest::aFocusedRowSaysEverythingThatItShows()
{
    visitLists([](const QQuickItem &, QQuickItem &row) {
        const QString name = nameOf(&row);
        for (const QString &word : shownWords(row))
            QVERIFY2(name.contains(word), qPrintable(name + QStringLiteral(" lacks ") + word));
    });
}

void SpokenPagesTest::everyListCopiesWhatItsRowSays()
{
    visitLists([this](QQuickItem &list, QQuickItem &row) {
        QGuiApplication::clipboard()->clear();
        m_window->press(Qt::Key_C, Qt::ControlModifier);
        const QString copied = QGuiApplication::clipboard()->text();
        QVERIFY2(!copied.isEmpty(), qPrintable(nameOf(&list)));
        QVERIFY2(nameOf(&row).contains(copied), qPrintable(copied));
    });
}

const RegisteredTest<SpokenPagesTest> registered("SpokenPages");

} // namespace Loadwick

#include "SpokenPagesTest.moc"
