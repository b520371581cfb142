#include "shell/AppPage.h"

#include <optional>
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
        std::string pages;
        for (const AppPage page : AppPage::all)
            pages.append(page.rawValue())
                .append(" ")
                .append(page.title())
                .append(" ")
                .append(page.symbol())
                .append("\n");
        QCOMPARE(pages, std::string("overview Overview square.grid.2x2\n"
                                    "trends Trends chart.line.uptrend.xyaxis\n"
                                    "compare Compare rectangle.split.2x1\n"));
    }

    void findsPagesByName()
    {
        for (const AppPage page : AppPage::all)
            QCOMPARE(AppPage::fromRawValue(page.rawValue()), std::optional<AppPage>(page));
        QVERIFY(!AppPage::fromRawValue("Trends"));
    }
};

const RegisteredTest<AppPageTest> registered("AppPage");

} // namespace Loadwick

#include "AppPageTest.moc"
