#include "column_inputs.h"

#include "blanks.h"
#include "typed_date.h"

#include <algorithm>

namespace vornix::viewer {

namespace {

constexpr int FewestTexts = 8; // in a column, for a list of them to be worth it
constexpr int MostChoices = 20;
constexpr int UsesOfEach = 3; // on average
constexpr std::size_t LongestChoice = 60; // UTF-16 units; the field of a list does not grow with its text

bool FitsList(std::u16string_view text)
{
    return text.size() <= LongestChoice
        && std::none_of(text.begin(), text.end(), [](char16_t unit) { return unit < u' '; });
}

} // namespace

ColumnInputs::ColumnInputs(const Document& document)
    : document_(document)
{
    for (int column = 0; column < document.Saved().ColumnCount(); ++column)
        inputs_.push_back(InputOf(column));
}

ColumnInputs::Input ColumnInputs::InputOf(int column) const
{
    const ColumnKind kind = document_.Saved().Columns()[static_cast<std::size_t>(column)].kind;
    if (document_.WhyReadOnly() || kind == ColumnKind::Boolean)
        return {};
    if (document_.KeysFor(column))
        return { InputKind::Text, true };
    if (kind == ColumnKind::Date && HasOnlyWholeDates(column))
        return { InputKind::Date };
    std::set<std::u16string> choices = kind == ColumnKind::Text ? RepeatedTexts(column) : std::set<std::u16string>();
    const InputKind input = choices.empty() ? InputKind::Text : InputKind::Choice;
    return { input, true, std::move(choices) };
}

InputKind ColumnInputs::Kind(int column) const
{
    const Input& input = inputs_[static_cast<std::size_t>(column)];
    return input.takesKeys && document_.KeysFor(column) ? InputKind::Key : input.kind;
}

std::set<std::u16string> ColumnInputs::RepeatedTexts(int column) const
{
    std::set<std::u16string> different;
    int count = 0;
    for (const int row : document_.Rows()) {
        const std::u16string_view text = document_.Text(row, column);
        if (IsBlank(text) || !document_.CanChange(row, column))
            continue;
        if (!FitsList(text))
            return {};
        ++count;
        different.emplace(text);
        if (different.size() > MostChoices)
            return {};
    }
    const bool repeats = count >= FewestTexts && static_cast<int>(different.size()) * UsesOfEach <= count;
    return repeats ? different : std::set<std::u16string>();
}

bool ColumnInputs::HasOnlyWholeDates(int column) const
{
    for (const int row : document_.Rows()) {
        const std::u16string_view text = document_.Text(row, column);
        if (!text.empty() && !IsWholeDate(text))
            return false;
    }
    return true;
}

std::vector<std::u16string> ColumnInputs::List(int column) const
{
    if (Kind(column) == InputKind::Key)
        return *document_.KeysFor(column);
    if (Kind(column) != InputKind::Choice)
        return {};
    std::set<std::u16string> texts = inputs_[static_cast<std::size_t>(column)].choices;
    for (const int row : document_.Rows()) {
        const std::u16string_view text = document_.Text(row, column);
        if (!IsBlank(text) && FitsList(text) && document_.CanChange(row, column))
            texts.emplace(text);
    }
    return { texts.begin(), texts.end() };
}

} // namespace vornix::viewer
