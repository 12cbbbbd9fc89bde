// What a field of one line does with pasted and dropped texts of several.
#pragma once

#include <QString>

class QLineEdit;

namespace vornix {

// Of what has come into the text since it was `former`, takes away all but the first line, as far as there is room for
// it; 0 for any length.
void KeepFirstLine(QLineEdit& line, const QString& former, int mostCharacters);

} // namespace vornix
