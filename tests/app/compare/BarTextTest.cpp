#include "compare/BarText.h"

#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {

class BarTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBarHasItsTokens()
    {
        QCOMPARE(BarText::value(16'851, {}), QStringLiteral("16,851"));
        QCOMPARE(BarText::spoken(QStringLiteral("Tools"), 16'851, {}),
                 QStringLiteral("Tools: 16,851 tokens"));
    }

    void aCategoryOfNoTokensIsNotAMissingOne()
    {
        QCOMPARE(BarText::value(0, {}), QStringLiteral("0"));
        QCOMPARE(BarText::value(std::nullopt, {}), QStringLiteral("–"));
        QCOMPARE(BarText::spoken(QStringLiteral("Tools"), std::nullopt, {}),
                 QStringLiteral("Tools: not recorded"));
    }

    void groupsFiguresAsTheLocaleDoes()
    {
        QCOMPARE(BarText::value(1'234'567, {.numbers = "de_DE"}), QStringLiteral("1.234.567"));
        QCOMPARE(BarText::value(1'234'567, {.numbers = "hi_IN"}), QStringLiteral("12,34,567"));
    }
};

const RegisteredTest<BarTextTest> registered("BarText");

} // namespace Loadwick

#include "BarTextTest.moc"
