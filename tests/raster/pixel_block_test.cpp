#include "pixel_block.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <thread>
#include <vector>

using namespace vornix;

TEST(PixelBlock, IsUsedAgainForTheSameSize)
{
    u32* first = nullptr;
    {
        const PixelBlock block = PixelBlock::Allocate(5000);
        first = block.Data();
    }
    const PixelBlock again = PixelBlock::Allocate(4990);
    EXPECT_EQ(again.Data(), first);
    const PixelBlock other = PixelBlock::Allocate(5000);
    EXPECT_NE(other.Data(), first);
}

TEST(PixelBlock, IsReleasedByTheLastOfItsCopies)
{
    PixelBlock first = PixelBlock::Allocate(100000);
    const std::size_t before = PixelBlock::PooledBytes();
    PixelBlock second = first;
    EXPECT_EQ(second.Data(), first.Data());
    first = PixelBlock();
    EXPECT_EQ(PixelBlock::PooledBytes(), before);
    second.Data()[99999] = 1;
    second = PixelBlock();
    EXPECT_GE(PixelBlock::PooledBytes(), before + 100000 * sizeof(u32));
}

TEST(PixelBlock, HoldsWhatWasAskedForInEverySize)
{
    for (std::size_t count : { 0, 1, 1023, 1024, 1025, 1280, 1281, 2048, 2049, 40000, 1000001 }) {
        const PixelBlock block = PixelBlock::Allocate(count);
        ASSERT_TRUE(block);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block.Data()) % 64, 0u);
        for (std::size_t i = 0; i < count; ++i)
            block.Data()[i] = static_cast<u32>(i);
    }
}

TEST(PixelBlock, KeepsNoMoreThanItsBound)
{
    constexpr std::size_t Count = 3 << 20;
    std::vector<PixelBlock> blocks;
    for (int i = 0; i < 8; ++i)
        blocks.push_back(PixelBlock::Allocate(Count));
    blocks.clear();
    EXPECT_LE(PixelBlock::PooledBytes(), PixelBlock::MaxPooledBytes);
    EXPECT_GE(PixelBlock::PooledBytes(), Count * sizeof(u32));
}

TEST(PixelBlock, TooLargeIsEmpty)
{
    EXPECT_FALSE(PixelBlock::Allocate(std::numeric_limits<std::size_t>::max()));
    EXPECT_FALSE(PixelBlock::Allocate(std::numeric_limits<std::size_t>::max() / 8));
    EXPECT_EQ(PixelBlock().Data(), nullptr);
}

TEST(PixelBlock, MayBeUsedByManyThreads)
{
    std::vector<std::thread> threads;
    std::vector<int> wrong(4);
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([thread, &wrong] {
            for (int round = 0; round < 2000; ++round) {
                const PixelBlock block = PixelBlock::Allocate(static_cast<std::size_t>(1000 + round % 7 * 1000));
                block.Data()[0] = static_cast<u32>(thread);
                const PixelBlock copy = block;
                wrong[static_cast<std::size_t>(thread)] += copy.Data()[0] != static_cast<u32>(thread) ? 1 : 0;
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(wrong, std::vector<int>(4));
}
