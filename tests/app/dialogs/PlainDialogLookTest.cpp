#include "dialogs/PlainDialogLook.h"

#include <algorithm>
#include <filesystem>
#include <memory>

#include <QHash>
#include <QImage>
#include <QTest>

#include "dialogs/DialogFolderChooser.h"
#include "export/DialogFileSaver.h"
#include "support/DialogWindow.h"
#include "support/TestRegistry.h"
#include "support/VisualItems.h"
#include "theme/Appearance.h"
#include "theme/ColorContrast.h"

namespace Loadwick {
namespace {

constexpr double leastForText = 4.5;

/// The colour of most of the pixels there.
QColor groundOf(const QImage &picture, const QRect &place)
{
    QHash<QRgb, int> counts;
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x)
            ++counts[picture.pixel(x, y)];
    const auto most = std::max_element(counts.begin(), counts.end());
    return most == counts.end() ? QColor() : QColor(most.key());
}

bool hasWords(const QQuickItem &item)
{
    return (item.inherits("QQuickText") || item.inherits("QQuickTextInput")) && item.isEnabled() &&
           !item.property("text").toString().isEmpty();
}

/// Of a field all of it is selected, or nothing.
QColor colourOfWords(const QQuickItem &item)
{
    const bool isSelected = !item.property("selectedText").toString().isEmpty();
    return item.property(isSelected ? "selectedTextColor" : "color").value<QColor>();
}

} // namespace

/// Both dialogs, dark and light, as they are seen.
class PlainDialogLookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void allWordsCanBeRead_data() { dialogs(); }
    void allWordsCanBeRead();
    void theKindsOfFileCanBeRead_data() { dialogs(); }
    void theKindsOfFileCanBeRead();
    void aPathThatIsEditedCanBeRead_data() { dialogs(); }
    void aPathThatIsEditedCanBeRead();
    void theGroundIsThatOfTheWindow_data() { dialogs(); }
    void theGroundIsThatOfTheWindow();
    void anOpenDialogFollowsTheWindow();

private:
    void dialogs();
    void open();
    void setScheme(Appearance::Scheme scheme);
    /// The name of each text that stands out too little.
    [[nodiscard]] QStringList unreadable();
    [[nodiscard]] QColor groundOfTheList();

    std::unique_ptr<DialogWindow> m_window;
    std::unique_ptr<DialogFolderChooser> m_chooser;
    std::unique_ptr<DialogFileSaver> m_saver;
};

void PlainDialogLookTest::init()
{
    m_window = std::make_unique<DialogWindow>();
    std::filesystem::create_directories(m_window->folder().path() / "docs");
    m_window->folder().write("trend.csv", "figures");
}

void PlainDialogLookTest::cleanup()
{
    m_saver.reset();
    m_chooser.reset();
    m_window.reset();
}

void PlainDialogLookTest::dialogs()
{
    QTest::addColumn<bool>("isFolder");
    QTest::addColumn<Appearance::Scheme>("scheme");
    QTest::newRow("folder, light") << true << Appearance::Light;
    QTest::newRow("folder, dark") << true << Appearance::Dark;
    QTest::newRow("file, light") << false << Appearance::Light;
    QTest::newRow("file, dark") << false << Appearance::Dark;
}

void PlainDialogLookTest::open()
{
    QFETCH(const bool, isFolder);
    if (isFolder) {
        m_chooser = std::make_unique<DialogFolderChooser>(m_window->folderUrl());
        m_chooser->attach(m_window->engine(), m_window->window());
        m_chooser->open([](const std::filesystem::path &) {});
    } else {
        m_saver = std::make_unique<DialogFileSaver>(m_window->folderUrl());
        m_saver->attach(m_window->engine(), m_window->window());
        m_saver->open({.title = QStringLiteral("Save the chart"),
                       .name = QStringLiteral("figures.csv"),
                       .filters = {QStringLiteral("Tables (*.csv)"), QStringLiteral("All (*.*)")}},
                      [](const FileSaver::Place &) {});
    }
    QTRY_VERIFY(m_window->find("fileName", QStringLiteral("docs")) != nullptr);
    QFETCH(const Appearance::Scheme, scheme);
    setScheme(scheme);
}

void PlainDialogLookTest::setScheme(Appearance::Scheme scheme)
{
    const int type = qmlTypeId("Loadwick", 1, 0, "Appearance");
    auto *appearance = m_window->engine().singletonInstance<Appearance *>(type);
    QVERIFY(appearance != nullptr);
    appearance->setScheme(scheme);
}

QStringList PlainDialogLookTest::unreadable()
{
    const QImage picture = m_window->window().grabWindow();
    QStringList names;
    for (const QQuickItem *item : shownItems(*m_window->window().contentItem())) {
        if (!hasWords(*item))
            continue;
        const QRect place = item->mapRectToScene(item->boundingRect()).toRect();
        const QColor ground = groundOf(picture, place.intersected(picture.rect()));
        const QColor colour = blended(colourOfWords(*item), ground);
        if (contrast(colour, ground) < leastForText)
            names.append(item->property("text").toString());
    }
    return names;
}

QColor PlainDialogLookTest::groundOfTheList()
{
    const QImage picture = m_window->window().grabWindow();
    const QQuickItem *line = m_window->find("fileName", QStringLiteral("docs"));
    const QRectF list = line->parentItem()->mapRectToScene(line->parentItem()->boundingRect());
    return groundOf(picture, list.toRect().intersected(picture.rect()));
}

void PlainDialogLookTest::allWordsCanBeRead()
{
    open();
    QCOMPARE(unreadable(), QStringList());
    m_window->press(Qt::Key_Tab);
    m_window->press(Qt::Key_Down);
    QCOMPARE(unreadable(), QStringList());
}

void PlainDialogLookTest::theKindsOfFileCanBeRead()
{
    QFETCH(const bool, isFolder);
    open();
    if (isFolder)
        return;
    QQuickItem *box = m_window->find("displayText", QStringLiteral("Tables (*.csv)"));
    const auto *arrows = box->property("indicator").value<QQuickItem *>();
    const QImage picture = m_window->window().grabWindow();
    const QColor ground = groundOf(picture, box->mapRectToScene(box->boundingRect()).toRect());
    QVERIFY(contrast(arrows->property("color").value<QColor>(), ground) >= 3);
    m_window->click(box);
    QTRY_VERIFY(m_window->find("text", QStringLiteral("All (*.*)")) != nullptr);
    m_window->press(Qt::Key_Down);
    QTRY_COMPARE(unreadable(), QStringList());
}

void PlainDialogLookTest::aPathThatIsEditedCanBeRead()
{
    open();
    m_window->press(Qt::Key_L, Qt::ControlModifier);
    const auto *field = m_window->window().activeFocusItem();
    QVERIFY(field->inherits("QQuickTextInput"));
    QVERIFY(contrast(field->property("selectedTextColor").value<QColor>(),
                     field->property("selectionColor").value<QColor>()) >= leastForText);
    m_window->press(Qt::Key_End);
    QCOMPARE(unreadable(), QStringList());
}

void PlainDialogLookTest::theGroundIsThatOfTheWindow()
{
    open();
    QFETCH(const Appearance::Scheme, scheme);
    QCOMPARE(groundOfTheList().name(),
             scheme == Appearance::Dark ? QStringLiteral("#29292e") : QStringLiteral("#ffffff"));
}

void PlainDialogLookTest::anOpenDialogFollowsTheWindow()
{
    m_chooser = std::make_unique<DialogFolderChooser>(m_window->folderUrl());
    m_chooser->attach(m_window->engine(), m_window->window());
    m_chooser->open([](const std::filesystem::path &) {});
    QTRY_VERIFY(m_window->find("fileName", QStringLiteral("docs")) != nullptr);
    for (const auto scheme : {Appearance::Light, Appearance::Dark, Appearance::Light}) {
        setScheme(scheme);
        QCOMPARE(groundOfTheList().lightness() < 128, scheme == Appearance::Dark);
        QCOMPARE(unreadable(), QStringList());
    }
}

const RegisteredTest<PlainDialogLookTest> registered("PlainDialogLook");

} // namespace Loadwick

#include "PlainDialogLookTest.moc"
