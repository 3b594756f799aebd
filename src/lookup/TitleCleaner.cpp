#include "lookup/TitleCleaner.h"

#include "platform/ReplaceText.h"
#include "platform/Trim.h"
#include "state/Settings.h"

namespace varnhold {

using namespace Qt::StringLiterals;

QString cleanTitle(QString title, const Settings& settings, const QString& gameIdText)
{
    if (!settings.isChecked(Check::RemoveUnw))
        return title;
    if (settings.isChecked(Check::Double)) {
        title = trimBlanks(title);
        replaceIn(title, u"  "_s, u" "_s);
    }
    title = trimBlanks(title);
    replaceIn(title, u": Update"_s);
    if (settings.isChecked(Check::Colon))
        replaceIn(title, u":"_s, u" -"_s);
    title = trimBlanks(title);
    replaceIn(title, u" ("_s + gameIdText + u')');
    // The literal word stays unless the user's list takes it out, as the delivered list does.
    title = trimBlanks(title);
    replaceIn(title, u' ' + gameIdText, u" GAMEID"_s);
    for (const QString& unwanted : settings.unwantedStrings().split(u',')) {
        title = trimBlanks(title);
        replaceIn(title, unwanted);
    }
    return title;
}

} // namespace varnhold
