#include "export/FileName.h"

#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

class FileNameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesTheRepository()
    {
        QCOMPARE(FileName::suggested(QStringLiteral("trend"), QStringLiteral("web_shop.2")),
                 QStringLiteral("trend-web_shop.2"));
        QCOMPARE(FileName::suggested(QStringLiteral("trend"), QStringLiteral("Käse日")),
                 QStringLiteral("trend-Käse日"));
    }
    void isTheKindAloneWithoutARepository()
    {
        QCOMPARE(FileName::suggested(QStringLiteral("trend"), QString()), QStringLiteral("trend"));
    }
    void leavesNothingThatLeadsElsewhere()
    {
        QCOMPARE(FileName::suggested(QStringLiteral("trend"), QStringLiteral("../a b\n\u202Ec")),
                 QStringLiteral("trend-..-a-b--c"));
    }
    void isNeverLong()
    {
        const QString name = FileName::suggested(QStringLiteral("trend"), QString(300, u'x'));
        QCOMPARE(name.size(), 6 + 60);
    }
};

const RegisteredTest<FileNameTest> registered("FileName");

} // namespace
} // namespace Loadwick

#include "FileNameTest.moc"
