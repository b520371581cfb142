#include "base/TokenText.h"

#include <QTest>

#include "support/TestRegistry.h"
#include "text/TextLocale.h"

namespace Loadwick {

class TokenTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneTokenIsSingular()
    {
        const TextLocale locale{.numbers = "en_US"};
        QCOMPARE(TokenText::count(1, locale), QStringLiteral("1 token"));
        QCOMPARE(TokenText::count(0, locale), QStringLiteral("0 tokens"));
        QCOMPARE(TokenText::count(1'234, locale), QStringLiteral("1,234 tokens"));
        QCOMPARE(TokenText::change(1, locale), QStringLiteral("+1 token"));
        QCOMPARE(TokenText::change(-1, locale), QStringLiteral("-1 token"));
        QCOMPARE(TokenText::change(0, locale), QStringLiteral("+0 tokens"));
        QCOMPARE(TokenText::change(-80, locale), QStringLiteral("-80 tokens"));
    }

    void writesFiguresInTheLocale_data()
    {
        QTest::addColumn<QString>("count");
        QTest::addColumn<QString>("change");
        QTest::newRow("de_DE") << "1.234.567 tokens"
                               << "+1 token";
        QTest::newRow("hi_IN") << "12,34,567 tokens"
                               << "+1 token";
        QTest::newRow("ar_EG") << "١٬٢٣٤٬٥٦٧ tokens"
                               << "\u061C+١ token";
    }

    void writesFiguresInTheLocale()
    {
        const TextLocale locale{.numbers = QTest::currentDataTag()};
        QTEST(TokenText::count(1'234'567, locale), "count");
        QTEST(TokenText::change(1, locale), "change");
    }
};

const RegisteredTest<TokenTextTest> registered("TokenText");

} // namespace Loadwick

#include "TokenTextTest.moc"
