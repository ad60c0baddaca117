// Line buffers that are kept, and those that are not.
#include "Trace/lines/LineBuffers.h"

#include <string>

#include <gtest/gtest.h>

namespace {

constexpr std::size_t kMegabyte = 1024 * 1024;

std::unique_ptr<CLineBuffer> WithText(CLineBuffers &buffers, std::size_t size)
{
    auto line = buffers.Take();
    line->Append(std::string(size, 'a'));
    return line;
}

TEST(LineBuffersTest, BufferThatCameBackIsTakenAgainEmptyWithItsRoom)
{
    CLineBuffers buffers;
    auto line = WithText(buffers, kMegabyte);
    const CLineBuffer *const same = line.get();
    buffers.GiveBack(std::move(line));
    line = buffers.Take();
    EXPECT_EQ(line.get(), same);
    EXPECT_TRUE(line->Text().empty());
    EXPECT_GE(line->Capacity(), kMegabyte);
}

TEST(LineBuffersTest, BufferOfAVeryLongLineIsNotKept)
{
    CLineBuffers buffers;
    buffers.GiveBack(WithText(buffers, 5 * kMegabyte));
    EXPECT_LT(buffers.Take()->Capacity(), kMegabyte);
}

TEST(LineBuffersTest, NoBufferIsNoneToKeep)
{
    CLineBuffers buffers;
    buffers.GiveBack(nullptr);
    EXPECT_NE(buffers.Take(), nullptr);
}

}  // namespace
