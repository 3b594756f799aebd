#include "appearance/SkinTexts.h"

#include "platform/RunTimeError.h"

namespace varnhold {

using namespace Qt::StringLiterals;

QString missingSkinFileText(const RunTimeError& error)
{
    return u"Error occured:\r\nNumber:         "_s + QString::number(error.number()) +
           u"\r\nDescription:   A Skin file does not exist!\r\n"_s + error.description() +
           u"\r\nSolution:        Please check the skin folder in question."_s;
}

QString skinErrorText(const RunTimeError& error)
{
    return QString::number(error.number()) + u' ' + error.description();
}

QString layoutErrorText(const RunTimeError& error)
{
    return u"Err Number: "_s + QString::number(error.number()) + u"\r\nErr Description: "_s +
           error.description() + u"\r\nSolution: Please update the skin folder in question."_s;
}

QString pictureNotShownText(const RunTimeError& error)
{
    return u"This picture cannot be shown: "_s + error.description();
}

QString skinNotFoundStatus()
{
    return u"Loading: Skin not found"_s;
}

QString selectSkinFolderMessage()
{
    return u"Please select Skin Folder.\rThank You! *\u00BF*"_s;
}

} // namespace varnhold
