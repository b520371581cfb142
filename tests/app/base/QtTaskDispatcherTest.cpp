#include "base/QtTaskDispatcher.h"

#include <atomic>
#include <future>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

#include <QCoreApplication>
#include <QTest>

#include "support/SteppingDispatcher.h"
#include "support/TestRegistry.h"

namespace Loadwick {

class QtTaskDispatcherTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsBackgroundWorkOnItsOwnThread()
    {
        QObject interface;
        QtTaskDispatcher dispatcher(interface);
        std::promise<std::thread::id> promise;
        dispatcher.runInBackground([&promise] { promise.set_value(std::this_thread::get_id()); });
        QVERIFY(promise.get_future().get() != std::this_thread::get_id());
    }

    void freesFinishedWork()
    {
        QObject interface;
        QtTaskDispatcher dispatcher(interface);
        auto owned = std::make_shared<int>(1);
        const std::weak_ptr<int> watched = owned;
        dispatcher.runInBackground([owned = std::move(owned)] {});
        QTRY_VERIFY(watched.expired());
    }

    void postsToTheInterfaceThreadInOrder()
    {
        QObject interface;
        QtTaskDispatcher dispatcher(interface);
        std::vector<int> order;
        const auto here = std::this_thread::get_id();
        dispatcher.runInBackground([&] {
            for (int number = 0; number < 100; ++number)
                dispatcher.postToInterface([&order, number, here] {
                    order.push_back(std::this_thread::get_id() == here ? number : -1);
                });
        });
        QTRY_COMPARE(order.size(), std::size_t(100));
        for (int number = 0; number < 100; ++number)
            QCOMPARE(order[static_cast<std::size_t>(number)], number);
    }

    void neverRunsAPostSynchronously()
    {
        QObject interface;
        QtTaskDispatcher dispatcher(interface);
        bool isRun = false;
        dispatcher.postToInterface([&isRun] { isRun = true; });
        QVERIFY(!isRun);
        QTRY_VERIFY(isRun);
    }

    void dropsPostsAfterTheInterfaceIsDestroyed()
    {
        auto interface = std::make_unique<QObject>();
        QtTaskDispatcher dispatcher(*interface);
        interface.reset();
        auto owned = std::make_shared<int>(1);
        const std::weak_ptr<int> watched = owned;
        dispatcher.postToInterface([owned = std::move(owned)] { QFAIL("must not run"); });
        QCoreApplication::processEvents();
        QVERIFY(watched.expired());
    }

    void dropsPendingPostsWhenTheInterfaceIsDestroyed()
    {
        auto interface = std::make_unique<QObject>();
        QtTaskDispatcher dispatcher(*interface);
        auto owned = std::make_shared<int>(1);
        const std::weak_ptr<int> watched = owned;
        dispatcher.postToInterface([owned = std::move(owned)] { QFAIL("must not run"); });
        interface.reset();
        QVERIFY(watched.expired());
        QCoreApplication::processEvents();
    }

    void aLateThreadMayPostAndDropTheDispatcher()
    {
        auto interface = std::make_unique<QObject>();
        auto dispatcher = std::make_shared<QtTaskDispatcher>(*interface);
        std::promise<void> gone;
        std::promise<void> done;
        dispatcher->runInBackground([dispatcher, late = gone.get_future().share(), &done] {
            late.wait();
            dispatcher->postToInterface([] { QFAIL("must not run"); });
            done.set_value();
        });
        dispatcher.reset();
        interface.reset();
        gone.set_value();
        done.get_future().wait();
        QCoreApplication::processEvents();
    }

    void survivesPostsDuringTheInterfacesDestruction()
    {
        for (int round = 0; round < 50; ++round) {
            auto interface = std::make_unique<QObject>();
            auto dispatcher = std::make_shared<QtTaskDispatcher>(*interface);
            std::thread poster([dispatcher] {
                for (int number = 0; number < 20; ++number)
                    dispatcher->postToInterface([] {});
            });
            interface.reset();
            poster.join();
        }
    }

    void handsTheValueOfBackgroundWorkToTheInterfaceThread()
    {
        QObject interface;
        const auto dispatcher = std::make_shared<QtTaskDispatcher>(interface);
        const auto here = std::this_thread::get_id();
        std::optional<std::thread::id> worker;
        std::thread::id receiver;
        const auto receive = [&](std::thread::id value) {
            worker = value;
            receiver = std::this_thread::get_id();
        };
        QVERIFY(inBackground(&interface, dispatcher, &std::this_thread::get_id, receive));
        QTRY_VERIFY(worker);
        QVERIFY(*worker != here);
        QVERIFY(receiver == here);
    }

    void dropsTheValueOfADestroyedReceiver()
    {
        const auto dispatcher = std::make_shared<SteppingDispatcher>();
        auto receiver = std::make_unique<QObject>();
        bool isReceived = false;
        QVERIFY(inBackground(
            receiver.get(), dispatcher, [] { return 1; }, [&](int) { isReceived = true; }));
        dispatcher->runBackground();
        receiver.reset();
        dispatcher->runAll();
        QVERIFY(!isReceived);
    }

    void reportsThatNoThreadCouldBeStarted()
    {
        const auto dispatcher = std::make_shared<SteppingDispatcher>();
        dispatcher->refuseBackground();
        QObject receiver;
        const auto work = [] { return 1; };
        const auto done = [](int) {};
        QVERIFY(!inBackground(&receiver, dispatcher, work, done));
    }
};

const RegisteredTest<QtTaskDispatcherTest> registered("QtTaskDispatcher");

} // namespace Loadwick

#include "QtTaskDispatcherTest.moc"
