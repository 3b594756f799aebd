#pragma once

#include <QChar>
#include <QString>

namespace varnhold {

/// What becomes of a character typed into the id box.
enum class TypedCharacter { Accepted, Fetch, Refused };

struct FilteredKey
{
    TypedCharacter outcome;
    QChar character; ///< upper-cased; to be inserted when accepted
};

/// Decides on one typed character: 0-9, A-Z (typed in either case) and backspace are accepted, Enter (code
/// 13) asks for a lookup, all else is refused with invalidCharacterText. Keys without a character never come
/// here.
FilteredKey filterTypedCharacter(QChar typed);

/// What remains of a changed text, pasting included: every "-", then every " " removed.
QString withoutSeparators(QString text);
/// The same, then cut to nine characters.
QString filterGameIdText(const QString& text);

/// Text of the box for a refused character.
QString invalidCharacterText();

} // namespace varnhold
