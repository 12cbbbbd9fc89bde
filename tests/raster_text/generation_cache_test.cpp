#include "text/generation_cache.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

struct Entry {
    std::uint64_t hash;
    std::uint64_t key;
    std::size_t bytes;
    std::size_t Bytes() const { return bytes; }
};

Entry* Find(GenerationCache<Entry>& cache, std::uint64_t key)
{
    return cache.Find(key * 31, [key](const Entry& entry) { return entry.key == key; });
}

void Add(GenerationCache<Entry>& cache, std::uint64_t key, std::size_t bytes = sizeof(Entry))
{
    Entry* entry = cache.Add(key * 31, bytes);
    entry->key = key;
    entry->bytes = bytes;
}

TEST(GenerationCache, FindsWhatWasAdded)
{
    GenerationCache<Entry> cache(1 << 20, 1000);
    EXPECT_EQ(Find(cache, 1), nullptr);
    for (std::uint64_t key = 1; key <= 500; ++key)
        Add(cache, key);
    for (std::uint64_t key = 1; key <= 500; ++key) {
        ASSERT_NE(Find(cache, key), nullptr);
        EXPECT_EQ(Find(cache, key)->key, key);
    }
    EXPECT_EQ(Find(cache, 501), nullptr);
}

TEST(GenerationCache, EqualHashesAreToldApart)
{
    GenerationCache<Entry> cache(1 << 20, 1000);
    for (std::uint64_t key = 1; key <= 10; ++key)
        *cache.Add(5, sizeof(Entry)) = { 5, key, sizeof(Entry) };
    for (std::uint64_t key = 1; key <= 10; ++key)
        EXPECT_EQ(cache.Find(5, [key](const Entry& entry) { return entry.key == key; })->key, key);
}

TEST(GenerationCache, HoldsAtMostTwiceItsLimits)
{
    GenerationCache<Entry> byRecords(1 << 20, 100);
    GenerationCache<Entry> byBytes(10000, 100000);
    for (std::uint64_t key = 1; key <= 5000; ++key) {
        Add(byRecords, key);
        Add(byBytes, key, 200);
        EXPECT_LE(byRecords.Records(), 2 * 100u + 1);
        EXPECT_LE(byBytes.Bytes(), 2 * (10000u + 208));
    }
    EXPECT_EQ(Find(byRecords, 1), nullptr);
    EXPECT_NE(Find(byRecords, 5000), nullptr);
}

TEST(GenerationCache, KeepsWhatIsUsed)
{
    GenerationCache<Entry> cache(1 << 20, 100);
    Add(cache, 7);
    for (std::uint64_t key = 100; key <= 5000; ++key) {
        Add(cache, key);
        ASSERT_NE(Find(cache, 7), nullptr) << key;
    }
}

TEST(GenerationCache, AWorkingSetThatGrowsStaysBounded)
{
    GenerationCache<Entry> cache(1 << 20, 100);
    for (std::uint64_t round = 0; round < 50; ++round) {
        for (std::uint64_t key = 1; key <= 99 * (round + 1); ++key) {
            if (!Find(cache, key))
                Add(cache, key);
            EXPECT_LE(cache.Records(), 201u);
        }
    }
}

TEST(GenerationCache, LargeRecordsAreGivenBack)
{
    GenerationCache<Entry> cache(100000, 1000);
    for (std::uint64_t key = 1; key <= 100; ++key) {
        Add(cache, key, 90000);
        EXPECT_LE(cache.Bytes(), 4 * 100000u);
    }
    cache.Clear();
    EXPECT_EQ(cache.Bytes(), 0u);
    EXPECT_EQ(Find(cache, 100), nullptr);
}

} // namespace
} // namespace vornix
