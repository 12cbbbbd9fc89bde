// The rows of a table while rows are added and removed.
#pragma once

#include <string>
#include <vector>

namespace vornix::viewer {

// A record is a row of a Table, by its number there, which it keeps for as long as the table lives: what is added comes
// behind all others there, and what is removed stays there. How the records follow one another in their source is kept
// here.
class Records {
public:
    enum class Side { Before, Behind };

    // Those that the source has.
    explicit Records(int count);

    // Of the records that are there.
    int Count() const { return count_; }
    std::vector<int> InOrder() const;
    bool IsThere(int record) const { return !At(record).isRemoved; }
    // It is there and the source does not have it.
    bool IsNew(int record) const { return At(record).isNew && IsThere(record); }
    // As a person counts rows: "12" of the source as it was saved last, "+2" of those that were added since.
    std::string NameOf(int record) const;

    // The number must be the next one. The neighbour is one that is there; -1 makes it the first of all.
    void Add(int record, int neighbour, Side side);
    void Remove(int record);
    // What was removed comes back to its place. False when that has been saved.
    bool Restore(int record);

    // That the source has, in its order.
    std::vector<int> Removed() const;
    struct Addition {
        int record = 0;
        int behind = -1; // one that the source has and keeps; -1 where there is none before it
    };
    // In the order in which they stand. Several behind one record follow one another.
    std::vector<Addition> Added() const;
    // The source has what is here.
    void NoteSaved();

private:
    struct State {
        int name = 0; // from 1, of the source's or of the new ones
        bool isNew = false;
        bool isRemoved = false;
        bool isForgotten = false; // removed, and saved so
    };

    const State& At(int record) const { return states_.at(static_cast<std::size_t>(record)); }
    State& At(int record) { return states_.at(static_cast<std::size_t>(record)); }

    std::vector<State> states_; // by record
    std::vector<int> order_; // with those that were removed since they were saved
    int count_ = 0;
    int newNames_ = 0;
};

} // namespace vornix::viewer
