#include "dialogs/ShownName.h"

#include <filesystem>

#include <QTest>

#include "support/FolderDialogWindow.h"
#include "support/TestRegistry.h"
#include "support/VisualItems.h"

namespace Loadwick {

class ShownNameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyLetterIsSeen_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char *label, const char *name, const char *shown) {
            QTest::newRow(label) << QString::fromUtf8(name) << QString::fromUtf8(shown);
        };
        row("empty", "", "");
        row("plain", "web shop-2 <b>", "web shop-2 <b>");
        row("other scripts", "Büro דוח 😀", "Büro דוח 😀");
        row("line feed", "c\nd", "c\\nd");
        row("tabulator", "c\td", "c\\td");
        row("carriage return", "c\rd", "c\\u000Dd");
        row("escape", "\x1B[31m", "\\u001B[31m");
        row("delete", "a\x7F", "a\\u007F");
        row("next line", "a\xC2\x85z", "a\\u0085z");
        row("line separator", "a\u2028z", "a\\u2028z");
        row("override", "a\u202Egpj", "a\\u202Egpj");
        row("isolate", "a\u2067z", "a\\u2067z");
    }

    void everyLetterIsSeen()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, shown);
        QCOMPARE(ShownName::of(name), shown);
    }

    void foldersOfOneFirstLineAreToldApart()
    {
        FolderDialogWindow window;
        for (const char *name : {"c\nd", "c\ne"})
            std::filesystem::create_directory(window.root() / name);
        window.open();
        for (const char *shown : {"c\\nd", "c\\ne"}) {
            QVERIFY(window.findNamed(QString::fromLatin1(shown)) != nullptr);
            QVERIFY(isDrawn(window, QString::fromLatin1(shown)));
        }
        window.doubleClick(window.findNamed(QStringLiteral("c\\ne")));
        QTRY_VERIFY(window.line("bare") == nullptr);
        QVERIFY(isDrawn(window, QStringLiteral("c\\ne"))); // in the path
        QVERIFY(window.choose() == window.root() / "c\ne");
    }

private:
    [[nodiscard]] static bool isDrawn(DialogWindow &window, const QString &text)
    {
        for (const QQuickItem *item : shownItems(*window.window().contentItem()))
            if (item->inherits("QQuickText") && item->property("text").toString() == text)
                return true;
        return false;
    }
};

const RegisteredTest<ShownNameTest> registered("ShownName");

} // namespace Loadwick

#include "ShownNameTest.moc"
