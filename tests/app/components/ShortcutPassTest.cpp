#include "components/ShortcutPass.h"

#include "support/TestRegistry.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QSignalSpy>
#include <QTest>

namespace Loadwick {
namespace {

/// Claims every key, as a read-only text edit does.
class ClaimingItem final : public QQuickItem
{
public:
    bool event(QEvent *event) override
    {
        event->accept();
        return true;
    }
};

bool isClaimed(QQuickItem &item, QEvent::Type type)
{
    QKeyEvent event(type, Qt::Key_F6, Qt::NoModifier);
    QCoreApplication::sendEvent(&item, &event);
    return event.isAccepted();
}

} // namespace

class ShortcutPassTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anItemThatClaimsKeysLetsShortcutsThrough()
    {
        ClaimingItem item;
        QVERIFY(isClaimed(item, QEvent::ShortcutOverride));
        ShortcutPass pass;
        pass.setItem(&item);
        QVERIFY(!isClaimed(item, QEvent::ShortcutOverride));
    }

    void otherKeysReachTheItem()
    {
        ClaimingItem item;
        ShortcutPass pass;
        pass.setItem(&item);
        QVERIFY(isClaimed(item, QEvent::KeyPress));
    }

    void aDetachedItemClaimsKeysAgain()
    {
        ClaimingItem item;
        ShortcutPass pass;
        const QSignalSpy changes(&pass, &ShortcutPass::itemChanged);
        pass.setItem(&item);
        pass.setItem(&item);
        pass.setItem(nullptr);
        QVERIFY(isClaimed(item, QEvent::ShortcutOverride));
        QCOMPARE(changes.size(), 2);
    }

    void outlivesItsItem()
    {
        ShortcutPass pass;
        {
            ClaimingItem item;
            pass.setItem(&item);
        }
        QCOMPARE(pass.item(), nullptr);
    }
};

const RegisteredTest<ShortcutPassTest> registered("ShortcutPass");

} // namespace Loadwick

#include "ShortcutPassTest.moc"
