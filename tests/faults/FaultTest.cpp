#include "faults/driver/Fault.h"

#include <cerrno>

#include <gtest/gtest.h>

namespace Faults {

TEST(FaultTest, isReplayedFromItsReport)
{
    for (const CallRefusals &refusals : callRefusals())
        for (const int number : refusals.errorNumbers)
            for (const Mode mode : modesOf(number)) {
                const Fault fault{.operation = "history-load",
                                  .call = refusals.call,
                                  .errorNumber = number,
                                  .nth = 17,
                                  .mode = mode};
                const std::optional<Fault> read = Fault::fromText(fault.text());
                ASSERT_TRUE(read) << fault.text();
                EXPECT_EQ(read->text(), fault.text());
            }
}

TEST(FaultTest, rejectsOtherText)
{
    EXPECT_TRUE(Fault::fromText("history-load,read,EIO,1,once"));
    for (const char *text : {"", "history-load", "history-load,read,EIO,1",
                             "history-load,read,EIO,1,once,more", "history-load,reads,EIO,1,once",
                             "history-load,read,EFOO,1,once", "history-load,read,EIO,0,once",
                             "history-load,read,EIO,x,once", "history-load,read,EIO,1,twice"})
        EXPECT_FALSE(Fault::fromText(text)) << text;
}

TEST(FaultTest, listsTheKindsInEnumerationOrder)
{
    ASSERT_EQ(callRefusals().size(), callKinds);
    for (std::size_t kind = 0; kind < callKinds; ++kind)
        EXPECT_EQ(callRefusals()[kind].call, static_cast<Call>(kind));
}

TEST(FaultTest, limitsOnlyInterruptionsToABurst)
{
    EXPECT_EQ(modesOf(EINTR).back(), Mode::burst);
    EXPECT_EQ(modesOf(EIO).back(), Mode::always);
    EXPECT_EQ(Fault{.mode = Mode::once}.count(), 1);
    EXPECT_EQ(Fault{.mode = Mode::burst}.count(), 100);
    EXPECT_GT(Fault{.mode = Mode::always}.count(), 1'000'000'000);
}

TEST(FaultTest, distinguishesTransientErrors)
{
    for (const int number : {ENOMEM, EMFILE, ENFILE, EINTR, EAGAIN})
        EXPECT_TRUE(Fault{.errorNumber = number}.isTransient());
    for (const int number : {EIO, EACCES, EROFS})
        EXPECT_FALSE(Fault{.errorNumber = number}.isTransient());
}

TEST(FaultTest, excusesNothingAfterOneInterruption)
{
    for (const Call call : {Call::fsync, Call::write, Call::mkostemp, Call::read, Call::poll,
                            Call::waitid, Call::open, Call::opendir, Call::stat}) {
        EXPECT_TRUE((Fault{.call = call, .errorNumber = EINTR}.isToBeRepeated()));
        EXPECT_FALSE((Fault{.call = call, .errorNumber = EIO}.isToBeRepeated()));
        EXPECT_FALSE(
            (Fault{.call = call, .errorNumber = EINTR, .mode = Mode::burst}).isToBeRepeated());
    }
}

} // namespace Faults
