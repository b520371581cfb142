#include "process/StreamReaders.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "posix/FileDescriptor.h"
#include "support/ProcessCensus.h"
#include "support/Stopwatch.h"

namespace Loadwick {

using Stream = OutputBox::Stream;

TEST(StreamReadersTest, readBothStreamsToTheirEnds)
{
    Pipe output = Pipe::open();
    Pipe error = Pipe::open();
    StreamReaders readers(100);
    readers.start(output.readEnd, Stream::standardOutput);
    readers.start(error.readEnd, Stream::standardError);
    ASSERT_EQ(write(output.writeEnd.number(), "out", 3), 3);
    ASSERT_EQ(write(error.writeEnd.number(), "error", 5), 5);
    output.writeEnd.reset();
    error.writeEnd.reset();
    EXPECT_TRUE(readers.finish(30));
    EXPECT_EQ(readers.box().take(Stream::standardOutput), "out");
    EXPECT_EQ(readers.box().take(Stream::standardError), "error");
}

TEST(StreamReadersTest, stopAfterTheirGraceAndKeepWhatTheyRead)
{
    const Pipe output = Pipe::open();
    StreamReaders readers(100);
    readers.start(output.readEnd, Stream::standardOutput);
    ASSERT_EQ(write(output.writeEnd.number(), "kept", 4), 4);
    const Stopwatch watch;
    EXPECT_FALSE(readers.finish(0.1));
    EXPECT_GE(watch.seconds(), 0.1);
    EXPECT_EQ(readers.box().take(Stream::standardOutput), "kept");
}

TEST(StreamReadersTest, leaveAStreamEmptyIfItCannotBeDuplicated)
{
    StreamReaders readers(100);
    readers.start(FileDescriptor(), Stream::standardOutput);
    EXPECT_TRUE(readers.finish(30));
    EXPECT_EQ(readers.box().take(Stream::standardOutput), "");
}

TEST(StreamReadersTest, endOnTheirOwnOnceAbandoned)
{
    const Pipe output = Pipe::open();
    const ProcessCensus before = ProcessCensus::now();
    {
        StreamReaders readers(100);
        readers.start(output.readEnd, Stream::standardOutput);
    }
    EXPECT_TRUE(eventually([&] { return ProcessCensus::now().isWithin(before); }));
}

} // namespace Loadwick
