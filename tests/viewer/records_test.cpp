#include "records.h"

#include <gmock/gmock.h>

#include <map>
#include <random>

using namespace vornix::viewer;
using testing::ElementsAre;
using testing::IsEmpty;

using Side = Records::Side;

namespace {

std::vector<std::pair<int, int>> AddedTo(const Records& records)
{
    std::vector<std::pair<int, int>> added;
    for (const Records::Addition& addition : records.Added())
        added.emplace_back(addition.record, addition.behind);
    return added;
}

std::vector<std::string> NamesOf(const Records& records)
{
    std::vector<std::string> names;
    for (const int record : records.InOrder())
        names.push_back(records.NameOf(record));
    return names;
}

} // namespace

TEST(Records, AreThoseOfTheSourceAtFirst)
{
    const Records records(3);
    EXPECT_EQ(records.Count(), 3);
    EXPECT_THAT(records.InOrder(), ElementsAre(0, 1, 2));
    EXPECT_THAT(NamesOf(records), ElementsAre("1", "2", "3"));
    EXPECT_THAT(records.Removed(), IsEmpty());
    EXPECT_THAT(records.Added(), IsEmpty());
    EXPECT_FALSE(records.IsNew(2));
    EXPECT_EQ(Records(0).Count(), 0);
}

TEST(Records, AreAddedBesideOthers)
{
    Records records(2);
    records.Add(2, 1, Side::Before);
    records.Add(3, 2, Side::Behind);
    records.Add(4, 1, Side::Behind);
    records.Add(5, -1, Side::Behind);
    EXPECT_THAT(records.InOrder(), ElementsAre(5, 0, 2, 3, 1, 4));
    EXPECT_THAT(NamesOf(records), ElementsAre("+4", "1", "+1", "+2", "2", "+3"));
    EXPECT_THAT(AddedTo(records), ElementsAre(std::pair(5, -1), std::pair(2, 0), std::pair(3, 0), std::pair(4, 1)));
    EXPECT_TRUE(records.IsNew(4));
    EXPECT_THROW(records.Add(9, 0, Side::Before), std::logic_error) << "a number is missing";
}

TEST(Records, AreNotAddedBehindOneThatGoes)
{
    Records records(2);
    records.Add(2, 1, Side::Behind);
    records.Remove(1);
    EXPECT_THAT(AddedTo(records), ElementsAre(std::pair(2, 0)));
    records.Remove(0);
    EXPECT_THAT(AddedTo(records), ElementsAre(std::pair(2, -1)));
    EXPECT_THROW(records.Add(3, 0, Side::Behind), std::logic_error);
}

TEST(Records, ComeBackToTheirPlaceUntilTheyAreSaved)
{
    Records records(3);
    records.Add(3, 0, Side::Behind);
    records.Remove(1);
    records.Remove(3);
    EXPECT_THAT(records.InOrder(), ElementsAre(0, 2));
    EXPECT_THAT(records.Removed(), ElementsAre(1)) << "the source never had the other one";
    EXPECT_THAT(records.Added(), IsEmpty());
    EXPECT_FALSE(records.IsNew(3));
    EXPECT_TRUE(records.Restore(3));
    EXPECT_TRUE(records.Restore(1));
    EXPECT_FALSE(records.Restore(1)) << "it is there";
    EXPECT_THAT(records.InOrder(), ElementsAre(0, 3, 1, 2));
    EXPECT_THROW(
        {
            records.Remove(2);
            records.Remove(2);
        },
        std::logic_error);
}

TEST(Records, AreCountedAnewWhenTheyAreSaved)
{
    Records records(3);
    records.Add(3, 0, Side::Behind);
    records.Add(4, 0, Side::Behind);
    records.Remove(1);
    records.Remove(3);
    records.NoteSaved();
    EXPECT_THAT(records.InOrder(), ElementsAre(0, 4, 2));
    EXPECT_THAT(NamesOf(records), ElementsAre("1", "2", "3"));
    EXPECT_THAT(records.Removed(), IsEmpty());
    EXPECT_THAT(records.Added(), IsEmpty());
    EXPECT_FALSE(records.Restore(1)) << "it is gone";
    EXPECT_FALSE(records.Restore(3));
    records.Add(5, 4, Side::Behind);
    EXPECT_EQ(records.NameOf(5), "+1");
    EXPECT_THAT(AddedTo(records), ElementsAre(std::pair(5, 4)));
}

// A list from which a saved state is made by what Removed and Added say.
TEST(Records, TellAllThatTheSourceHasToDo)
{
    std::mt19937 random(4);
    for (int round = 0; round < 300; ++round) {
        std::vector<int> source(random() % 6);
        for (std::size_t record = 0; record < source.size(); ++record)
            source[record] = static_cast<int>(record);
        Records records(static_cast<int>(source.size()));
        int next = records.Count();
        for (int step = 0; step < 30; ++step) {
            const std::vector<int> there = records.InOrder();
            const int some = there.empty() ? -1 : there[random() % there.size()];
            switch (random() % 8) {
            case 0: {
                std::vector<int> saved;
                const auto addBehind = [&](int record) {
                    for (const Records::Addition& addition : records.Added()) {
                        if (addition.behind == record)
                            saved.push_back(addition.record);
                    }
                };
                const std::vector<int> removed = records.Removed();
                addBehind(-1);
                for (const int record : source) {
                    if (std::count(removed.begin(), removed.end(), record) > 0)
                        continue;
                    saved.push_back(record);
                    addBehind(record);
                }
                ASSERT_EQ(saved, records.InOrder());
                source = saved;
                records.NoteSaved();
                break;
            }
            case 1:
            case 2:
            case 3:
                records.Add(next++, some, random() % 2 ? Side::Before : Side::Behind);
                break;
            case 4:
                if (next > 0)
                    records.Restore(static_cast<int>(random() % static_cast<unsigned>(next)));
                break;
            default:
                if (some >= 0)
                    records.Remove(some);
            }
            ASSERT_EQ(static_cast<int>(records.InOrder().size()), records.Count());
        }
    }
}
