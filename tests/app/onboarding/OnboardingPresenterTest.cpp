#include "onboarding/OnboardingPresenter.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include "base/QtText.h"
#include "support/ScanFakes.h"
#include "support/SteppingDispatcher.h"
#include "support/TestRegistry.h"

namespace Loadwick {

class OnboardingPresenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_store = std::make_shared<FakeCompletionStore>();
        m_dispatcher = std::make_shared<SteppingDispatcher>();
        m_onboarding = std::make_unique<OnboardingPresenter>(m_store);
    }

    void textsPassThroughUnchanged()
    {
        QCOMPARE(m_onboarding->stepCount(), 4);
        for (const OnboardingStep &step : OnboardingFlow::steps) {
            const OnboardingStepTexts &shown = *m_onboarding->step(step.index);
            QCOMPARE(shown.title(), qtText(step.title));
            QCOMPARE(shown.body(), qtText(step.body));
            QCOMPARE(shown.footnote(), step.footnote ? qtText(*step.footnote) : QString());
            QCOMPARE(shown.primaryTitle(), qtText(step.primaryTitle));
        }
    }

    void textsKeepTheirDashesAndApostrophes()
    {
        QCOMPARE(m_onboarding->step(3)->footnote(),
                 QStringLiteral("Total tokens — from Claude, exact. "
                                "Category breakdown — Loadwick's estimate."));
        QVERIFY(m_onboarding->step(2)->body().contains(QStringLiteral("about 1–2 minutes")));
    }

    void eachStepHasItsPicture()
    {
        using Illustration = OnboardingStepTexts::Illustration;
        QCOMPARE(m_onboarding->step(0)->illustration(), Illustration::MeasureIcon);
        QCOMPARE(m_onboarding->step(1)->illustration(), Illustration::ToolbarPointer);
        QCOMPARE(m_onboarding->step(2)->illustration(), Illustration::ScanSpinner);
        QCOMPARE(m_onboarding->step(3)->illustration(), Illustration::BandLegend);
    }

    void theFirstStepShowsNoBackAndTheLastNoSkip()
    {
        for (int index = 0; index < 4; ++index) {
            QCOMPARE(m_onboarding->step(index)->showsBack(), index != 0);
            QCOMPARE(m_onboarding->step(index)->showsSkip(), index != 3);
        }
        QCOMPARE(m_onboarding->step(3)->primaryTitle(), QStringLiteral("Got it"));
    }

    void theLegendHasARowPerBandInTheirOrder()
    {
        const QAbstractItemModel &legend = *m_onboarding->legend();
        QCOMPARE(legend.rowCount(), 3);
        const QStringList titles{QStringLiteral("Lean"), QStringLiteral("Heavy"),
                                 QStringLiteral("Excessive")};
        const QStringList details{QStringLiteral("fine as-is"), QStringLiteral("worth trimming"),
                                  QStringLiteral("actively hurting the session")};
        for (int row = 0; row < 3; ++row) {
            QCOMPARE(OnboardingFlow::legend.at(std::size_t(row)).band,
                     OpinionBand(OpinionBand::all.at(std::size_t(row))));
            QCOMPARE(text(legend, row, "title"), titles.at(row));
            QCOMPARE(text(legend, row, "detail"), details.at(row));
        }
        QCOMPARE(m_onboarding->legendCaption(),
                 QStringLiteral("These bands are this app's opinion, not an industry standard."));
    }

    void movesForwardAndBack()
    {
        QSignalSpy moved(m_onboarding.get(), &OnboardingPresenter::moved);
        QCOMPARE(m_onboarding->position(), QStringLiteral("Step 1 of 4"));
        m_onboarding->advance();
        m_onboarding->advance();
        QCOMPARE(m_onboarding->currentIndex(), 2);
        QCOMPARE(m_onboarding->currentStep(), m_onboarding->step(2));
        QCOMPARE(m_onboarding->position(), QStringLiteral("Step 3 of 4"));
        m_onboarding->goBack();
        QCOMPARE(m_onboarding->currentIndex(), 1);
        QCOMPARE(moved.count(), 3);
        QCOMPARE(m_store->writes, 0);
    }

    void goBackOnTheFirstStepStaysThere()
    {
        m_onboarding->goBack();
        QCOMPARE(m_onboarding->currentIndex(), 0);
        QVERIFY(!m_onboarding->isFinished());
    }

    void advanceOnTheLastStepFinishesOnce()
    {
        QSignalSpy finished(m_onboarding.get(), &OnboardingPresenter::isFinishedChanged);
        for (int press = 0; press < 6; ++press)
            m_onboarding->advance();
        QVERIFY(m_onboarding->isFinished());
        QCOMPARE(m_onboarding->currentIndex(), 3);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(m_store->writes, 1);
        QVERIFY(m_store->completed);
    }

    void skipOnAnyStepFinishesThere_data()
    {
        QTest::addColumn<int>("step");
        for (int step = 0; step < 4; ++step)
            QTest::addRow("step %d", step) << step;
    }

    void skipOnAnyStepFinishesThere()
    {
        QFETCH(const int, step);
        for (int press = 0; press < step; ++press)
            m_onboarding->advance();
        m_onboarding->skip();
        QVERIFY(m_onboarding->isFinished());
        QCOMPARE(m_onboarding->currentIndex(), step);
        QVERIFY(m_store->completed);
    }

    void doesNotMoveOnceFinished()
    {
        m_onboarding->advance();
        m_onboarding->skip();
        m_onboarding->advance();
        m_onboarding->goBack();
        m_onboarding->skip();
        QCOMPARE(m_onboarding->currentIndex(), 1);
        QCOMPARE(m_store->writes, 1);
    }

    void aFirstLaunchIsPresentedAfterThreeHundredMilliseconds()
    {
        QElapsedTimer time;
        time.start();
        ask();
        QVERIFY(!m_onboarding->isPresented());
        QTRY_VERIFY(m_onboarding->isPresented());
        QVERIFY2(time.elapsed() >= 300, qPrintable(QString::number(time.elapsed())));
        QCOMPARE(m_store->writes, 0);
    }

    void staysClosedOnALaterLaunch()
    {
        m_store->completed = true;
        ask();
        QTest::qWait(450);
        QVERIFY(!m_onboarding->isPresented());
    }

    void asksTheStoreInTheBackground()
    {
        m_onboarding->presentOnboardingIfFirstLaunch(m_dispatcher);
        QCOMPARE(m_dispatcher->backgroundCount(), std::size_t(1));
        QTest::qWait(450);
        QVERIFY(!m_onboarding->isPresented());
        m_dispatcher->runAll();
        QTRY_VERIFY(m_onboarding->isPresented());
    }

    void staysClosedWithoutAThread()
    {
        m_dispatcher->refuseBackground();
        ask();
        QTest::qWait(450);
        QVERIFY(!m_onboarding->isPresented());
    }

    void staysClosedWhenCancelledInTime()
    {
        ask();
        QTest::qWait(100);
        m_onboarding->cancel();
        QTest::qWait(400);
        QVERIFY(!m_onboarding->isPresented());
    }

    void ignoresAnAnswerAfterCancellation()
    {
        m_onboarding->presentOnboardingIfFirstLaunch(m_dispatcher);
        m_onboarding->cancel();
        m_dispatcher->runAll();
        QTest::qWait(450);
        QVERIFY(!m_onboarding->isPresented());
    }

    void dropsAnAnswerAfterDestruction()
    {
        m_onboarding->presentOnboardingIfFirstLaunch(m_dispatcher);
        m_onboarding.reset();
        m_dispatcher->runAll();
    }

    void aSecondRequestLeavesAnOpenSheetAlone()
    {
        present();
        m_onboarding->advance();
        ask();
        QTest::qWait(450);
        QVERIFY(m_onboarding->isPresented());
        QCOMPARE(m_onboarding->currentIndex(), 1);
    }

    void aNewSheetStartsAtTheFirstStep()
    {
        present();
        m_onboarding->advance();
        m_onboarding->skip();
        m_onboarding->dismiss();
        QVERIFY(!m_onboarding->isPresented());
        m_store->completed = false;
        present();
        QCOMPARE(m_onboarding->currentIndex(), 0);
        QVERIFY(!m_onboarding->isFinished());
    }

    void signalsADismissalOnce()
    {
        present();
        QSignalSpy changed(m_onboarding.get(), &OnboardingPresenter::isPresentedChanged);
        m_onboarding->dismiss();
        m_onboarding->dismiss();
        QCOMPARE(changed.count(), 1);
    }

private:
    static QString text(const QAbstractItemModel &model, int row, const QByteArray &name)
    {
        return model.data(model.index(row, 0), model.roleNames().key(name)).toString();
    }

    void ask()
    {
        m_onboarding->presentOnboardingIfFirstLaunch(m_dispatcher);
        m_dispatcher->runAll();
    }

    void present()
    {
        ask();
        QTRY_VERIFY(m_onboarding->isPresented());
    }

    std::shared_ptr<FakeCompletionStore> m_store;
    std::shared_ptr<SteppingDispatcher> m_dispatcher;
    std::unique_ptr<OnboardingPresenter> m_onboarding;
};

const RegisteredTest<OnboardingPresenterTest> registered("OnboardingPresenter");

} // namespace Loadwick

#include "OnboardingPresenterTest.moc"
