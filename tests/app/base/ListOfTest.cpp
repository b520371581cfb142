#include "base/ListOf.h"

#include <string>

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

struct Person
{
    QString name;
    int age = 0;
};

/// Counts up without a row in memory.
struct Numbers
{
    [[nodiscard]] std::size_t size() const { return 1'000'000; }
    int operator[](std::size_t index) const { return static_cast<int>(index); }
};

} // namespace

class ListOfTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_looks = 0;
        m_people.setRows({{QStringLiteral("Ada"), 36}, {QStringLiteral("Alan"), 41}});
    }

    void returnsEachValueByRoleName()
    {
        QCOMPARE(m_people.roleNames().size(), 2);
        const int age = m_people.roleNames().key("age");
        QCOMPARE(m_people.data(m_people.index(0), age), QVariant(36));
        QCOMPARE(m_people.text(1, QStringLiteral("name")), QStringLiteral("Alan"));
        QCOMPARE(m_people.text(1, QStringLiteral("age")), QStringLiteral("41"));
    }

    void isEmptyOutOfRange()
    {
        QCOMPARE(m_people.text(-1, QStringLiteral("name")), QString());
        QCOMPARE(m_people.text(2, QStringLiteral("name")), QString());
        QCOMPARE(m_people.text(0, QStringLiteral("height")), QString());
        QVERIFY(!m_people.data(m_people.index(0), Qt::DisplayRole).isValid());
        QVERIFY(!m_people.data(m_people.index(0), Qt::UserRole + 2).isValid());
        QCOMPARE(m_people.rowCount(m_people.index(0)), 0);
    }

    void composesTextLazily()
    {
        QCOMPARE(m_looks, 0);
        static_cast<void>(m_people.text(0, QStringLiteral("name")));
        QCOMPARE(m_looks, 1);
    }

    void copiesARowsText()
    {
        m_people.copy(0, QStringLiteral("name"));
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("Ada"));
        m_people.copy(2, QStringLiteral("name"));
        m_people.copy(-1, QStringLiteral("name"));
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("Ada"));
    }

    void behavesAsAModelWhileItsRowsChange()
    {
        const QAbstractItemModelTester tester(&m_people);
        const QSignalSpy resets(&m_people, &RowList::modelReset);
        const QSignalSpy counts(&m_people, &RowList::countChanged);
        m_people.setRows({{QStringLiteral("Grace"), 85}});
        QCOMPARE(m_people.property("count"), QVariant(1));
        m_people.setRows({});
        QCOMPARE(resets.count(), 2);
        QCOMPARE(counts.count(), 2);
        QCOMPARE(m_people.count(), 0);
    }

    void anUpdateOfEqualSizeKeepsDelegates()
    {
        const QAbstractItemModelTester tester(&m_people);
        const QSignalSpy resets(&m_people, &RowList::modelReset);
        const QSignalSpy changes(&m_people, &RowList::dataChanged);
        m_people.updateRows({{QStringLiteral("Grace"), 85}, {QStringLiteral("Edsger"), 72}});
        QCOMPARE(m_people.text(1, QStringLiteral("name")), QStringLiteral("Edsger"));
        QCOMPARE(changes.count(), 1);
        QCOMPARE(resets.count(), 0);
        m_people.updateRows({});
        QCOMPARE(resets.count(), 1);
        m_people.updateRows({});
        QCOMPARE(changes.count(), 1);
        QCOMPARE(resets.count(), 1);
    }

    void acceptsAnySequenceOfRows()
    {
        const ListOf<int, Numbers> numbers({{"double", [](int number) { return number * 2; }}});
        QCOMPARE(numbers.count(), 1'000'000);
        QCOMPARE(numbers.text(999'999, QStringLiteral("double")), QStringLiteral("1999998"));
    }

private:
    int m_looks = 0;
    ListOf<Person> m_people{{
        {"name",
         [this](const Person &person) {
             ++m_looks;
             return person.name;
         }},
        {"age", [](const Person &person) { return person.age; }},
    }};
};

const RegisteredTest<ListOfTest> registered("ListOf");

} // namespace Loadwick

#include "ListOfTest.moc"
