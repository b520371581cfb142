#include "shell/AppPage.h"

#include <string>

#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {

class AppPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesThePagesInTheirOrder()
    {
        std::string said;
        for (const AppPage page : AppPage::all)
            said.append(page.title()).append(" ").append(page.symbol()).append("\n");
        QCOMPARE(said, std::string("Overview square.grid.2x2\n"
                                   "Trends chart.line.uptrend.xyaxis\n"
                                   "Compare rectangle.split.2x1\n"));
    }

    void isFoundByItsOwnRawValue()
    {
        for (const AppPage page : AppPage::all)
            QVERIFY(AppPage::fromRawValue(page.rawValue()) == page);
    }

    void anUnknownRawValueIsNoPage()
    {
        QVERIFY(!AppPage::fromRawValue("Overview"));
        QVERIFY(!AppPage::fromRawValue(""));
    }
};

const RegisteredTest<AppPageTest> registered("AppPage");

} // namespace Loadwick

#include "AppPageTest.moc"
