#include "state/ErrorReport.h"

namespace varnhold {

using namespace Qt::StringLiterals;

void reportError(MessageBoxes& boxes, const RunTimeError& error, DescriptionLabel label)
{
    const QString third =
        label == DescriptionLabel::WithBlank ? u"Err Description: "_s : u"Err Description:"_s;
    boxes.show({u"Err Number:\t"_s + QString::number(error.number()) + u"\r\nErr Source:\t"_s +
                    error.source() + u"\r\n"_s + third + u'\t' + error.description() + u"\r\n"_s,
                u"ErrorException"_s, BoxIcon::Critical, BoxButtons::Ok});
}

} // namespace varnhold
