#include "process/PipeDrain.h"

#include <string>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "posix/FileDescriptor.h"
#include "support/Stopwatch.h"

namespace Loadwick {

namespace {

struct Collected
{
    std::string text;
    std::size_t largestChunk = 0;

    void operator()(std::span<const char> chunk)
    {
        text.append(chunk.data(), chunk.size());
        largestChunk = std::max(largestChunk, chunk.size());
    }
};

bool drain(FileDescriptor descriptor, const ReaderDeadline &deadline, Collected &collected)
{
    return PipeDrain::run(std::move(descriptor), deadline, std::ref(collected));
}

void writeAll(const FileDescriptor &target, std::string_view text)
{
    while (!text.empty()) {
        const ssize_t count = write(target.number(), text.data(), text.size());
        ASSERT_GT(count, 0);
        text.remove_prefix(static_cast<std::size_t>(count));
    }
}

} // namespace

TEST(PipeDrainTest, hasNoDeadlineUntilOneIsSet)
{
    const ReaderDeadline deadline;
    EXPECT_EQ(deadline.expiry(), std::nullopt);
    EXPECT_FALSE(deadline.hasPassed());
}

TEST(PipeDrainTest, deadlinePassesAtItsMoment)
{
    ReaderDeadline deadline;
    deadline.setExpiry(deadlineAfter(60));
    EXPECT_FALSE(deadline.hasPassed());
    deadline.setExpiry(deadlineAfter(0));
    EXPECT_TRUE(deadline.hasPassed());
}

TEST(PipeDrainTest, readsToTheEndOfTheStream)
{
    Pipe pipe = Pipe::open();
    std::thread writer([&] {
        writeAll(pipe.writeEnd, "first ");
        std::this_thread::sleep_for(std::chrono::milliseconds(70));
        writeAll(pipe.writeEnd, "last");
        pipe.writeEnd.reset();
    });
    Collected collected;
    EXPECT_FALSE(drain(std::move(pipe.readEnd), {}, collected));
    EXPECT_EQ(collected.text, "first last");
    writer.join();
}

TEST(PipeDrainTest, handsOverAtMostOneBufferAtATime)
{
    Pipe pipe = Pipe::open();
    const std::string text(300'000, 'x');
    std::thread writer([&] {
        writeAll(pipe.writeEnd, text);
        pipe.writeEnd.reset();
    });
    Collected collected;
    EXPECT_FALSE(drain(std::move(pipe.readEnd), {}, collected));
    EXPECT_TRUE(collected.text == text);
    EXPECT_LE(collected.largestChunk, PipeDrain::bufferSize);
    writer.join();
}

TEST(PipeDrainTest, stopsAtItsDeadlineAndKeepsWhatItRead)
{
    Pipe pipe = Pipe::open();
    writeAll(pipe.writeEnd, "kept");
    ReaderDeadline deadline;
    deadline.setExpiry(deadlineAfter(0.08));
    const Stopwatch watch;
    Collected collected;
    EXPECT_TRUE(drain(std::move(pipe.readEnd), deadline, collected));
    EXPECT_GE(watch.seconds(), 0.08);
    EXPECT_EQ(collected.text, "kept");
}

TEST(PipeDrainTest, noticesADeadlineThatIsSetWhileItWaits)
{
    Pipe pipe = Pipe::open();
    ReaderDeadline deadline;
    std::thread setter([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        deadline.setExpiry(deadlineAfter(0));
    });
    Collected collected;
    EXPECT_TRUE(drain(std::move(pipe.readEnd), deadline, collected));
    setter.join();
}

TEST(PipeDrainTest, stopsAtItsDeadlineInAnEndlessStream)
{
    const FileDescriptor endless(open("/dev/zero", O_RDONLY | O_CLOEXEC));
    ReaderDeadline deadline;
    deadline.setExpiry(deadlineAfter(0.03));
    std::size_t byteCount = 0;
    EXPECT_TRUE(PipeDrain::run(endless.duplicate(), deadline,
                               [&](std::span<const char> chunk) { byteCount += chunk.size(); }));
    EXPECT_GT(byteCount, 0U);
}

TEST(PipeDrainTest, readsNothingPastItsDeadline)
{
    Pipe pipe = Pipe::open();
    writeAll(pipe.writeEnd, "too late");
    ReaderDeadline deadline;
    deadline.setExpiry(deadlineAfter(0));
    Collected collected;
    EXPECT_TRUE(drain(std::move(pipe.readEnd), deadline, collected));
    EXPECT_EQ(collected.text, "");
}

TEST(PipeDrainTest, endsOnAnError)
{
    Collected collected;
    const FileDescriptor folder(open("/", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    EXPECT_FALSE(drain(folder.duplicate(), {}, collected));
    EXPECT_EQ(collected.text, "");
}

TEST(PipeDrainTest, closesItsDescriptor)
{
    Pipe pipe = Pipe::open();
    const int number = pipe.readEnd.number();
    pipe.writeEnd.reset();
    Collected collected;
    EXPECT_FALSE(drain(std::move(pipe.readEnd), {}, collected));
    EXPECT_LT(fcntl(number, F_GETFD), 0);
}

} // namespace Loadwick
