#include <filesystem>
#include <memory>

#include <QMap>
#include <QTest>

#include "dialogs/PlainSaveDialog.h"
#include "export/DialogFileSaver.h"
#include "support/DialogWindow.h"
#include "support/TestRegistry.h"
#include "support/VisualItems.h"

namespace Loadwick {

/// What the dialog shows when it opens, the first time and again, over a folder with the folders
/// "first" and "sub" and the files "drawn.svg", "figures.csv" and "old.png".
class PlainSaveDialogOpeningTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void nothingIsHighlighted();
    void nothingElseThanTheFileIsHighlightedOnceItWasSaved();
    void theNameStaysWhenFilesComeAndGo();
    void foldersStandFirst();
    void theKindIsThatOfTheName();
    void theKindIsThatOfTheNameAfterAnotherWasChosen();
    void theKindIsTheFirstForANameOfNone();

private:
    void open(const QString &name);
    [[nodiscard]] QString chosenKind() const;
    [[nodiscard]] QString name() const;
    [[nodiscard]] QStringList lines() const;
    /// Empty when no line is.
    [[nodiscard]] QString highlighted() const;

    std::unique_ptr<DialogWindow> m_window;
    std::unique_ptr<DialogFileSaver> m_saver;
    std::filesystem::path m_saved;
};

void PlainSaveDialogOpeningTest::init()
{
    m_window = std::make_unique<DialogWindow>();
    for (const char *folder : {"first", "sub"})
        std::filesystem::create_directory(m_window->folder().path() / folder);
    for (const char *file : {"drawn.svg", "figures.csv", "old.png"})
        m_window->folder().write(file, "");
    m_saver = std::make_unique<DialogFileSaver>(m_window->folderUrl());
    m_saver->attach(m_window->engine(), m_window->window());
    m_saved.clear();
}

void PlainSaveDialogOpeningTest::cleanup()
{
    m_saver.reset();
    m_window.reset();
}

void PlainSaveDialogOpeningTest::open(const QString &name)
{
    m_saver->open(
        {.title = QStringLiteral("Save the chart"),
         .name = name,
         .filters = {QStringLiteral("PNG picture (*.png)"), QStringLiteral("SVG drawing (*.svg)")}},
        [this](const FileSaver::Place &place) { m_saved = place.file; });
    QTRY_VERIFY(lines().contains(QStringLiteral("sub"))); // the list is filled late
}

QString PlainSaveDialogOpeningTest::chosenKind() const
{
    for (QQuickItem *item : shownItems(*m_window->window().contentItem()))
        if (item->inherits("QQuickComboBox"))
            return item->property("displayText").toString();
    return {};
}

QString PlainSaveDialogOpeningTest::name() const
{
    return m_window->find("objectName", QStringLiteral("fileNameTextField"))
        ->property("text")
        .toString();
}

QStringList PlainSaveDialogOpeningTest::lines() const
{
    (void)m_window->window().grabWindow(); // a list places its lines when it is drawn
    QMap<qreal, QString> names;
    for (QQuickItem *item : shownItems(*m_window->window().contentItem()))
        if (item->property("fileIsDir").isValid())
            names.insert(item->y(), item->property("fileName").toString());
    return names.values();
}

QString PlainSaveDialogOpeningTest::highlighted() const
{
    const QQuickItem *line = m_window->find("highlighted", QStringLiteral("true"));
    return line == nullptr ? QString() : line->property("fileName").toString();
}

void PlainSaveDialogOpeningTest::nothingIsHighlighted()
{
    open(QStringLiteral("trend.png"));
    QCOMPARE(highlighted(), QString());
}

void PlainSaveDialogOpeningTest::nothingElseThanTheFileIsHighlightedOnceItWasSaved()
{
    open(QStringLiteral("trend.png"));
    m_window->type("sub");
    m_window->press(Qt::Key_Return); // shows that folder
    QTRY_VERIFY(!lines().contains(QStringLiteral("sub")));
    m_window->press(Qt::Key_Return);
    QCOMPARE(m_saved, m_window->folder().path() / "sub" / "trend.png");
    for (const char *folder : {"sub/after", "sub/sub", "sub/zebra"})
        std::filesystem::create_directory(m_window->folder().path() / folder);
    m_window->folder().write("sub/trend.png", "");
    m_window->folder().write("sub/young.png", "");
    for (int opening = 0; opening < 3; ++opening) {
        open(QStringLiteral("trend.png"));
        QTRY_VERIFY(lines().contains(QStringLiteral("young.png")));
        QVERIFY(highlighted().isEmpty() || highlighted() == QStringLiteral("trend.png"));
        m_window->press(Qt::Key_Escape);
    }
}

void PlainSaveDialogOpeningTest::theNameStaysWhenFilesComeAndGo()
{
    open(QStringLiteral("trend.png"));
    m_window->click(m_window->find("fileName", QStringLiteral("old.png")));
    QCOMPARE(name(), QStringLiteral("old.png"));
    m_window->folder().write("aaa.png", "");
    QTRY_VERIFY(lines().contains(QStringLiteral("aaa.png")));
    QTRY_COMPARE(highlighted(), QStringLiteral("old.png"));
    QCOMPARE(name(), QStringLiteral("old.png"));
    std::filesystem::remove(m_window->folder().path() / "old.png");
    QTRY_VERIFY(!lines().contains(QStringLiteral("old.png")));
    QTRY_COMPARE(highlighted(), QString());
    QCOMPARE(name(), QStringLiteral("old.png"));
    m_window->click(m_window->find("text", QStringLiteral("Save")));
    QCOMPARE(m_saved, m_window->folder().path() / "old.png");
}

void PlainSaveDialogOpeningTest::foldersStandFirst()
{
    open(QStringLiteral("trend.png"));
    QTRY_COMPARE(lines(), QStringList({QStringLiteral("first"), QStringLiteral("sub"),
                                       QStringLiteral("old.png")}));
}

void PlainSaveDialogOpeningTest::theKindIsThatOfTheName()
{
    open(QStringLiteral("trend.svg"));
    QCOMPARE(chosenKind(), QStringLiteral("SVG drawing (*.svg)"));
    m_window->press(Qt::Key_Escape);
    open(QStringLiteral("trend.png"));
    QCOMPARE(chosenKind(), QStringLiteral("PNG picture (*.png)"));
}

void PlainSaveDialogOpeningTest::theKindIsThatOfTheNameAfterAnotherWasChosen()
{
    open(QStringLiteral("trend.png"));
    m_window->press(Qt::Key_Tab);
    m_window->press(Qt::Key_Down);
    QCOMPARE(chosenKind(), QStringLiteral("SVG drawing (*.svg)"));
    m_window->click(m_window->find("text", QStringLiteral("Save")));
    QCOMPARE(m_saved, m_window->folder().path() / "trend.svg");
    open(QStringLiteral("trend.png"));
    QCOMPARE(chosenKind(), QStringLiteral("PNG picture (*.png)"));
    QTRY_VERIFY(lines().contains(QStringLiteral("old.png")));
    m_window->press(Qt::Key_Return);
    QCOMPARE(m_saved, m_window->folder().path() / "trend.png");
}

void PlainSaveDialogOpeningTest::theKindIsTheFirstForANameOfNone()
{
    open(QStringLiteral("trend.svg"));
    m_window->press(Qt::Key_Escape);
    open(QStringLiteral("trend"));
    QCOMPARE(chosenKind(), QStringLiteral("PNG picture (*.png)"));
}

const RegisteredTest<PlainSaveDialogOpeningTest> registered("PlainSaveDialogOpening");

} // namespace Loadwick

#include "PlainSaveDialogOpeningTest.moc"
