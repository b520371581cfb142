#include "theme/PortalAnswers.h"

#include "support/TestRegistry.h"

#include <QDBusVariant>
#include <QTest>

namespace Loadwick {
namespace {

const auto common = QStringLiteral("org.freedesktop.appearance");
const auto gnome = QStringLiteral("org.gnome.desktop.interface");
const auto gnomeAccess = QStringLiteral("org.gnome.desktop.a11y.interface");
const auto scheme = QStringLiteral("color-scheme");
const auto animations = QStringLiteral("enable-animations");

/// Yes, no, or nothing said.
int said(const std::optional<bool> &wish)
{
    return wish ? int(*wish) : -1;
}

} // namespace

class PortalAnswersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aColorScheme_data();
    void aColorScheme();
    void motion_data();
    void motion();
    void contrast_data();
    void contrast();
    void theKeyOfEveryDesktopComesFirst();
    void noPreferenceLeavesTheWordToGnome();
    void theLastAnswerCounts();
    void aPreferenceCanBeTakenBack();
    void wrappedValuesAreUnwrapped();
    void otherKeysSayNothing();
    void anAccentThatIsNoneSaysNothing();
    void textSize_data();
    void textSize();
    void everyKeyIsAskedFor();
};

void PortalAnswersTest::aColorScheme_data()
{
    QTest::addColumn<QString>("space");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("dark");
    QTest::newRow("no preference") << common << QVariant(0U) << -1;
    QTest::newRow("dark") << common << QVariant(1U) << 1;
    QTest::newRow("light") << common << QVariant(2U) << 0;
    QTest::newRow("of the future") << common << QVariant(3U) << -1;
    QTest::newRow("a word for a number") << common << QVariant(QStringLiteral("1")) << -1;
    QTest::newRow("nothing") << common << QVariant() << -1;
    QTest::newRow("gnome, default") << gnome << QVariant(QStringLiteral("default")) << -1;
    QTest::newRow("gnome, dark") << gnome << QVariant(QStringLiteral("prefer-dark")) << 1;
    QTest::newRow("gnome, light") << gnome << QVariant(QStringLiteral("prefer-light")) << 0;
    QTest::newRow("gnome, a number for a word") << gnome << QVariant(1U) << -1;
}

void PortalAnswersTest::aColorScheme()
{
    QFETCH(QString, space);
    QFETCH(QVariant, value);
    PortalAnswers answers;
    answers.take(space, scheme, value);
    QTEST(said(answers.wishes().dark), "dark");
}

void PortalAnswersTest::motion_data()
{
    QTest::addColumn<QString>("space");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("reduced");
    const auto reduced = QStringLiteral("reduced-motion");
    QTest::newRow("no preference") << common << reduced << QVariant(0U) << -1;
    QTest::newRow("reduced") << common << reduced << QVariant(1U) << 1;
    QTest::newRow("gnome, still") << gnome << animations << QVariant(false) << 1;
    QTest::newRow("gnome, moving") << gnome << animations << QVariant(true) << 0;
    QTest::newRow("gnome, no flag") << gnome << animations << QVariant(0U) << -1;
}

void PortalAnswersTest::motion()
{
    QFETCH(QString, space);
    QFETCH(QString, name);
    QFETCH(QVariant, value);
    PortalAnswers answers;
    answers.take(space, name, value);
    QTEST(said(answers.wishes().reducedMotion), "reduced");
}

void PortalAnswersTest::contrast_data()
{
    QTest::addColumn<QString>("space");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("more");
    QTest::newRow("no preference") << common << QStringLiteral("contrast") << QVariant(0U) << -1;
    QTest::newRow("more") << common << QStringLiteral("contrast") << QVariant(1U) << 1;
    const auto high = QStringLiteral("high-contrast");
    QTest::newRow("gnome, more") << gnomeAccess << high << QVariant(true) << 1;
    QTest::newRow("gnome, standard") << gnomeAccess << high << QVariant(false) << 0;
}

void PortalAnswersTest::contrast()
{
    QFETCH(QString, space);
    QFETCH(QString, name);
    QFETCH(QVariant, value);
    PortalAnswers answers;
    answers.take(space, name, value);
    QTEST(said(answers.wishes().moreContrast), "more");
}

void PortalAnswersTest::theKeyOfEveryDesktopComesFirst()
{
    PortalAnswers answers;
    answers.take(common, scheme, 2U);
    answers.take(gnome, scheme, QStringLiteral("prefer-dark"));
    QCOMPARE(said(answers.wishes().dark), 0);
}

void PortalAnswersTest::noPreferenceLeavesTheWordToGnome()
{
    PortalAnswers answers;
    answers.take(common, scheme, 0U);
    answers.take(gnome, scheme, QStringLiteral("prefer-dark"));
    QCOMPARE(said(answers.wishes().dark), 1);
    answers.take(common, QStringLiteral("reduced-motion"), 0U);
    answers.take(gnome, animations, false);
    QCOMPARE(said(answers.wishes().reducedMotion), 1);
}

void PortalAnswersTest::theLastAnswerCounts()
{
    PortalAnswers answers;
    answers.take(common, scheme, 1U);
    answers.take(common, scheme, 2U);
    QCOMPARE(said(answers.wishes().dark), 0);
}

void PortalAnswersTest::aPreferenceCanBeTakenBack()
{
    PortalAnswers answers;
    answers.take(common, scheme, 1U);
    answers.take(common, scheme, 0U);
    QCOMPARE(said(answers.wishes().dark), -1);
}

void PortalAnswersTest::wrappedValuesAreUnwrapped()
{
    const QDBusVariant once(QVariant(1U));
    const QDBusVariant twice(QVariant::fromValue(once));
    for (const QDBusVariant &wrapped : {once, twice}) {
        PortalAnswers answers;
        answers.take(common, scheme, QVariant::fromValue(wrapped));
        QCOMPARE(said(answers.wishes().dark), 1);
    }
}

void PortalAnswersTest::otherKeysSayNothing()
{
    PortalAnswers answers;
    answers.take(common, QStringLiteral("colour-scheme"), 1U);
    answers.take(gnome, QStringLiteral("gtk-theme"), QStringLiteral("Adwaita-dark"));
    answers.take(gnomeAccess, scheme, 1U);
    answers.take(QStringLiteral("org.example"), scheme, 1U);
    answers.take({}, {}, {});
    QVERIFY(answers.wishes() == DesktopWishes());
}

void PortalAnswersTest::anAccentThatIsNoneSaysNothing()
{
    PortalAnswers answers;
    for (const QVariant &value : {QVariant(), QVariant(1U), QVariant(QStringLiteral("(ddd)"))})
        answers.take(common, QStringLiteral("accent-color"), value);
    QVERIFY(!answers.wishes().accent);
}

void PortalAnswersTest::textSize_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<double>("points");
    QTest::addColumn<double>("factor");
    const auto font = QStringLiteral("font-name");
    const auto scaling = QStringLiteral("text-scaling-factor");
    QTest::newRow("a font") << font << QVariant(QStringLiteral("Cantarell 11")) << 11.0 << -1.0;
    QTest::newRow("a font of two words")
        << font << QVariant(QStringLiteral("Noto Sans Bold 14")) << 14.0 << -1.0;
    QTest::newRow("parts of a point")
        << font << QVariant(QStringLiteral("Cantarell 10.5")) << 10.5 << -1.0;
    QTest::newRow("no size") << font << QVariant(QStringLiteral("Cantarell")) << -1.0 << -1.0;
    QTest::newRow("no font") << font << QVariant(QString()) << -1.0 << -1.0;
    QTest::newRow("below nothing")
        << font << QVariant(QStringLiteral("Cantarell -3")) << -1.0 << -1.0;
    QTest::newRow("larger") << scaling << QVariant(1.25) << -1.0 << 1.25;
    QTest::newRow("a word") << scaling << QVariant(QStringLiteral("1.25")) << -1.0 << -1.0;
    QTest::newRow("nothing") << scaling << QVariant(0.0) << -1.0 << -1.0;
    QTest::newRow("no number") << scaling << QVariant(qQNaN()) << -1.0 << -1.0;
}

void PortalAnswersTest::textSize()
{
    QFETCH(QString, name);
    QFETCH(QVariant, value);
    PortalAnswers answers;
    answers.take(gnome, name, value);
    QTEST(answers.wishes().fontPoints.value_or(-1), "points");
    QTEST(answers.wishes().textFactor.value_or(-1), "factor");
}

void PortalAnswersTest::everyKeyIsAskedFor()
{
    QStringList keys;
    for (const PortalAnswers::Key &key : PortalAnswers::keys())
        keys.append(QString::fromLatin1(key.space) + QLatin1Char(' ') +
                    QString::fromLatin1(key.name));
    QCOMPARE(keys, QStringList({QStringLiteral("org.freedesktop.appearance color-scheme"),
                                QStringLiteral("org.freedesktop.appearance contrast"),
                                QStringLiteral("org.freedesktop.appearance reduced-motion"),
                                QStringLiteral("org.freedesktop.appearance accent-color"),
                                QStringLiteral("org.gnome.desktop.interface color-scheme"),
                                QStringLiteral("org.gnome.desktop.interface enable-animations"),
                                QStringLiteral("org.gnome.desktop.interface font-name"),
                                QStringLiteral("org.gnome.desktop.interface text-scaling-factor"),
                                QStringLiteral("org.gnome.desktop.a11y.interface high-contrast")}));
}

const RegisteredTest<PortalAnswersTest> registered("PortalAnswers");

} // namespace Loadwick

#include "PortalAnswersTest.moc"
