#include "sqlite_steps.h"

#include "saver.h"

namespace vornix::viewer {

// From the other end each time: rows that wait for one another mostly stand in one order or the other.
void SqliteSteps::ForEach(std::vector<int> rows, const Step& step)
{
    for (bool isForward = true; !rows.empty(); isForward = !isForward) {
        std::vector<int> refused;
        std::vector<std::string> reasons;
        for (const int row : rows) {
            if (std::optional<std::string> reason = WhyNot(row, step)) {
                refused.push_back(row);
                reasons.push_back(std::move(*reason));
            }
        }
        if (refused.size() == rows.size()) {
            const std::size_t first = isForward ? 0 : refused.size() - 1;
            throw SaveError(changes_.NameOf(refused[first]) + ": " + reasons[first]);
        }
        rows.assign(refused.rbegin(), refused.rend());
    }
}

std::optional<std::string> SqliteSteps::WhyNot(int row, const Step& step)
{
    try {
        transaction_.Do([&] { step(row); });
        return {};
    } catch (const sqlite::Error& error) {
        if (error.Kind() == sqlite::ErrorKind::Constraint && transaction_.IsOpen())
            return error.what();
        throw SaveError(changes_.NameOf(row) + ": " + error.what());
    }
}

} // namespace vornix::viewer
