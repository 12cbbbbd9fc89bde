// A sort by three columns, a text, a number and a date, beside what programs over Qt's tables write for it: a proxy model
// that compares the rows by the three columns in turn. In one process, without a picture.
#include "compare_tables.h"

#include <QDate>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>

#include <random>

namespace {

using namespace compare;

constexpr int SortedRows = 29000;

struct Order {
    std::string city;
    int amount;
    QDate day;
};

// Many to a city, some to an amount of a city, so that every column decides.
const std::vector<Order>& Orders()
{
    static const std::vector<Order> orders = [] {
        std::mt19937 random(7);
        std::vector<Order> made;
        for (int row = 0; row < SortedRows; ++row) {
            const int city = static_cast<int>(random() % 2000);
            made.push_back({ "Customer " + std::string(1, static_cast<char>('A' + city % 26)) + std::to_string(city),
                static_cast<int>(random() % 10), QDate(2000, 1, 1).addDays(static_cast<int>(random() % 9000)) });
        }
        return made;
    }();
    return orders;
}

// -- Qt --

class ThreeColumns : public QSortFilterProxyModel {
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override
    {
        const auto value = [&](const QModelIndex& index, int col) {
            return sourceModel()->data(index.siblingAtColumn(col), Qt::DisplayRole);
        };
        const int texts = QString::compare(value(left, 0).toString(), value(right, 0).toString(), Qt::CaseInsensitive);
        if (texts != 0)
            return texts < 0;
        const double leftNumber = value(left, 1).toDouble();
        const double rightNumber = value(right, 1).toDouble();
        if (leftNumber != rightNumber)
            return leftNumber < rightNumber;
        return value(left, 2).toDate() < value(right, 2).toDate();
    }
};

// The values are numbers and dates already: nothing is parsed.
void FillOrders(QStandardItemModel& model)
{
    int row = 0;
    for (const Order& order : Orders()) {
        model.setItem(row, 0, new QStandardItem(QString::fromStdString(order.city)));
        for (int col = 1; col < 3; ++col)
            model.setItem(row, col, new QStandardItem);
        model.item(row, 1)->setData(order.amount, Qt::DisplayRole);
        model.item(row, 2)->setData(order.day, Qt::DisplayRole);
        ++row;
    }
}

void ProxySort(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto model = std::make_unique<QStandardItemModel>(SortedRows, 3);
        FillOrders(*model);
        auto proxy = std::make_unique<ThreeColumns>();
        proxy->setSourceModel(model.get());
        state.ResumeTiming();
        proxy->sort(0);
        state.PauseTiming();
        if (proxy->index(0, 0).data().toString() != QStringLiteral("Customer A0"))
            state.SkipWithError("the rows are not sorted");
        proxy.reset();
        model.reset();
        state.ResumeTiming();
    }
}

// -- The grid --

void FillOrders(vornix::Vornix& grid)
{
    vornix::i16 row = 0;
    for (const Order& order : Orders()) {
        grid.SetText(row, 0, std::u16string(order.city.begin(), order.city.end()));
        grid.SetText(row, 1, QString::number(order.amount).toStdU16String());
        grid.SetText(row, 2, order.day.toString(QStringLiteral("M/d/yyyy")).toStdU16String());
        ++row;
    }
}

void GridSort(benchmark::State& state)
{
    QVornix widget;
    vornix::Vornix& grid = widget.Grid();
    grid.SetRedraw(false);
    grid.SetRows(SortedRows);
    grid.SetCols(3);
    for (vornix::i16 col = 0; col < 3; ++col)
        grid.SetSortOrder(col, static_cast<vornix::i16>(col + 1));
    grid.SetSortType(1, vornix::vxNumeric);
    grid.SetSortType(2, vornix::vxDate);
    for (auto _ : state) {
        state.PauseTiming();
        FillOrders(grid);
        state.ResumeTiming();
        grid.Sort();
    }
    if (grid.Text(0, 0) != u"Customer A0")
        state.SkipWithError("the rows are not sorted");
}

BENCHMARK(ProxySort)->Name("QSortFilterProxyModel/sort")->Unit(benchmark::kMillisecond);
BENCHMARK(GridSort)->Name("Vornix/sort")->Unit(benchmark::kMillisecond);

} // namespace
