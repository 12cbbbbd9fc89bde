// What fields do with pasted and dropped texts that are too long, or of several lines where there is one.
#pragma once

#include <QString>

class QLineEdit;

namespace vornix {

// How many units of a text go into a room: half a surrogate pair does not.
qsizetype FittingLength(const QString& text, qsizetype room);
// Of what has come into the text since it was `former`, takes away all but the first line, as far as there is room for
// it; 0 for any length.
void KeepFirstLine(QLineEdit& line, const QString& former, int mostCharacters);

} // namespace vornix
