#include "overview/InstructionFileRows.h"

#include <limits>

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

InstructionFileRows::Context contextOf(InstructionFileSet files, const char *locale = "en_US")
{
    return {.files = std::make_shared<const InstructionFileSet>(std::move(files)),
            .total = 10'000,
            .locale = TextLocale::fromEnvironment({{"LC_ALL", locale}})};
}

InstructionFileSet oneFile(std::int64_t byteCount)
{
    InstructionFileSet files;
    files.repositoryFiles.push_back(
        InstructionFileEstimate::fromPath("/code/app/docs/CLAUDE.md", byteCount));
    return files;
}

void showAll(InstructionFileRows &rows, const InstructionFileRows::Context &context)
{
    rows.show(context, ListedFile::allReadable(*context.files));
}

QString textOf(const InstructionFileRows &rows, const char *role)
{
    return rows.text(0, QString::fromLatin1(role));
}

QString withoutMarks(QString text)
{
    return text.remove(QChar(0x200E));
}

} // namespace

class InstructionFileRowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesTheFiguresOfAFileInTheLocale_data()
    {
        QTest::addColumn<QString>("size");
        QTest::addColumn<QString>("tokens");
        QTest::addColumn<QString>("figures");
        QTest::newRow("en_US") << QStringLiteral("1,234,567 bytes on disk · local estimate at "
                                                 "4 bytes/token")
                               << QStringLiteral("308,642")
                               << QStringLiteral("308,642 estimated tokens · 100.0% of total");
        QTest::newRow("C") << QStringLiteral("1,234,567 bytes on disk · local estimate at "
                                             "4 bytes/token")
                           << QStringLiteral("308,642")
                           << QStringLiteral("308,642 estimated tokens · 100.0% of total");
        QTest::newRow("de_DE") << QStringLiteral("1.234.567 bytes on disk · local estimate at "
                                                 "4 bytes/token")
                               << QStringLiteral("308.642")
                               << QStringLiteral("308.642 estimated tokens · 100.0% of total");
        QTest::newRow("hi_IN") << QStringLiteral("12,34,567 bytes on disk · local estimate at "
                                                 "4 bytes/token")
                               << QStringLiteral("3,08,642")
                               << QStringLiteral("3,08,642 estimated tokens · 100.0% of total");
    }

    void writesTheFiguresOfAFileInTheLocale()
    {
        QFETCH(const QString, size);
        QFETCH(const QString, tokens);
        QFETCH(const QString, figures);
        InstructionFileRows rows;
        showAll(rows, contextOf(oneFile(1'234'567), QTest::currentDataTag()));
        QCOMPARE(textOf(rows, "size"), size);
        QCOMPARE(textOf(rows, "tokens"), tokens);
        QCOMPARE(textOf(rows, "amount"), tokens + QStringLiteral(" tokens"));
        QCOMPARE(textOf(rows, "share"), QStringLiteral("100.0% of total"));
        QCOMPARE(textOf(rows, "figures"), figures);
        QCOMPARE(rows.text(0, QStringLiteral("figures")), figures);
        QCOMPARE(textOf(rows, "words"), QStringLiteral("/code/app/docs/CLAUDE.md. ") + figures +
                                            QStringLiteral(". ") + size + QStringLiteral("."));
    }

    void aFileLargerThanTheTotalShowsAShareOfAHundredPercent()
    {
        InstructionFileRows rows;
        showAll(rows, contextOf(oneFile(40'004)));
        QCOMPARE(textOf(rows, "tokens"), QStringLiteral("10,001"));
        QCOMPARE(textOf(rows, "share"), QStringLiteral("100.0% of total"));
    }

    void aShareOfNoTotalIsZero()
    {
        InstructionFileRows rows;
        InstructionFileRows::Context context = contextOf(oneFile(4'000));
        context.total = 0;
        showAll(rows, context);
        QCOMPARE(textOf(rows, "share"), QStringLiteral("0.0% of total"));
        QCOMPARE(rows.text(0, QStringLiteral("figures")),
                 QStringLiteral("1,000 estimated tokens · 0.0% of total"));
    }

    void showsAnEmptyFileWithItsFigures()
    {
        InstructionFileRows rows;
        showAll(rows, contextOf(oneFile(0)));
        QCOMPARE(textOf(rows, "size"),
                 QStringLiteral("0 bytes on disk · local estimate at 4 bytes/token"));
        QCOMPARE(textOf(rows, "amount"), QStringLiteral("0 tokens"));
        QCOMPARE(rows.value(0, QStringLiteral("weight")).toDouble(), 0.0);
        QVERIFY(rows.value(0, QStringLiteral("isReadable")).toBool());
    }

    void saysOneTokenInTheSingular()
    {
        InstructionFileRows rows;
        showAll(rows, contextOf(oneFile(4)));
        QCOMPARE(textOf(rows, "amount"), QStringLiteral("1 token"));
    }

    void reportsAnUnreadableFileInsteadOfFigures()
    {
        InstructionFileRows rows;
        const InstructionFileRows::Context context = contextOf({});
        rows.show(context, {{.path = "/code/app/CLAUDE.md"}});
        QCOMPARE(textOf(rows, "path"), QStringLiteral("/code/app/CLAUDE.md"));
        QCOMPARE(textOf(rows, "size"), QStringLiteral("Could not be read"));
        for (const char *role : {"tokens", "amount", "share", "figures"})
            QCOMPARE(textOf(rows, role), QString());
        QCOMPARE(textOf(rows, "words"), QStringLiteral("/code/app/CLAUDE.md. Could not be read."));
        QVERIFY(!rows.value(0, QStringLiteral("isReadable")).toBool());
        QCOMPARE(rows.value(0, QStringLiteral("weight")).toDouble(), 0.0);
    }

    void knowsTheFilesNameAndPath()
    {
        InstructionFileRows rows;
        showAll(rows, contextOf(oneFile(400)));
        QCOMPARE(rows.text(0, QStringLiteral("path")), QStringLiteral("/code/app/docs/CLAUDE.md"));
        QCOMPARE(textOf(rows, "name"), QStringLiteral("CLAUDE.md"));
        QCOMPARE(rows.value(0, QStringLiteral("weight")).toDouble(), 100.0);
        rows.show(contextOf({}), {{.path = "bare.md"}});
        QCOMPARE(textOf(rows, "name"), QStringLiteral("bare.md"));
    }

    void namesTheImportThatLedToAFile_data()
    {
        QTest::addColumn<QString>("figures");
        QTest::newRow("en_US") << QStringLiteral(
            "1,234 estimated tokens · 12.3% of total. 4,936 bytes");
        QTest::newRow("de_DE") << QStringLiteral(
            "1.234 estimated tokens · 12.3% of total. 4.936 bytes");
        QTest::newRow("hi_IN") << QStringLiteral(
            "1,234 estimated tokens · 12.3% of total. 4,936 bytes");
        QTest::newRow("ar_EG") << QStringLiteral(
            "١٬٢٣٤ estimated tokens · 12.3% of total. ٤٬٩٣٦ bytes");
    }

    void namesTheImportThatLedToAFile()
    {
        InstructionFileSet files = oneFile(4'936);
        files.importers = {{"/code/app/docs/CLAUDE.md", "/code/app/docs/%1 style.md"},
                           {"/code/app/docs/%1 style.md", "/home/ada/notes.md"},
                           {"/home/ada/notes.md", "/srv/CLAUDE.md"}};
        InstructionFileRows::Context context = contextOf(files, QTest::currentDataTag());
        context.folders = TierFolders("/code/app", "/home/ada");
        InstructionFileRows rows;
        showAll(rows, context);
        const auto heard = QStringLiteral(
            "imported by docs/%1 style.md, imported by ~/notes.md, imported by /srv/CLAUDE.md");
        QCOMPARE(withoutMarks(textOf(rows, "importer")),
                 QStringLiteral("imported by docs/%1 style.md"));
        QVERIFY(textOf(rows, "importer").contains(QChar(0x200E)));
        QCOMPARE(withoutMarks(textOf(rows, "chain")), heard);
        QFETCH(const QString, figures);
        QCOMPARE(textOf(rows, "words"),
                 QStringLiteral("/code/app/docs/CLAUDE.md. ") + figures +
                     QStringLiteral(" on disk · local estimate at 4 bytes/token. ") + heard +
                     QStringLiteral("."));
    }

    void aFileThatNothingImportsHasNoImporter()
    {
        InstructionFileRows rows;
        showAll(rows, contextOf(oneFile(400)));
        QCOMPARE(textOf(rows, "importer"), QString());
        QCOMPARE(textOf(rows, "chain"), QString());
    }

    void isEmptyOutOfRange()
    {
        InstructionFileRows rows;
        showAll(rows, contextOf(oneFile(400)));
        for (const int row : {-1, 1, std::numeric_limits<int>::max()}) {
            QCOMPARE(rows.text(row, QStringLiteral("path")), QString());
            QCOMPARE(rows.text(row, QStringLiteral("figures")), QString());
            QCOMPARE(rows.text(row, QStringLiteral("words")), QString());
        }
    }

    void copiesThePathOfARow()
    {
        InstructionFileRows rows;
        showAll(rows, contextOf(oneFile(400)));
        rows.copy(0, QStringLiteral("path"));
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("/code/app/docs/CLAUDE.md"));
        QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
        rows.copy(1, QStringLiteral("path"));
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("kept"));
    }

    void keepsTheFileSetAlive()
    {
        InstructionFileRows rows;
        {
            const InstructionFileRows::Context context = contextOf(oneFile(400));
            showAll(rows, context);
        }
        QCOMPARE(rows.text(0, QStringLiteral("path")), QStringLiteral("/code/app/docs/CLAUDE.md"));
    }

    void behavesAsAModel()
    {
        InstructionFileRows rows;
        const QAbstractItemModelTester tester(
            &rows, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const QSignalSpy counts(&rows, &InstructionFileRows::countChanged);
        showAll(rows, contextOf(oneFile(400)));
        QCOMPARE(rows.rowCount(), 1);
        QCOMPARE(rows.rowCount(rows.index(0)), 0);
        QCOMPARE(counts.count(), 1);
        QVERIFY(rows.roleNames().values().contains("isReadable"));
    }

    void composesTextLazily()
    {
        InstructionFileSet files;
        for (int file = 0; file < 10'000; ++file)
            files.repositoryFiles.push_back(InstructionFileEstimate::fromPath(
                "/code/app/docs/guides/" + std::to_string(file) + "/CLAUDE.md", file));
        const InstructionFileRows::Context context = contextOf(std::move(files));
        InstructionFileRows rows;
        QElapsedTimer timer;
        timer.start();
        showAll(rows, context);
        const qint64 showing = timer.nsecsElapsed();
        timer.restart();
        for (int row = 0; row < rows.count(); ++row)
            (void)rows.value(row, QStringLiteral("words"));
        const qint64 writing = timer.nsecsElapsed();
        QVERIFY2(showing * 4 < writing, qPrintable(QString::number(showing)));
        QCOMPARE(rows.count(), 10'000);
    }
};

const RegisteredTest<InstructionFileRowsTest> registered("InstructionFileRows");

} // namespace Loadwick

#include "InstructionFileRowsTest.moc"
