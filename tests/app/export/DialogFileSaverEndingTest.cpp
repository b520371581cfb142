#include <filesystem>
#include <memory>
#include <optional>

#include <QTest>

#include "export/DialogFileSaver.h"
#include "support/DialogWindow.h"
#include "support/TestRegistry.h"

namespace Loadwick {

/// Under which name a file is saved whose name was typed into the dialog that Qt draws itself.
class DialogFileSaverEndingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aNameWithoutAnEndingTakesThatOfTheKindOfFile_data();
    void aNameWithoutAnEndingTakesThatOfTheKindOfFile();
    void everyKindThatIsOfferedIsAnEnding_data();
    void everyKindThatIsOfferedIsAnEnding();

private:
    void save(const QByteArray &name, const QStringList &kinds);

    std::unique_ptr<DialogWindow> m_window;
    std::unique_ptr<DialogFileSaver> m_saver;
    std::optional<FileSaver::Place> m_place;
};

void DialogFileSaverEndingTest::init()
{
    m_window = std::make_unique<DialogWindow>();
    m_saver = std::make_unique<DialogFileSaver>(m_window->folderUrl());
    m_saver->attach(m_window->engine(), m_window->window());
    m_place.reset();
}

void DialogFileSaverEndingTest::cleanup()
{
    m_saver.reset();
    m_window.reset();
}

void DialogFileSaverEndingTest::save(const QByteArray &name, const QStringList &kinds)
{
    m_saver->open({.title = QStringLiteral("Save"), .name = QStringLiteral("a"), .filters = kinds},
                  [this](const FileSaver::Place &place) { m_place = place; });
    QTRY_COMPARE(m_window->focusedName(), QStringLiteral("fileNameTextField"));
    m_window->type(name);
    m_window->press(Qt::Key_Return);
    QTRY_VERIFY(m_place.has_value());
}

void DialogFileSaverEndingTest::aNameWithoutAnEndingTakesThatOfTheKindOfFile_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("no dot") << QByteArray("all");
    QTest::newRow("a version") << QByteArray("notes v1.2");
    QTest::newRow("of another kind") << QByteArray("a.txt");
    QTest::newRow("no dot before the ending") << QByteArray("mycsv");
}

void DialogFileSaverEndingTest::aNameWithoutAnEndingTakesThatOfTheKindOfFile()
{
    QFETCH(const QByteArray, name);
    save(name, {QStringLiteral("Comma-separated values (*.csv)")});
    QCOMPARE(m_place->file, m_window->folder().path() / (name.toStdString() + ".csv"));
    QVERIFY(!m_place->mayReplace);
}

void DialogFileSaverEndingTest::everyKindThatIsOfferedIsAnEnding_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("the usual one") << QByteArray("x.png") << QByteArray("x.png");
    QTest::newRow("another one") << QByteArray("x.SVG") << QByteArray("x.SVG");
    QTest::newRow("none of them") << QByteArray("x.csv") << QByteArray("x.csv.png");
}

void DialogFileSaverEndingTest::everyKindThatIsOfferedIsAnEnding()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QByteArray, file);
    save(name, {QStringLiteral("PNG picture (*.png)"), QStringLiteral("SVG drawing (*.svg)")});
    QCOMPARE(m_place->file, m_window->folder().path() / file.toStdString());
}

const RegisteredTest<DialogFileSaverEndingTest> registered("DialogFileSaverEnding");

} // namespace Loadwick

#include "DialogFileSaverEndingTest.moc"
