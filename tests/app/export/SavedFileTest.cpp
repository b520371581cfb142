#include "export/SavedFile.h"

#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {

class SavedFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSuggestedNameNamesTheRepository()
    {
        QCOMPARE(SavedFile::suggestedName(QStringLiteral("trend"), QStringLiteral("web_shop.2")),
                 QStringLiteral("trend-web_shop.2"));
        QCOMPARE(SavedFile::suggestedName(QStringLiteral("trend"), QStringLiteral("Käse日")),
                 QStringLiteral("trend-Käse日"));
    }

    void aSuggestedNameEndsWithTheDay()
    {
        const auto kind = QStringLiteral("report");
        QCOMPARE(SavedFile::suggestedName(kind, QStringLiteral("web"), QDate(2026, 3, 4)),
                 QStringLiteral("report-web-2026-03-04"));
        QCOMPARE(SavedFile::suggestedName(kind, QString(), QDate(2026, 3, 4)),
                 QStringLiteral("report-2026-03-04"));
        QCOMPARE(SavedFile::suggestedName(kind, QStringLiteral("web"), QDate(10'000, 1, 1)),
                 QStringLiteral("report-web"));
    }

    void aSuggestedNameIsTheKindAloneWithoutARepository()
    {
        QCOMPARE(SavedFile::suggestedName(QStringLiteral("trend"), QString()),
                 QStringLiteral("trend"));
    }

    void aSuggestedNameContainsNoPath()
    {
        QCOMPARE(
            SavedFile::suggestedName(QStringLiteral("trend"), QStringLiteral("../a b\n\u202Ec")),
            QStringLiteral("trend-..-a-b--c"));
    }

    void aSuggestedNameIsNeverLong()
    {
        const QString name = SavedFile::suggestedName(QStringLiteral("trend"), QString(300, u'x'));
        QCOMPARE(name.size(), 6 + 60);
    }

    void everyUsualFailureHasPlainWords_data()
    {
        QTest::addColumn<int>("failure");
        QTest::addColumn<QString>("words");
        const auto row = [](const char *name, std::errc failure, const char *words) {
            QTest::newRow(name) << static_cast<int>(failure) << QString::fromUtf8(words);
        };
        row("a file", std::errc::file_exists,
            "a file of that name is there already. Choose another name.");
        row("a folder", std::errc::is_a_directory, "a folder has that name. Choose another name.");
        row("a long name", std::errc::filename_too_long, "its name is too long.");
        row("no folder", std::errc::no_such_file_or_directory, "its folder is not there.");
        row("no folder above it", std::errc::not_a_directory, "its folder is not there.");
        row("no permission", std::errc::permission_denied, "you may not write in that folder.");
        row("not allowed", std::errc::operation_not_permitted, "you may not write in that folder.");
        row("read-only", std::errc::read_only_file_system, "that disk cannot be written to.");
        row("full", std::errc::no_space_on_device, "the disk is full.");
    }

    void everyUsualFailureHasPlainWords()
    {
        QFETCH(int, failure);
        QFETCH(QString, words);
        QCOMPARE(SavedFile::reason({failure, std::generic_category()}), words);
    }

    void anExceededQuotaIsAFullDisk()
    {
        QCOMPARE(SavedFile::reason({EDQUOT, std::generic_category()}),
                 QStringLiteral("the disk is full."));
    }

    void anyOtherFailureHasTheSystemsWords()
    {
        QCOMPARE(SavedFile::reason(std::make_error_code(std::errc::io_error)),
                 QStringLiteral("the system says \"Input/output error\"."));
    }
};

const RegisteredTest<SavedFileTest> registered("SavedFile");

} // namespace Loadwick

#include "SavedFileTest.moc"
