#include "qt_one_line.h"

#include <QLineEdit>
#include <QRegularExpression>

#include <algorithm>

namespace vornix {

namespace {

// Between the two units of a pair.
bool IsInsidePair(const QString& text, qsizetype place)
{
    return place > 0 && place < text.size() && text[place - 1].isHighSurrogate() && text[place].isLowSurrogate();
}

} // namespace

qsizetype FittingLength(const QString& text, qsizetype room)
{
    const qsizetype length = std::clamp<qsizetype>(room, 0, text.size());
    return IsInsidePair(text, length) ? length - 1 : length;
}

void KeepFirstLine(QLineEdit& line, const QString& former, int mostCharacters)
{
    static const QRegularExpression lineBreak(QStringLiteral("[\\r\\n\u2028\u2029]"));
    const QString now = line.text();
    const auto begins = std::mismatch(now.begin(), now.end(), former.begin(), former.end());
    qsizetype start = begins.first - now.begin();
    if (IsInsidePair(now, start))
        --start;
    const qsizetype most = std::min(now.size(), former.size()) - start;
    qsizetype same = 0;
    while (same < most && now[now.size() - 1 - same] == former[former.size() - 1 - same])
        ++same;
    if (IsInsidePair(now, now.size() - same))
        --same;
    const QString added = now.mid(start, now.size() - same - start);
    qsizetype kept = added.indexOf(lineBreak);
    if (kept < 0)
        kept = added.size();
    if (mostCharacters > 0)
        kept = std::min(kept, FittingLength(added, mostCharacters - (now.size() - added.size())));
    if (kept == added.size())
        return;
    line.setSelection(static_cast<int>(start + kept), static_cast<int>(added.size() - kept));
    line.del();
}

} // namespace vornix
