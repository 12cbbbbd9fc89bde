#include "qt_one_line.h"

#include <QLineEdit>
#include <QRegularExpression>

#include <algorithm>

namespace vornix {

void KeepFirstLine(QLineEdit& line, const QString& former, int mostCharacters)
{
    static const QRegularExpression lineBreak(QStringLiteral("[\\r\\n\u2028\u2029]"));
    const QString now = line.text();
    const auto begins = std::mismatch(now.begin(), now.end(), former.begin(), former.end());
    const qsizetype start = begins.first - now.begin();
    const qsizetype most = std::min(now.size(), former.size()) - start;
    qsizetype same = 0;
    while (same < most && now[now.size() - 1 - same] == former[former.size() - 1 - same])
        ++same;
    const QString added = now.mid(start, now.size() - same - start);
    qsizetype kept = added.indexOf(lineBreak);
    if (kept < 0)
        kept = added.size();
    if (mostCharacters > 0)
        kept = std::min(kept, std::max<qsizetype>(mostCharacters - (now.size() - added.size()), 0));
    if (kept == added.size())
        return;
    line.setSelection(static_cast<int>(start + kept), static_cast<int>(added.size() - kept));
    line.del();
}

} // namespace vornix
