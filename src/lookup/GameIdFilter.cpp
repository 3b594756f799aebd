#include "lookup/GameIdFilter.h"

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr char16_t enterKey = 13;
constexpr char16_t backspaceKey = 8;
constexpr qsizetype longestGameId = 9;

bool isIdCharacter(QChar character)
{
    return (character >= u'0' && character <= u'9') || (character >= u'A' && character <= u'Z');
}

} // namespace

FilteredKey filterTypedCharacter(QChar typed)
{
    const QChar upper = typed.toUpper();
    if (isIdCharacter(upper) || upper == QChar(backspaceKey))
        return {TypedCharacter::Accepted, upper};
    return {upper == QChar(enterKey) ? TypedCharacter::Fetch : TypedCharacter::Refused, upper};
}

QString withoutSeparators(QString text)
{
    return text.remove(u'-').remove(u' ');
}

QString filterGameIdText(const QString& text)
{
    return withoutSeparators(text).left(longestGameId);
}

QString invalidCharacterText()
{
    return u"Invalid Character.\rPlease enter 0-9, or A-Z"_s;
}

} // namespace varnhold
