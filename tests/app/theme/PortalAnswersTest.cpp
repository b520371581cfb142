#include "theme/PortalAppearanceSource.h"

#include "support/TestRegistry.h"

#include <QDBusVariant>
#include <QTest>

namespace Loadwick {
namespace {

constexpr auto common = "org.freedesktop.appearance";
constexpr auto gnome = "org.gnome.desktop.interface";
constexpr auto gnomeAccess = "org.gnome.desktop.a11y.interface";

void take(PortalAnswers &answers, const char *space, const char *name, const QVariant &value)
{
    answers.take(QString::fromLatin1(space), QString::fromLatin1(name), value);
}

} // namespace

class PortalAnswersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsOneAnswer_data()
    {
        QTest::addColumn<QByteArray>("space");
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<DesktopPreferences>("preferences");
        schemeRows();
        motionRows();
        contrastRows();
        textRows();
        ignoredRows();
    }

    void readsOneAnswer()
    {
        QFETCH(const QByteArray, space);
        QFETCH(const QByteArray, name);
        QFETCH(const QVariant, value);
        QFETCH(const DesktopPreferences, preferences);
        PortalAnswers answers;
        take(answers, space, name, value);
        QVERIFY(answers.preferences() == preferences);
    }

    void theSharedKeyTakesPrecedence()
    {
        PortalAnswers answers;
        take(answers, common, "color-scheme", 2U);
        take(answers, gnome, "color-scheme", QStringLiteral("prefer-dark"));
        QCOMPARE(answers.preferences().dark, std::optional(false));
    }

    void fallsBackToGnomesKey()
    {
        PortalAnswers answers;
        take(answers, common, "color-scheme", 0U);
        take(answers, gnome, "color-scheme", QStringLiteral("prefer-dark"));
        take(answers, common, "reduced-motion", 0U);
        take(answers, gnome, "enable-animations", false);
        const DesktopPreferences expected{.dark = true, .reducedMotion = true};
        QVERIFY(answers.preferences() == expected);
    }

    void theLastAnswerCounts()
    {
        PortalAnswers answers;
        take(answers, common, "color-scheme", 1U);
        take(answers, common, "color-scheme", 2U);
        QCOMPARE(answers.preferences().dark, std::optional(false));
        take(answers, common, "color-scheme", 0U);
        QVERIFY(answers.preferences() == DesktopPreferences());
    }

    void wrappedValuesAreUnwrapped()
    {
        const QDBusVariant once(QVariant(1U));
        const QDBusVariant twice(QVariant::fromValue(once));
        for (const QDBusVariant &wrapped : {once, twice}) {
            PortalAnswers answers;
            take(answers, common, "color-scheme", QVariant::fromValue(wrapped));
            QCOMPARE(answers.preferences().dark, std::optional(true));
        }
    }

    void asksForEveryKey()
    {
        QByteArrayList keys;
        for (const PortalAnswers::Key &key : PortalAnswers::keys())
            keys.append(QByteArray(key.space) + ' ' + key.name);
        QCOMPARE(keys, QByteArrayList({"org.freedesktop.appearance color-scheme",
                                       "org.freedesktop.appearance contrast",
                                       "org.freedesktop.appearance reduced-motion",
                                       "org.freedesktop.appearance accent-color",
                                       "org.gnome.desktop.interface color-scheme",
                                       "org.gnome.desktop.interface enable-animations",
                                       "org.gnome.desktop.interface font-name",
                                       "org.gnome.desktop.interface text-scaling-factor",
                                       "org.gnome.desktop.a11y.interface high-contrast"}));
    }

private:
    static void row(const char *space, const char *name, const QVariant &value,
                    const DesktopPreferences &preferences)
    {
        const char *type = value.isValid() ? value.typeName() : "nothing";
        QTest::addRow("%s %s %s %s", space, name, type, qPrintable(value.toString()))
            << QByteArray(space) << QByteArray(name) << value << preferences;
    }

    static void schemeRows()
    {
        row(common, "color-scheme", 0U, {});
        row(common, "color-scheme", 1U, {.dark = true});
        row(common, "color-scheme", 2U, {.dark = false});
        row(common, "color-scheme", 3U, {});
        row(common, "color-scheme", QStringLiteral("1"), {});
        row(common, "color-scheme", QVariant(), {});
        row(gnome, "color-scheme", QStringLiteral("default"), {});
        row(gnome, "color-scheme", QStringLiteral("prefer-dark"), {.dark = true});
        row(gnome, "color-scheme", QStringLiteral("prefer-light"), {.dark = false});
        row(gnome, "color-scheme", 1U, {});
    }

    static void motionRows()
    {
        row(common, "reduced-motion", 0U, {});
        row(common, "reduced-motion", 1U, {.reducedMotion = true});
        row(gnome, "enable-animations", false, {.reducedMotion = true});
        row(gnome, "enable-animations", true, {.reducedMotion = false});
        row(gnome, "enable-animations", 0U, {});
    }

    static void contrastRows()
    {
        row(common, "contrast", 0U, {});
        row(common, "contrast", 1U, {.moreContrast = true});
        row(gnomeAccess, "high-contrast", true, {.moreContrast = true});
        row(gnomeAccess, "high-contrast", false, {.moreContrast = false});
    }

    static void textRows()
    {
        row(gnome, "font-name", QStringLiteral("Cantarell 11"), {.fontPoints = 11});
        row(gnome, "font-name", QStringLiteral("Noto Sans Bold 14"), {.fontPoints = 14});
        row(gnome, "font-name", QStringLiteral("Cantarell 10.5"), {.fontPoints = 10.5});
        row(gnome, "font-name", QStringLiteral("Cantarell"), {});
        row(gnome, "font-name", QString(), {});
        row(gnome, "font-name", QStringLiteral("Cantarell -3"), {});
        row(gnome, "text-scaling-factor", 1.25, {.textFactor = 1.25});
        row(gnome, "text-scaling-factor", QStringLiteral("1.25"), {});
        row(gnome, "text-scaling-factor", 0.0, {});
        row(gnome, "text-scaling-factor", qQNaN(), {});
    }

    static void ignoredRows()
    {
        row(common, "colour-scheme", 1U, {});
        row(gnome, "gtk-theme", QStringLiteral("Adwaita-dark"), {});
        row(gnomeAccess, "color-scheme", 1U, {});
        row("org.example", "color-scheme", 1U, {});
        row("", "", {}, {});
        row(common, "accent-color", {}, {});
        row(common, "accent-color", 1U, {});
        row(common, "accent-color", QStringLiteral("(ddd)"), {});
    }
};

const RegisteredTest<PortalAnswersTest> registered("PortalAnswers");

} // namespace Loadwick

#include "PortalAnswersTest.moc"
